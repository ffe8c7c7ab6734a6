#pragma once

#include <gtest/gtest.h>

#include <dlfcn.h>
#include <sys/resource.h>
#include <unistd.h>

#include <fstream>

/// Whether this program's rooms were built with AddressSanitizer. Tests themselves never are.
inline bool UnderAddressSanitizer()
{
    return dlsym(RTLD_DEFAULT, "__asan_init") != nullptr;
}

/// While it lives, the process gets little more memory than it has: bitmaps of 6000 x 6000 pixels, 144 MB, are too
/// much. (With AddressSanitizer its option allocator_may_return_null has to be set, as scripts/test does.)
class ScarceMemory
{
public:
    ScarceMemory()
    {
        getrlimit(RLIMIT_AS, &m_before);
        rlimit scarce = m_before;
        scarce.rlim_cur = UsedBytes() + kSpareBytes;
        EXPECT_EQ(setrlimit(RLIMIT_AS, &scarce), 0);
    }
    ~ScarceMemory() { EXPECT_EQ(setrlimit(RLIMIT_AS, &m_before), 0); }
    ScarceMemory(const ScarceMemory&) = delete;
    ScarceMemory& operator=(const ScarceMemory&) = delete;

private:
    static constexpr rlim_t kSpareBytes = 48 << 20;

    static rlim_t UsedBytes()
    {
        rlim_t pages = 0;
        std::ifstream("/proc/self/statm") >> pages;
        return pages * static_cast<rlim_t>(sysconf(_SC_PAGESIZE));
    }

    rlimit m_before{};
};

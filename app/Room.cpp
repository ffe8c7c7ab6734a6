#include "app/Room.h"

#include <fcntl.h>
#include <malloc.h>
#include <sys/mman.h>
#include <sys/resource.h>
#include <unistd.h>
#include <vector>

namespace app
{
namespace
{
bool IsAddressSpaceLimited()
{
    rlimit limit{};
    return getrlimit(RLIMIT_AS, &limit) == 0 && limit.rlim_cur != RLIM_INFINITY;
}

bool HasAddresses(std::size_t bytes)
{
    void* const room = mmap(nullptr, bytes, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
    return room != MAP_FAILED && munmap(room, bytes) == 0;
}

bool HasFiles(int count)
{
    std::vector<int> files;
    for (int file = 0;
         static_cast<int>(files.size()) < count && (file = open("/", O_RDONLY | O_DIRECTORY | O_CLOEXEC)) >= 0;)
        files.push_back(file);
    for (const int file : files)
        close(file);
    return static_cast<int>(files.size()) == count;
}
} // namespace

std::string LackOf(const Room& room)
{
    if (IsAddressSpaceLimited())
    {
        mallopt(M_ARENA_MAX, 1); // each more would take 64 MB of it
        if (!HasAddresses(room.bytes))
            return "not enough memory to start: " + std::to_string(room.bytes >> 20) +
                   " MB of address space are needed";
    }
    if (!HasFiles(room.files))
        return "too few files may be open to start: " + std::to_string(room.files) + " are needed";
    return "";
}
} // namespace app

#pragma once

#include <wx/string.h>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>
#include <sys/mman.h>
#include <unistd.h>

/// Called with one input after the other; what it does to an input must depend on nothing else.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace fuzz
{
inline std::string_view BytesOf(const std::uint8_t* data, std::size_t size)
{
    return {reinterpret_cast<const char*>(data), size};
}

/// Ends the program, which counts as a crash, where what must hold does not.
inline void Demand(bool holds)
{
    if (!holds)
        std::abort();
}

/// Takes pieces from the front of an input: what lies before a separator, or all of the rest.
class Pieces
{
public:
    Pieces(std::string_view bytes, char separator) : m_rest(bytes), m_separator(separator) {}

    std::string_view Next()
    {
        const std::string_view piece = m_rest.substr(0, m_rest.find(m_separator));
        m_rest.remove_prefix(std::min(piece.size() + 1, m_rest.size()));
        return piece;
    }

    bool AtEnd() const { return m_rest.empty(); }

private:
    std::string_view m_rest;
    char m_separator;
};

/// A file in memory under a name, for readers that open theirs.
class NamedBytes
{
public:
    NamedBytes() : m_file(memfd_create("fuzz", MFD_CLOEXEC)) { Demand(m_file >= 0); }
    ~NamedBytes() { close(m_file); }
    NamedBytes(const NamedBytes&) = delete;
    NamedBytes& operator=(const NamedBytes&) = delete;

    /// Replaces what it holds. @return its name, for one opening.
    wxString Hold(std::string_view bytes)
    {
        Demand(ftruncate(m_file, 0) == 0);
        Demand(pwrite(m_file, bytes.data(), bytes.size(), 0) == static_cast<ssize_t>(bytes.size()));
        return wxString::Format("/proc/self/fd/%d", m_file);
    }

private:
    int m_file;
};
} // namespace fuzz

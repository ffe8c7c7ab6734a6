#pragma once

#include <wx/string.h>

#include <cstddef>
#include <string>

namespace reports
{
/// What no file of settings, labels or contacts reaches.
inline constexpr std::size_t kMostBytes = std::size_t{64} << 20;

/// A file in memory, or why it is not there.
struct BoundedFile
{
    std::string bytes;
    wxString obstacle; ///< why it could not be read, as the end of a message; empty if it was
};

/// Why a file can't be read, as the end of a message; empty if it can. Directories, pipes and devices can't.
wxString ObstacleTo(const wxString& path);

/// Reads a whole file. Directories, pipes, devices and files of more than so many bytes are refused.
BoundedFile ReadBounded(const wxString& path, std::size_t mostBytes = kMostBytes);

/// The same for a text: files that are empty and files that are no text are refused, too.
BoundedFile ReadBoundedText(const wxString& path);
} // namespace reports

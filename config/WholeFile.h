#pragma once

#include <wx/stream.h>
#include <wx/string.h>

#include <functional>

/// Writes a file into a stream that can be sought in. @return whether it could.
using WriteFile = std::function<bool(wxOutputStream& stream)>;

/**
 * Writes a file that appears whole or not at all, in place of one that may be there, whose permissions it takes.
 *
 * It is written beside its place under the name kUnfinished and some digits, flushed to the disk, and renamed when the
 * last byte is there; whatever fails before leaves the older file alone. A link is followed, also to a file that is not
 * there yet. What is no file, as a directory, a pipe, a device or a loop of links, is left alone. A signal that ends
 * the program removes what is unfinished; only one that can't be caught leaves it. One at a time.
 *
 * @return why that failed, as the end of a message; empty if it did not.
 */
wxString WriteWholeFile(const wxString& path, const WriteFile& write);

/// How the name of a file begins that is not finished.
inline constexpr char kUnfinished[] = "kavmap-unfinished-";

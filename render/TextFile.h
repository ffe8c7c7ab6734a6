#pragma once

#include <wx/string.h>

#include <optional>

namespace render
{
/**
 * The text of a file, looked up by FindDataFile().
 *
 * Its encoding is told by its byte-order mark; without one it is UTF-8, or Latin-1 where it is not valid as such.
 *
 * @return none for a file that cannot be opened or read, which the toolkit's log reports.
 */
std::optional<wxString> ReadTextFile(const wxString& file);
} // namespace render

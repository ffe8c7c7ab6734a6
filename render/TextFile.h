#pragma once

#include <wx/string.h>

#include <algorithm>
#include <optional>
#include <string>
#include <string_view>

namespace render
{
/// Decodes a text whose encoding is told by its byte-order mark. Without one it is UTF-8; what is not valid is taken as
/// Latin-1.
std::wstring DecodeText(std::string_view bytes);

/**
 * The text of a file, looked up by FindDataFile() and decoded by DecodeText().
 *
 * @return none for a file that cannot be opened or read, which the toolkit's log reports.
 */
std::optional<std::wstring> ReadTextFile(const wxString& file);

/// Calls visit(line) for every line of a text. Lines end with LF, CR LF or CR; what follows the last end is a line if
/// it is not empty.
template <class Visit>
void ForEachLine(std::wstring_view text, Visit visit)
{
    while (!text.empty())
    {
        const std::size_t length = std::min(text.find_first_of(L"\r\n"), text.size());
        visit(text.substr(0, length));
        text.remove_prefix(length);
        text.remove_prefix(text.starts_with(L"\r\n") ? 2 : text.empty() ? 0 : 1);
    }
}
} // namespace render

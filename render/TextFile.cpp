#include "render/TextFile.h"

#include "config/DataFile.h"

#include <wx/convauto.h>
#include <wx/file.h>

#include <algorithm>

namespace render
{
namespace
{
constexpr wchar_t kReplacement = L'\xFFFD';

/// Halves of surrogate pairs, and what lies beyond the last character: damaged files may hold them, texts must not.
bool IsNoCharacter(wchar_t c)
{
    return (c >= 0xD800 && c <= 0xDFFF) || c > 0x10FFFF || c < 0;
}

std::optional<std::wstring> Decode(const wxMBConv& encoding, std::string_view bytes)
{
    // Never longer than the bytes.
    std::wstring text(bytes.size(), L'\0');
    const std::size_t length = encoding.ToWChar(text.data(), text.size(), bytes.data(), bytes.size());
    if (length == wxCONV_FAILED)
        return std::nullopt;
    text.resize(length);
    std::ranges::replace_if(text, IsNoCharacter, kReplacement);
    return text;
}

std::optional<std::string> ReadBytes(const wxString& name)
{
    wxFile file;
    OpenDataFile(file, name);
    std::string bytes;
    std::string block(1 << 16, '\0');
    while (file.IsOpened())
    {
        const ssize_t count = file.Read(block.data(), block.size());
        if (count == wxInvalidOffset)
            break;
        if (count == 0)
            return bytes;
        bytes.append(block, 0, static_cast<std::size_t>(count));
    }
    return std::nullopt;
}
} // namespace

std::wstring DecodeText(std::string_view bytes)
{
    if (bytes.empty())
        return {};
    if (auto text = Decode(wxConvAuto(wxFONTENCODING_ISO8859_1), bytes))
        return *std::move(text);
    return Decode(wxConvISO8859_1, bytes).value_or(std::wstring());
}

std::optional<std::wstring> ReadTextFile(const wxString& file)
{
    const auto bytes = ReadBytes(file);
    return bytes ? std::optional(DecodeText(*bytes)) : std::nullopt;
}
} // namespace render

#include "render/TextFile.h"

#include "config/DataFile.h"

#include <wx/convauto.h>
#include <wx/file.h>

namespace render
{
namespace
{
std::optional<std::wstring> Decode(const wxMBConv& encoding, std::string_view bytes)
{
    // Never longer than the bytes.
    std::wstring text(bytes.size(), L'\0');
    const std::size_t length = encoding.ToWChar(text.data(), text.size(), bytes.data(), bytes.size());
    if (length == wxCONV_FAILED)
        return std::nullopt;
    text.resize(length);
    return text;
}

std::optional<std::string> ReadBytes(const wxString& path)
{
    wxFile file(path);
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
    const auto bytes = ReadBytes(FindDataFile(file));
    return bytes ? std::optional(DecodeText(*bytes)) : std::nullopt;
}
} // namespace render

#include "ui/options/FileKinds.h"

#include "config/DataFile.h"

#include <wx/image.h>
#include <wx/log.h>
#include <wx/tokenzr.h>
#include <wx/wfstream.h>

#include <cstdint>
#include <cstdlib>
#include <string>

namespace
{
constexpr std::size_t kSample = 60000; ///< bytes that tell what a file is; whole border records

/// The beginning of a file; nothing if it can't be opened.
bool ReadSample(const wxString& name, std::string& bytes)
{
    const wxLogNull silent;
    wxFile file;
    if (!OpenDataFile(file, name))
        return false;
    bytes.resize(kSample);
    const ssize_t count = file.Read(bytes.data(), bytes.size());
    bytes.resize(count > 0 ? static_cast<std::size_t>(count) : 0);
    return count >= 0;
}

int NumberAt(const std::string& bytes, std::size_t i)
{
    const auto low = static_cast<unsigned char>(bytes[i]);
    const auto high = static_cast<unsigned char>(bytes[i + 1]);
    return static_cast<std::int16_t>(low | high << 8);
}

/// Records of code, latitude and longitude; positions in minutes of arc.
bool IsBorderFile(const std::string& bytes)
{
    if (bytes.empty() || bytes.size() % 6 != 0)
        return false;
    for (std::size_t i = 0; i < bytes.size(); i += 6)
        if (std::abs(NumberAt(bytes, i + 2)) > 90 * 60 || std::abs(NumberAt(bytes, i + 4)) > 180 * 60)
            return false;
    return true;
}

bool IsNumber(const wxString& text)
{
    double number = 0.0;
    return wxString(text).Trim().Trim(false).ToCDouble(&number);
}

/// Whether a line has a text and, in the fifth and sixth place, a position.
bool IsLabel(const wxString& line)
{
    const wxArrayString fields = wxStringTokenize(line, ";", wxTOKEN_STRTOK);
    return fields.size() >= 6 && IsNumber(fields[4]) && IsNumber(fields[5]);
}

bool HasLabel(const std::string& bytes)
{
    wxStringTokenizer lines(wxString::From8BitData(bytes.data(), bytes.size()), "\r\n", wxTOKEN_STRTOK);
    while (lines.HasMoreTokens())
        if (IsLabel(lines.GetNextToken()))
            return true;
    return false;
}

/// One that may be written in two bytes a character is not judged.
bool IsWide(const std::string& bytes)
{
    return bytes.find('\0') != std::string::npos;
}

template <class Check>
wxString Judge(const wxString& name, const wxString& otherwise, Check check)
{
    std::string bytes;
    if (name.empty())
        return "";
    if (!ReadSample(name, bytes))
        return "not found";
    return check(bytes) ? wxString() : otherwise;
}
} // namespace

namespace ui
{
wxString MissingFile(const wxString& name)
{
    return Judge(name, "", [](const std::string&) { return true; });
}

wxString NoPicture(const wxString& name)
{
    return Judge(name, "no picture",
                 [&name](const std::string&)
                 {
                     const wxLogNull silent;
                     return wxImage::CanRead(FindDataFile(name));
                 });
}

wxString NoBorderFile(const wxString& name)
{
    return Judge(name, "no border file", IsBorderFile);
}

wxString NoLabelFile(const wxString& name)
{
    return Judge(name, "no label file", [](const std::string& bytes) { return IsWide(bytes) || HasLabel(bytes); });
}
} // namespace ui

#include "app/FileNames.h"

#include <wx/strconv.h>

namespace
{
wxMBConvUTF8 theFileNames(wxMBConvUTF8::MAP_INVALID_UTF8_TO_PUA);
} // namespace

namespace app
{
void TakeFileNamesAsBytes()
{
    wxConvFileName = &theFileNames;
}

wxString FileName(const std::string& bytes)
{
    return {bytes.c_str(), theFileNames};
}

std::string Bytes(const wxString& text)
{
    const auto bytes = text.mb_str(theFileNames);
    return {bytes.data(), bytes.length()};
}
} // namespace app

#include "propagation/AntennaName.h"

#include <wx/tokenzr.h>

namespace propagation
{
namespace
{
constexpr std::size_t kDirectoryWidth = 8;
constexpr std::size_t kFileWidth = 12;
} // namespace

AntennaName AntennaNameOf(const wxString& path)
{
    wxStringTokenizer pieces(path, "/", wxTOKEN_STRTOK);
    for (std::size_t taken = 0; taken <= pieces.CountTokens(); ++taken)
        pieces.GetNextToken();
    pieces.GetNextToken();
    wxString directory = pieces.GetNextToken();
    wxString file = pieces.GetNextToken();
    if (directory.length() > kDirectoryWidth)
        return {"", "Directory name max 8 characters"};
    if (file.length() > kFileWidth)
        return {"", "File name max 12 characters"};
    return {directory.Pad(kDirectoryWidth - directory.length()) + "\\" + file.Pad(kFileWidth - file.length()), ""};
}
} // namespace propagation

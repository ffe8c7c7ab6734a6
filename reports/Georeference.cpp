#include "reports/Georeference.h"

#include "config/SpecialFile.h"
#include "geo/WorldFile.h"

#include <wx/file.h>
#include <wx/log.h>

namespace reports
{
namespace
{
bool WriteWhole(const wxString& path, const std::string& text)
{
    if (const char* const obstacle = SpecialFileAt(path.fn_str()))
    {
        wxLogError("Couldn't write %s: %s", path, obstacle);
        return false;
    }
    wxTempFile file;
    return file.Open(path) && file.Write(text.data(), text.size()) && file.Commit();
}
} // namespace

wxString WorldFileName(const wxString& picture)
{
    const wxString ending = picture.Right(3);
    return picture.Left(picture.length() - 2) + ending[2] + (ending == ending.Upper() ? 'W' : 'w');
}

wxString ProjectionFileName(const wxString& picture)
{
    return picture.Left(picture.length() - 3) + "prj";
}

bool WriteGeoreference(const MapView& view, const wxString& picture)
{
    const bool hasScale = WriteWhole(WorldFileName(picture), geo::WorldFileText(view.frame));
    return WriteWhole(ProjectionFileName(picture), geo::ProjectionText(view.projection)) && hasScale;
}
} // namespace reports

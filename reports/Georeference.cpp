#include "reports/Georeference.h"

#include "config/WholeFile.h"
#include "geo/WorldFile.h"

#include <wx/log.h>

namespace reports
{
namespace
{
bool WriteWhole(const wxString& path, const std::string& text)
{
    const wxString reason =
        WriteWholeFile(path, [&text](wxOutputStream& stream) { return stream.WriteAll(text.data(), text.size()); });
    if (!reason.empty())
        wxLogError("Couldn't write %s: %s", path, reason);
    return reason.empty();
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

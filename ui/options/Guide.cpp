#include "ui/options/Guide.h"

#include <wx/filename.h>
#include <wx/filesys.h>

namespace ui
{
wxString GuideAddress(const wxString& program)
{
    wxFileName guide(program);
    guide.RemoveLastDir();
    for (const char* const directory : {"share", "doc", "kavmap"})
        guide.AppendDir(directory);
    guide.SetFullName("user-guide.md");
    return guide.FileExists() ? wxFileSystem::FileNameToURL(guide) : wxString("https://kavmap.example/README");
}
} // namespace ui

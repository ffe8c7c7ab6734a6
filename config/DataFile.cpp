#include "config/DataFile.h"

#include <wx/filename.h>
#include <wx/stdpaths.h>

wxString FindDataFile(const wxString& name)
{
    wxFileName asWritten(name);
    if (name.empty() || asWritten.IsAbsolute() || asWritten.Exists())
        return name;
    wxFileName program(wxStandardPaths::Get().GetExecutablePath());
    program.RemoveLastDir();
    const wxString shipped = program.GetPathWithSep() + "share/kavmap/" + name;
    return wxFileName::Exists(shipped) ? shipped : name;
}

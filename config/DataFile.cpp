#include "config/DataFile.h"

#include "config/SpecialFile.h"

#include <wx/filename.h>
#include <wx/log.h>
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

bool OpenDataFile(wxFile& file, const wxString& name)
{
    const wxString path = FindDataFile(name);
    const char* const obstacle = SpecialFileAt(path.fn_str());
    if (!obstacle)
        return file.Open(path);
    wxLogError("can't open file '%s': %s", path, obstacle);
    return false;
}

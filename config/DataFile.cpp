#include "config/DataFile.h"

#include <wx/filename.h>
#include <wx/log.h>
#include <wx/stdpaths.h>

#include <sys/stat.h>

namespace
{
bool IsPipeOrDevice(const wxString& path)
{
    struct stat status
    {
    };
    return stat(path.fn_str(), &status) == 0 && !S_ISREG(status.st_mode) && !S_ISDIR(status.st_mode);
}
} // namespace

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
    if (!IsPipeOrDevice(path))
        return file.Open(path);
    wxLogError("can't open file '%s': it is a pipe or a device", path);
    return false;
}

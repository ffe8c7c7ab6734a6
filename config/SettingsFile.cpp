#include "config/SettingsFile.h"

#include "config/QuietToolkit.h"

#include <wx/filename.h>

std::unique_ptr<wxFileConfig> OpenSettingsFile(const wxString& path)
{
    const QuietToolkit quiet;
    // A relative name would be looked up in the home directory.
    wxFileName absolute(path);
    absolute.MakeAbsolute();
    auto file = std::make_unique<wxFileConfig>("", "", absolute.GetFullPath(), "", wxCONFIG_USE_LOCAL_FILE);
    file->SetExpandEnvVars(false);
    return file;
}

#include "config/SettingsFile.h"

#include "config/QuietToolkit.h"
#include "config/SpecialFile.h"
#include "config/WholeFileConfig.h"

#include <wx/filename.h>
#include <wx/log.h>

std::unique_ptr<wxFileConfig> OpenSettingsFile(const wxString& path)
{
    const char* const obstacle = PipeOrDeviceAt(path.fn_str());
    if (obstacle && path != "/dev/null")
    {
        wxLogError("can't open the settings file '%s': %s", path, obstacle);
        return nullptr;
    }
    const QuietToolkit quiet;
    // A relative name would be looked up in the home directory.
    wxFileName absolute(path);
    absolute.MakeAbsolute();
    auto file = std::make_unique<WholeFileConfig>("", absolute.GetFullPath(), 0);
    file->SetExpandEnvVars(false);
    return file;
}

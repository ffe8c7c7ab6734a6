#include "config/SettingsFile.h"

#include "config/QuietToolkit.h"
#include "config/SpecialFile.h"
#include "config/WholeFileConfig.h"

#include <wx/filename.h>
#include <wx/log.h>

#include <cstdint>
#include <filesystem>
#include <string_view>

const char* ObstacleToSettings(const char* path)
{
    constexpr std::uintmax_t kMostBytes = std::uintmax_t{1} << 20;
    if (std::string_view(path) == "/dev/null")
        return nullptr;
    if (const char* const obstacle = PipeOrDeviceAt(path))
        return obstacle;
    std::error_code error;
    const std::uintmax_t size = std::filesystem::file_size(path, error);
    return !error && size > kMostBytes ? "it is longer than 1 MB" : nullptr;
}

std::unique_ptr<wxFileConfig> OpenSettingsFile(const wxString& path)
{
    if (const char* const obstacle = ObstacleToSettings(path.fn_str()))
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

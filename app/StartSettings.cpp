#include "app/StartSettings.h"

#include "app/FileNames.h"
#include "config/SettingsFile.h"

namespace app
{
std::unique_ptr<Configuration> StartSettings(const CommandLine& commandLine)
{
    auto settings = commandLine.settings
                        ? std::make_unique<Configuration>("Kavdex", *OpenSettingsFile(FileName(*commandLine.settings)))
                        : std::make_unique<Configuration>("Kavdex");
    if (commandLine.time)
    {
        settings->greyzone.timeMode = kOnce;
        settings->greyzone.once = *commandLine.time;
    }
    return settings;
}
} // namespace app

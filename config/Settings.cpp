#include "config/Settings.h"

#include "config/SettingKeys.h"

Settings DefaultSettings()
{
    Settings settings;
    settings.ForEachSetting([]<class Value>(const wxString&, Value& member, const auto& fallback)
                            { member = Value(fallback); });
    return settings;
}

#include "config/Configuration.h"

#include "config/QuietToolkit.h"
#include "config/ReadSetting.h"
#include "config/SettingKeys.h"
#include "config/SpecialFile.h"
#include "geo/Locator.h"

#include <wx/log.h>
#include <wx/utils.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <charconv>
#include <cstring>
#include <unistd.h>

namespace
{
/// The user's file of that name; empty where the system knows no home.
wxString PathOf(const wxString& appName)
{
    return wxGetUserHome().empty() ? wxString() : wxFileConfig::GetLocalFileName(appName);
}

/// Why settings can't be kept in a file, which may not be there yet; none if they can. One might wait for pipes and
/// devices for ever, and what can't be read must not be replaced.
const char* ObstacleAt(const wxString& path)
{
    if (path.empty())
        return "there is no home directory";
    if (const char* const obstacle = PipeOrDeviceAt(path.fn_str()))
        return obstacle;
    return access(path.fn_str(), R_OK) != 0 && errno != ENOENT ? std::strerror(errno) : nullptr;
}

wxString UsablePathOf(const wxString& appName)
{
    const wxString path = PathOf(appName);
    return ObstacleAt(path) ? wxString() : path;
}

void ReportObstacle(const wxString& appName)
{
    const wxString path = PathOf(appName);
    if (const char* const obstacle = ObstacleAt(path))
        wxLogError("can't keep settings in '%s': %s", path.empty() ? "~/." + appName : path, obstacle);
}

/// The fewest digits that read back as the same number; the toolkit would write six.
wxString ExactText(double number)
{
    std::array<char, 32> text; // 24 characters at most
    const auto end = std::to_chars(text.data(), text.data() + text.size(), number, std::chars_format::general).ptr;
    return wxString::FromAscii(text.data(), static_cast<std::size_t>(end - text.data()));
}

template <class Value>
void WriteSetting(wxConfigBase& file, const wxString& key, const Value& member)
{
    if constexpr (std::is_same_v<Value, double>)
        file.Write(key, ExactText(member));
    else
        file.Write(key, member);
}
} // namespace

// The toolkit keeps quiet for as long as the base opens its files: damaged files are not reported.
Configuration::Configuration(const wxString& appName)
    : WholeFileConfig((QuietToolkit(), appName), UsablePathOf(appName), wxCONFIG_USE_GLOBAL_FILE)
{
    ReportObstacle(appName);
    ReadAll();
    Flush();
}

Configuration::Configuration(const wxString& appName, wxConfigBase& source)
    : WholeFileConfig((QuietToolkit(), appName), UsablePathOf(appName), wxCONFIG_USE_GLOBAL_FILE)
{
    ReadAllFrom(source);
}

void Configuration::ReadAll()
{
    const QuietToolkit quiet;
    const config::VerbatimTexts verbatim(*this);
    ForEachSetting(
        [this]<class Value>(const wxString& key, Value& member, const auto& fallback)
        {
            if (!config::ReadSetting(*this, key, member, Value(fallback)))
                WriteSetting(*this, key, member);
        });
}

void Configuration::ReadAllFrom(wxConfigBase& source)
{
    const QuietToolkit quiet;
    const config::VerbatimTexts verbatim(source);
    ForEachSetting([&source]<class Value>(const wxString& key, Value& member, const auto& fallback)
                   { config::ReadSetting(source, key, member, Value(fallback)); });
}

void Configuration::WriteAll()
{
    WriteAllTo(*this);
}

void Configuration::WriteAllTo(wxConfigBase& target)
{
    ForEachSetting([&target](const wxString& key, const auto& member, const auto&)
                   { WriteSetting(target, key, member); });
}

void Configuration::LatLonToLocator(wxString& locator, double lat, double lon)
{
    const auto characters = geo::LocatorOf({lat, lon});
    if (!characters)
        return;
    const std::size_t length = std::min(locator.length(), characters->size());
    locator.replace(0, length, wxString::FromAscii(characters->data(), length));
}

int Configuration::LocatorToLatLon(double& lat, double& lon, wxString& locator)
{
    if (locator.length() == 4)
        locator += "LL";
    // Anything outside ASCII becomes a character that no locator holds.
    const auto characters = locator.ToAscii('?');
    const auto centre = geo::CentreOfLocator({characters.data(), characters.length()});
    if (!centre)
        return 0;
    lat = centre->lat;
    lon = centre->lon;
    return 1;
}

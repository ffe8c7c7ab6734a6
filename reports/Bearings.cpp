#include "reports/Bearings.h"

#include "config/Configuration.h"
#include "geo/Angles.h"
#include "geo/GreylineRows.h"
#include "geo/MapFrame.h"
#include "geo/SunCalc.h"
#include "render/Greyline.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace reports
{
namespace
{
constexpr double kMillimetre = 0.001;
constexpr double kCircumferenceKm = 2 * AzimuthalProjection::kAntipodeDistance / 1000;

constexpr std::array kColumns{
    "name",        "latitude_deg",          "longitude_deg",         "locator",           "distance_km",
    "bearing_deg", "long_path_distance_km", "long_path_bearing_deg", "sun_elevation_deg", "light"};

std::string Line(const std::array<std::string, kColumns.size()>& fields)
{
    std::string line = fields.front();
    for (std::size_t i = 1; i < fields.size(); ++i)
        line += "," + fields[i];
    return line + "\r\n";
}

std::string Quoted(const wxString& text)
{
    if (text.find_first_of(",\"\r\n") == wxString::npos)
        return text.utf8_string();
    wxString doubled = text;
    doubled.Replace("\"", "\"\"");
    return "\"" + doubled.utf8_string() + "\"";
}

std::string Decimals(int count, double number)
{
    return wxString::Format("%.*f", count, number).utf8_string();
}

geo::RangeAndBearing SeenFrom(const AzimuthalProjection& station, geo::LatLon place)
{
    constexpr double kAtAntipode = -1.0 + 1e-12; // within ten metres
    const double lat = place.lat * geo::kRadPerDeg;
    const double lon = place.lon * geo::kRadPerDeg;
    const double cosine =
        station.sinLat0 * std::sin(lat) + station.cosLat0 * std::cos(lat) * std::cos(lon - station.centreLon);
    if (cosine < kAtAntipode)
        return {AzimuthalProjection::kAntipodeDistance / 1000, 0.0};
    geo::MapPoint point{};
    if (station.Forward(point.x, point.y, lon, lat) < 1)
        return {0.0, 0.0};
    // Rounding must not turn due north into 360 degrees.
    if (std::abs(point.x) < kMillimetre)
        point.x = 0.0;
    return geo::RangeAndBearingOf(point);
}

double Opposite(double bearingDeg)
{
    return bearingDeg < 180 ? bearingDeg + 180 : bearingDeg - 180;
}

struct Light
{
    const char* name;
    double sunElevationDeg;
};

Light LightAt(geo::LatLon place, const UtcTime& time, const GreyzoneSettings& greyzone)
{
    static constexpr std::array kNames{"day", "grey", "night"}; // in the order of geo::Daylight
    const double day = SunCalc::DayNumber(time.day, time.month + 1, time.year, time.hour, time.minute, time.second);
    const SunCalc::Result sun = SunCalc::Position(day, place.lon, place.lat);
    const geo::GreylineShade shade = render::ShadeOf(greyzone, sun.SubSolarPoint());
    const geo::Daylight daylight =
        shade.DaylightAt(shade.SunDistanceDeg({place.lat * geo::kRadPerDeg, place.lon * geo::kRadPerDeg}));
    return {kNames[static_cast<std::size_t>(daylight)], sun.trueElevation};
}

std::string LocatorAt(geo::LatLon place)
{
    wxString locator = "AA11RR";
    Configuration::LatLonToLocator(locator, place.lat, place.lon);
    return locator.utf8_string();
}
} // namespace

Bearings::Bearings(const Settings& settings) : m_greyzone(settings.greyzone)
{
    m_projection.Init(0, 0, std::clamp(settings.centreLat, -90.0, 90.0), std::clamp(settings.centreLon, -180.0, 180.0));
}

std::string Bearings::Header()
{
    std::array<std::string, kColumns.size()> names;
    std::ranges::copy(kColumns, names.begin());
    return Line(names);
}

std::string Bearings::Row(const Place& place, const UtcTime& time) const
{
    const auto [distanceKm, bearingDeg] = SeenFrom(m_projection, place.at);
    const Light light = LightAt(place.at, time, m_greyzone);
    return Line({Quoted(place.name), Decimals(4, place.at.lat), Decimals(4, place.at.lon), LocatorAt(place.at),
                 Decimals(1, distanceKm), Decimals(1, bearingDeg), Decimals(1, kCircumferenceKm - distanceKm),
                 Decimals(1, Opposite(bearingDeg)), Decimals(2, light.sunElevationDeg), light.name});
}

std::string Bearings::EmptyRow(const wxString& text)
{
    return Line({Quoted(text)});
}
} // namespace reports

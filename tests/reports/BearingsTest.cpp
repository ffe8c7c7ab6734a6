#include "reports/Bearings.h"

#include "config/Configuration.h"
#include "geo/Angles.h"
#include "render/MapView.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <wx/tokenzr.h>

#include <cmath>
#include <random>

namespace
{
using reports::Bearings;
using testing::ElementsAre;
using testing::EndsWith;
using testing::StartsWith;

constexpr UtcTime kJuneNoon{2026, 5, 21, 12, 0, 0};
constexpr UtcTime kSpringNoon{2026, 2, 20, 12, 0, 0};

Settings At(double lat, double lon)
{
    Settings settings = DefaultSettings();
    settings.centreLat = lat;
    settings.centreLon = lon;
    return settings;
}

std::vector<std::string> FieldsOf(const std::string& line)
{
    std::vector<std::string> fields;
    for (const wxString& field : wxStringTokenize(line, ",\r\n", wxTOKEN_RET_EMPTY))
        fields.push_back(field.utf8_string());
    return fields;
}

std::vector<std::string> RowOf(const Settings& settings, geo::LatLon place, const UtcTime& time = kSpringNoon)
{
    return FieldsOf(Bearings(settings).Row({"x", place}, time));
}

TEST(Bearings, HaveAsManyNamesAsColumns)
{
    EXPECT_EQ(Bearings::Header(),
              "name,latitude_deg,longitude_deg,locator,distance_km,bearing_deg,long_path_distance_km,"
              "long_path_bearing_deg,sun_elevation_deg,light\r\n");
    EXPECT_EQ(Bearings::EmptyRow("a place"), "a place,,,,,,,,,\r\n");
    EXPECT_THAT(Bearings(At(0, 0)).Row({"x", {0, 0}}, kSpringNoon), EndsWith(",day\r\n"));
}

TEST(Bearings, GoEastAlongTheEquator)
{
    // A quarter of the way round a sphere of 6370997 m.
    const auto row = RowOf(At(0, 0), {0, 90});
    EXPECT_EQ(row[4], "10007.5");
    EXPECT_EQ(row[5], "90.0");
    EXPECT_EQ(row[6], "30022.6");
    EXPECT_EQ(row[7], "270.0");
    EXPECT_EQ(RowOf(At(0, 0), {0, -90})[7], "90.0");
    EXPECT_EQ(RowOf(At(0, 0), {-30, 0})[5], "180.0");
    EXPECT_EQ(RowOf(At(0, 0), {-30, 0})[7], "0.0");
}

TEST(Bearings, AreNothingAtTheStation)
{
    const auto row = RowOf(At(55.6875, 12.625), {55.6875, 12.625});
    EXPECT_THAT(row, testing::Contains("40030.2"));
    EXPECT_THAT(std::vector(row.begin(), row.begin() + 6),
                ElementsAre("x", "55.6875", "12.6250", "JO65HQ", "0.0", "0.0"));
    EXPECT_EQ(row[7], "180.0");
}

TEST(Bearings, ReachTheAntipodeAnyWay)
{
    for (const geo::LatLon station : {geo::LatLon{55.6875, 12.625}, {0, 0}, {90, 0}, {-90, 33}})
    {
        const geo::LatLon antipode{-station.lat, station.lon > 0 ? station.lon - 180 : station.lon + 180};
        const auto row = RowOf(At(station.lat, station.lon), antipode);
        EXPECT_EQ(row[4], "20015.1") << station.lat;
        EXPECT_EQ(row[5], "0.0") << station.lat;
        EXPECT_EQ(row[6], "20015.1") << station.lat;
    }
}

/// Whether rounding to one decimal could go either way within the error of the projection.
bool IsOnTheEdge(double number, double error)
{
    return std::abs(std::abs(std::remainder(number, 0.1)) - 0.05) < error;
}

TEST(Bearings, AreThoseOfThePointerReadOut)
{
    std::mt19937 random(20261121);
    std::uniform_int_distribution pixel(0, 899);
    int compared = 0;
    for (const geo::LatLon station : {geo::LatLon{55.6875, 12.625}, {-33.9, 151.2}, {0, 0}, {71.2, -156.8}})
    {
        const Settings settings = At(station.lat, station.lon);
        const MapView view = render::MakeMapView(settings, 17);
        for (int i = 0; i < 1000; ++i)
        {
            const geo::MapPoint point = view.frame.PixelToMap(pixel(random), pixel(random));
            const auto [km, bearing] = geo::RangeAndBearingOf(point);
            geo::LatLon place{};
            // Up to 19000 km the way back is good to 3 m.
            if (view.projection.Inverse(place.lon, place.lat, point.x, point.y) < 0 || km > 19000 ||
                IsOnTheEdge(km, 0.003) || IsOnTheEdge(bearing, 0.003 / km * geo::kDegPerRad * 2))
                continue;
            place = {place.lat * geo::kDegPerRad, place.lon * geo::kDegPerRad};
            const auto row = RowOf(settings, place);
            wxString locator = "AA11RR";
            Configuration::LatLonToLocator(locator, place.lat, place.lon);
            EXPECT_EQ(row[3], locator.utf8_string());
            EXPECT_EQ(row[4], wxString::Format("%.1f", km).utf8_string()) << place.lat << " " << place.lon;
            EXPECT_EQ(row[5], wxString::Format("%.1f", bearing).utf8_string()) << place.lat << " " << place.lon;
            ++compared;
        }
    }
    EXPECT_GT(compared, 2000);
}

TEST(Bearings, TellTheLightByTheWidthOfTheGreyzone)
{
    // At noon of the solstice the sun is 90 degrees from places on the polar circles at longitude 0, within a degree.
    Settings settings = At(0, 0);
    settings.greyzone.widthDeg = 6;
    EXPECT_EQ(RowOf(settings, {0, 0}, kJuneNoon)[9], "day");
    EXPECT_EQ(RowOf(settings, {-66, 0}, kJuneNoon)[9], "grey");
    EXPECT_EQ(RowOf(settings, {-70, 0}, kJuneNoon)[9], "night");
    EXPECT_EQ(RowOf(settings, {-63, 0}, kJuneNoon)[9], "day");
    settings.greyzone.widthDeg = 20;
    EXPECT_EQ(RowOf(settings, {-70, 0}, kJuneNoon)[9], "grey");
}

TEST(Bearings, GiveTheSunWithoutRefraction)
{
    // The sun of the solstice stands at 23.44 north; at noon its height is 90 - |lat - 23.44|, within half a degree for
    // the equation of time.
    for (const double lat : {-80.0, -66.0, -40.0, 0.0, 60.0})
        EXPECT_NEAR(std::stod(RowOf(At(0, 0), {lat, 0}, kJuneNoon)[8]), 90 - std::abs(lat - 23.44), 0.5) << lat;
    EXPECT_NEAR(std::stod(RowOf(At(0, 0), {0, 180}, kSpringNoon)[8]), -88, 2);
}

TEST(Bearings, QuoteWhatWouldEndAField)
{
    const Bearings bearings(At(0, 0));
    EXPECT_THAT(bearings.Row({"Saint-Denis, \"Reunion\"", {-20.9, 55.5}}, kJuneNoon),
                StartsWith("\"Saint-Denis, \"\"Reunion\"\"\",-20.9000,"));
    EXPECT_THAT(bearings.Row({wxString::FromUTF8("Malmö"), {55.6, 13}}, kJuneNoon), StartsWith("Malmö,"));
}

TEST(Bearings, TakeTheNearestPossibleStation)
{
    EXPECT_EQ(RowOf(At(1000, 0), {0, 0})[4], "10007.5");
}
} // namespace

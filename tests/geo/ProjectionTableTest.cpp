#include "geo/Angles.h"
#include "geo/AzimuthalProjection.h"
#include "tests/geo/Centred.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <random>

namespace
{
constexpr double kRadius = AzimuthalProjection::kEarthRadius;

// Worked out beforehand in the same steps by another program. Only additions and multiplications: exactly equal.
TEST(AdjustLonTable, HasEveryStepForHugeAngles)
{
    constexpr std::array<double, 2> kWrapped[] = {
        {4.0, -2.2831853071795862},
        {6.283185307179586, 0.0},
        {6.3, 0.01681469282041359},
        {9.0, 2.7168146928204138},
        {-9.3, -3.0168146928204145},
        {27.25, 2.117258771281655},
        {-46748121.036706954, 2.869844068084852},
        {12000000000.0, 0.6455593109130859},
        {13493037694.468922, 2.513273239135742},
        {13493037700.123789, 1.8849563598632812},
        {-13493037708.29193, 2.513273843118938},
        {50000000000.0, -2.5461533705340784},
        {-23667946184.532574, -0.6366329193115234},
        {628357295688389.2, -1.0014734307872217},
        {2.5e+19, -3.0528138319598597},
        {2.8976077801274503e+19, -0.35127383867372686},
        {2.8976077809370325e+19, 0.9113407135009766},
        {-2.897607782421267e+19, -0.8930368423461914},
        {4.1e+19, 3.0599164962768555},
        {-2.3446159700869647e+23, 1.4223836104022425},
        {5.07734208715691e+23, 2.7843828201293945},
        {6.222565313900891e+28, 3.0684566497802734},
        {-6.222565317088259e+28, 1.945063892995016},
        {6.222565319985867e+28, 6.222565319985867e+28},
        {6.222565322883474e+28, 6.222565322883474e+28},
        {-1e+30, -1e+30},
    };
    for (const auto& [angle, wrapped] : kWrapped)
        EXPECT_EQ(AdjustLon(angle), wrapped) << angle;
}

TEST(ProjectionTable, IsCentredAtZeroBeforeItIsToldACentre)
{
    const AzimuthalProjection fresh;
    const AzimuthalProjection told = Centred(0.0, 0.0);
    EXPECT_EQ(fresh.sinLat0, told.sinLat0);
    EXPECT_EQ(fresh.cosLat0, told.cosLat0);
    EXPECT_EQ(fresh.centreLat, told.centreLat);
    EXPECT_EQ(fresh.centreLon, told.centreLon);
    EXPECT_EQ(fresh.centreLatDeg, told.centreLatDeg);
    EXPECT_EQ(fresh.centreLonDeg, told.centreLonDeg);
    EXPECT_EQ(fresh.falseEasting, 0.0);
    EXPECT_EQ(fresh.falseNorthing, 0.0);
}

struct Vector
{
    double x, y, z;
};

Vector UnitVectorOf(double lat, double lon)
{
    return {std::cos(lat) * std::cos(lon), std::cos(lat) * std::sin(lon), std::sin(lat)};
}

double Dot(const Vector& a, const Vector& b)
{
    return a.x * b.x + a.y * b.y + a.z * b.z;
}

// Another way to the same point: components of the place along the station's east, north and up.
TEST(AzimuthalProjectionForward, AgreesWithVectorsAndAddsTheOffsets)
{
    std::mt19937_64 random(11);
    std::uniform_real_distribution<double> unit(-1.0, 1.0);
    for (int i = 0; i < 20000; ++i)
    {
        const double lat0 = 1.57 * unit(random);
        const double lon0 = geo::kPi * unit(random);
        const double lat = 1.57 * unit(random);
        const double lon = geo::kPi * unit(random);
        const int easting = static_cast<int>(5e6 * unit(random));
        const int northing = static_cast<int>(5e6 * unit(random));

        const Vector place = UnitVectorOf(lat, lon);
        const double east = Dot(place, {-std::sin(lon0), std::cos(lon0), 0.0});
        const double north = Dot(place, UnitVectorOf(lat0 + geo::kPi / 2, lon0));
        const double up = Dot(place, UnitVectorOf(lat0, lon0));
        const double z = std::atan2(std::hypot(east, north), up);
        if (z < 0.001 || z > 3.14)
            continue;
        const double bearing = std::atan2(east, north);

        AzimuthalProjection projection;
        projection.Init(easting, northing, lat0 * 180.0 / geo::kPi, lon0 * 180.0 / geo::kPi);
        double x = 0.0;
        double y = 0.0;
        const std::int64_t distance = projection.Forward(x, y, lon, lat);
        ASSERT_NEAR(x, z * kRadius * std::sin(bearing) + easting, 1.0);
        ASSERT_NEAR(y, z * kRadius * std::cos(bearing) + northing, 1.0);
        ASSERT_NEAR(static_cast<double>(distance), std::hypot(x, y) - 0.5, 0.51);

        double backLon = 0.0;
        double backLat = 0.0;
        const double dx = 3000.0 * unit(random);
        const std::int64_t range = projection.Inverse(backLon, backLat, dx + easting, 4000.0 + northing);
        ASSERT_NEAR(static_cast<double>(range), std::hypot(dx, 4000.0) - 0.5, 0.51);
        double shiftedX = 0.0;
        double shiftedY = 0.0;
        projection.Forward(shiftedX, shiftedY, backLon, backLat);
        ASSERT_NEAR(shiftedX, dx + easting, 3.0);
        ASSERT_NEAR(shiftedY, 4000.0 + northing, 3.0);
    }
}

struct LonLat
{
    double lon;
    double lat;
};

LonLat PlaceAt(const AzimuthalProjection& projection, double x, double y)
{
    LonLat place{9.0, 9.0};
    projection.Inverse(place.lon, place.lat, x, y);
    return place;
}

TEST(ProjectionTable, TakesAThousandthOfAMillimetreForTheStationItself)
{
    const AzimuthalProjection projection = Centred(10.0, 20.0);
    for (const auto& [x, y] : {std::array{0.0, 0.95e-6}, {0.0, -0.95e-6}, {0.95e-6, 0.0}, {1e-6, 0.0}, {0.0, 1e-6}})
    {
        EXPECT_EQ(PlaceAt(projection, x, y).lat, projection.centreLat) << x << '/' << y;
        EXPECT_EQ(PlaceAt(projection, x, y).lon, projection.centreLon) << x << '/' << y;
    }
    EXPECT_NE(PlaceAt(projection, 0.0, 1.1e-6).lat, projection.centreLat);
    EXPECT_NE(PlaceAt(projection, 1.1e-6, 0.0).lon, projection.centreLon);
}

TEST(ProjectionTable, CountsAsAPoleWithinAMillionthOfARadian)
{
    for (const double pole : {geo::kPi / 2, -geo::kPi / 2})
        for (const double away : {1e-7, 0.95e-6, 1.05e-6, 1e-4})
        {
            AzimuthalProjection projection = Centred(0.0, 0.0);
            projection.centreLat = std::copysign(geo::kPi / 2 - away, pole);
            EXPECT_EQ(projection.IsPolar(), away < 1e-6) << pole << ' ' << away;
        }
}

// Just beyond a pole on the station's own meridian the longitude is that of the other side, but not within six metres
// of the pole and a thousandth of a millimetre of the meridian.
TEST(ProjectionTable, KeepsTheStationsLongitudeOnItsMeridianCloseToThePole)
{
    const AzimuthalProjection projection = Centred(60.0, 10.0);
    const double pole = geo::kPi / 6 * kRadius;
    const double beyond = 1e-6 / 0.5 * kRadius; // where the cosine of the way has changed by a millionth
    for (const double x : {0.0, 0.95e-6, -0.95e-6})
        EXPECT_EQ(PlaceAt(projection, x, pole + 0.9 * beyond).lon, projection.centreLon) << x;
    const auto turned = [&](double x, double y)
    { return std::fabs(PlaceAt(projection, x, y).lon - projection.centreLon); };
    for (const double x : {0.0, 0.95e-6})
        EXPECT_NEAR(turned(x, pole + 1.1 * beyond), geo::kPi, 1e-6) << x;
    for (const double x : {1e-6, 1.1e-6, -1e-6, -1.1e-6})
        EXPECT_NEAR(turned(x, pole + 0.9 * beyond), geo::kPi, 1e-6) << x;
}

TEST(ProjectionTable, KnowsTheAntipodeToTheCentimetre)
{
    const AzimuthalProjection projection = Centred(10.0, 20.0);
    double lon = 0.0;
    double lat = 0.0;
    EXPECT_EQ(projection.Inverse(lon, lat, 20015077.36, 0.0), 20015077);
    EXPECT_EQ(projection.Inverse(lon, lat, 20015077.371242613, 0.0), 20015077);
    EXPECT_EQ(projection.Inverse(lon, lat, 20015077.38, 0.0), -1);
}
} // namespace

#include "geo/AzimuthalProjection.h"
#include "geo/Angles.h"
#include "tests/geo/Centred.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

namespace
{
constexpr double kPi = geo::kPi;
constexpr double kDegrees = 180.0 / kPi;

struct Position
{
    double lonDeg;
    double latDeg;
    std::int64_t distance;
};

Position InverseDeg(const AzimuthalProjection& projection, double x, double y)
{
    double lon = 0.0;
    double lat = 0.0;
    const std::int64_t distance = projection.Inverse(lon, lat, x, y);
    return {lon * kDegrees, lat * kDegrees, distance};
}

TEST(AdjustLon, WrapsIntoOneTurn)
{
    EXPECT_NEAR(AdjustLon(3.5 * kPi), -0.5 * kPi, 1e-14);
    EXPECT_NEAR(AdjustLon(-3.5 * kPi), 0.5 * kPi, 1e-14);
    EXPECT_NEAR(AdjustLon(1.5 * kPi), -0.5 * kPi, 1e-15);
    EXPECT_NEAR(AdjustLon(201.0 * kPi), kPi, 1e-12);
}

TEST(AdjustLon, LeavesBothEndsAlone)
{
    EXPECT_EQ(AdjustLon(-kPi), -kPi);
    EXPECT_EQ(AdjustLon(kPi), kPi);
    EXPECT_EQ(AdjustLon(0.0), 0.0);
}

TEST(AdjustLon, EndsForHugeAnglesAndNotANumber)
{
    EXPECT_LE(std::fabs(AdjustLon(1e12)), kPi);
    EXPECT_LE(std::fabs(AdjustLon(-1e25)), 1e25);
    EXPECT_TRUE(std::isfinite(AdjustLon(1e300)));
    EXPECT_TRUE(std::isnan(AdjustLon(std::nan(""))));
}

TEST(AzimuthalProjectionInit, KeepsTheCentreAsGivenAndInRadians)
{
    const AzimuthalProjection projection = Centred(55.6875, 12.625);
    EXPECT_EQ(projection.centreLatDeg, 55.6875);
    EXPECT_EQ(projection.centreLonDeg, 12.625);
    EXPECT_DOUBLE_EQ(projection.centreLat, 55.6875 * 3600 * 4.848136811095359e-6);
    EXPECT_DOUBLE_EQ(projection.sinLat0, std::sin(projection.centreLat));
    EXPECT_DOUBLE_EQ(projection.cosLat0, std::cos(projection.centreLat));
}

// Snyder, table 30: rectangular coordinates for the unit sphere, equatorial aspect, centre at 0/0.
TEST(AzimuthalProjectionInverse, AgreesWithSnydersTable)
{
    const double radius = AzimuthalProjection::kEarthRadius;
    const Position position = InverseDeg(Centred(0.0, 0.0), 0.62896 * radius, 0.56493 * radius);
    EXPECT_NEAR(position.lonDeg, 40.0, 0.001); // five printed digits are 64 m
    EXPECT_NEAR(position.latDeg, 30.0, 0.001);
}

TEST(AzimuthalProjectionForward, AgreesWithSnydersTable)
{
    double x = 0.0;
    double y = 0.0;
    Centred(0.0, 0.0).Forward(x, y, 40.0 / kDegrees, 30.0 / kDegrees);
    EXPECT_NEAR(x / AzimuthalProjection::kEarthRadius, 0.62896, 0.000005);
    EXPECT_NEAR(y / AzimuthalProjection::kEarthRadius, 0.56493, 0.000005);
}

TEST(AzimuthalProjectionForward, HasNoDistanceAtTheCentre)
{
    // At this centre the cosine of the distance is exactly 1, so the formula divides 0 by 0.
    const AzimuthalProjection projection = Centred(0.0, 0.0);
    double x = 0.0;
    double y = 0.0;
    EXPECT_EQ(projection.Forward(x, y, projection.centreLon, projection.centreLat),
              std::numeric_limits<std::int64_t>::min());
}

TEST(AzimuthalProjectionForward, OfTheStationIsNeverDrawn)
{
    for (const double lat : {55.6875, -33.5, 90.0, -90.0, 0.0, 12.34})
    {
        const AzimuthalProjection projection = Centred(lat, 12.625);
        double x = 0.0;
        double y = 0.0;
        EXPECT_LT(projection.Forward(x, y, projection.centreLon, projection.centreLat), 1) << lat;
    }
}

TEST(AzimuthalProjectionForward, PutsNorthUpAndEastRight)
{
    const AzimuthalProjection projection = Centred(0.0, 0.0);
    double x = 0.0;
    double y = 0.0;
    const std::int64_t quarter = projection.Forward(x, y, 0.0, kPi / 2);
    EXPECT_NEAR(x, 0.0, 1.0);
    EXPECT_GT(y, 1e7);
    EXPECT_EQ(quarter, static_cast<std::int64_t>(kPi / 2 * AzimuthalProjection::kEarthRadius));
    projection.Forward(x, y, kPi / 2, 0.0);
    EXPECT_GT(x, 1e7);
    EXPECT_NEAR(y, 0.0, 1.0);
}

TEST(AzimuthalProjectionInverse, OfTheCentreIsTheStation)
{
    const AzimuthalProjection projection = Centred(55.6875, 12.625);
    double lon = 0.0;
    double lat = 0.0;
    EXPECT_EQ(projection.Inverse(lon, lat, 0.0, 0.0), 0);
    EXPECT_EQ(lon, projection.centreLon);
    EXPECT_EQ(lat, projection.centreLat);
}

TEST(AzimuthalProjectionInverse, BeyondTheAntipodeReturnsMinusOneAndChangesNothing)
{
    const AzimuthalProjection projection = Centred(55.6875, 12.625);
    double lon = 0.25;
    double lat = -0.5;
    EXPECT_EQ(projection.Inverse(lon, lat, 0.0, 20015077.4), -1);
    EXPECT_EQ(lon, 0.25);
    EXPECT_EQ(lat, -0.5);
}

TEST(AzimuthalProjectionInverse, NearTheRimIsTheAntipode)
{
    const Position position = InverseDeg(Centred(55.6875, 12.625), 0.0, 20015077.0);
    EXPECT_EQ(position.distance, 20015077);
    EXPECT_NEAR(position.latDeg, -55.6875, 1e-4);
    EXPECT_NEAR(std::fabs(position.lonDeg - 12.625), 180.0, 1e-3);
}

TEST(AzimuthalProjectionInverse, TruncatesTheDistance)
{
    EXPECT_EQ(InverseDeg(Centred(10.0, 20.0), 3.0, 4.9).distance, 5);
    EXPECT_EQ(InverseDeg(Centred(10.0, 20.0), 0.5, 0.5).distance, 0);
}

TEST(AzimuthalProjectionInverse, AtTheNorthPoleHasItsLongitudeDownTheMap)
{
    const AzimuthalProjection projection = Centred(90.0, 12.625);
    EXPECT_NEAR(InverseDeg(projection, 0.0, -1e6).lonDeg, 12.625, 1e-9);
    EXPECT_NEAR(InverseDeg(projection, 1e6, 0.0).lonDeg, 102.625, 1e-9);
}

TEST(AzimuthalProjectionInverse, AtTheSouthPoleHasItsLongitudeUpTheMap)
{
    const AzimuthalProjection projection = Centred(-90.0, 12.625);
    EXPECT_NEAR(InverseDeg(projection, 0.0, 1e6).lonDeg, 12.625, 1e-9);
    EXPECT_NEAR(InverseDeg(projection, 1e6, 0.0).lonDeg, 102.625, 1e-9);
}

TEST(AzimuthalProjectionInverse, OnTheCentralMeridianKeepsItsLongitudeAcrossThePole)
{
    const AzimuthalProjection projection = Centred(60.0, 10.0);
    EXPECT_NEAR(InverseDeg(projection, 0.0, 1e6).lonDeg, 10.0, 1e-9);
    EXPECT_NEAR(InverseDeg(projection, 0.0, -1e6).lonDeg, 10.0, 1e-9);
    EXPECT_NEAR(std::fabs(InverseDeg(projection, 0.0, 5e6).lonDeg), 170.0, 1e-9);
}

TEST(AzimuthalProjection, ReturnsWithinThreeMetresUpTo19000Km)
{
    std::mt19937_64 random(20261121);
    std::uniform_real_distribution<double> unit(-1.0, 1.0);
    for (int i = 0; i < 200000; ++i)
    {
        const AzimuthalProjection projection = Centred(90.0 * unit(random), 180.0 * unit(random));
        const double range = 19000000.0 * std::sqrt(std::fabs(unit(random))) + 1.0;
        const double bearing = kPi * unit(random);
        const double x = range * std::sin(bearing);
        const double y = range * std::cos(bearing);
        if (std::hypot(x, y) >= 19000000.0)
            continue;
        double lon = 0.0;
        double lat = 0.0;
        double backX = 0.0;
        double backY = 0.0;
        projection.Inverse(lon, lat, x, y);
        projection.Forward(backX, backY, lon, lat);
        ASSERT_NEAR(std::hypot(backX - x, backY - y), 0.0, 3.0)
            << "centre " << projection.centreLatDeg << '/' << projection.centreLonDeg << ", point " << x << '/' << y;
    }
}

// An independent way to the same place: rotate the unit vector of the station.
TEST(AzimuthalProjectionInverse, AgreesWithAVectorRotation)
{
    std::mt19937_64 random(7);
    std::uniform_real_distribution<double> unit(-1.0, 1.0);
    for (int i = 0; i < 20000; ++i)
    {
        const double lat0 = kPi / 2 * 0.99 * unit(random);
        const double lon0 = kPi * unit(random);
        const AzimuthalProjection projection = Centred(lat0 * kDegrees, lon0 * kDegrees);
        const double z = 0.001 + 3.0 * std::fabs(unit(random));
        const double bearing = kPi * unit(random);
        const double up = std::cos(z);
        const double north = std::sin(z) * std::cos(bearing);
        const double east = std::sin(z) * std::sin(bearing);
        const double px = up * std::cos(lat0) - north * std::sin(lat0);
        const double pz = up * std::sin(lat0) + north * std::cos(lat0);
        const double lat = std::atan2(pz, std::hypot(px, east));
        const double lon = lon0 + std::atan2(east, px);

        const double metres = z * AzimuthalProjection::kEarthRadius;
        double gotLon = 0.0;
        double gotLat = 0.0;
        projection.Inverse(gotLon, gotLat, metres * std::sin(bearing), metres * std::cos(bearing));
        ASSERT_NEAR(gotLat, lat, 1e-6);
        ASSERT_NEAR(std::remainder(gotLon - lon, 2 * kPi) * std::cos(lat), 0.0, 1e-6);
    }
}
} // namespace

#include "rotator/Azimuth.h"

#include <gtest/gtest.h>

namespace
{
using rotator::AzimuthForBearing;
using rotator::AzimuthRange;

constexpr AzimuthRange kOneTurn{0, 360};
constexpr AzimuthRange kAroundNorth{-180, 180};
constexpr AzimuthRange kOverlapping{0, 450};

TEST(RotatorAzimuth, IsABearing)
{
    EXPECT_DOUBLE_EQ(rotator::BearingOfAzimuth(41.5), 41.5);
    EXPECT_DOUBLE_EQ(rotator::BearingOfAzimuth(-90), 270);
    EXPECT_DOUBLE_EQ(rotator::BearingOfAzimuth(360), 0);
    EXPECT_DOUBLE_EQ(rotator::BearingOfAzimuth(440), 80);
    EXPECT_DOUBLE_EQ(rotator::BearingOfAzimuth(-450), 270);
    EXPECT_DOUBLE_EQ(rotator::BearingOfAzimuth(-1e-20), 0); // never a whole turn
}

TEST(RotatorAzimuth, OfABearingLiesInTheRange)
{
    EXPECT_DOUBLE_EQ(AzimuthForBearing(221.5, kOneTurn, 0), 221.5);
    EXPECT_DOUBLE_EQ(AzimuthForBearing(221.5, kAroundNorth, 0), -138.5);
    EXPECT_DOUBLE_EQ(AzimuthForBearing(180, kAroundNorth, 100), 180);
    EXPECT_DOUBLE_EQ(AzimuthForBearing(180, kAroundNorth, -100), -180);
    EXPECT_DOUBLE_EQ(AzimuthForBearing(180, kAroundNorth, 0), 180);
}

TEST(RotatorAzimuth, OfABearingIsTheNearestOne)
{
    EXPECT_DOUBLE_EQ(AzimuthForBearing(41.5, kOverlapping, 10), 41.5);
    EXPECT_DOUBLE_EQ(AzimuthForBearing(41.5, kOverlapping, 350), 401.5);
    EXPECT_DOUBLE_EQ(AzimuthForBearing(41.5, kOverlapping, std::nullopt), 41.5);
    EXPECT_DOUBLE_EQ(AzimuthForBearing(350, {-180, 450}, 5), -10);
    EXPECT_DOUBLE_EQ(AzimuthForBearing(359, kOneTurn, 1), 359); // no way through the stop
}

TEST(RotatorAzimuth, OutsideEveryRangeIsLeftToTheRotator)
{
    EXPECT_DOUBLE_EQ(AzimuthForBearing(300, {0, 270}, 10), 300);
}

TEST(RotatorAzimuth, AnglesAreMeasuredTheShortWay)
{
    EXPECT_DOUBLE_EQ(rotator::AngleBetween(350, 10), 20);
    EXPECT_DOUBLE_EQ(rotator::AngleBetween(10, 350), 20);
    EXPECT_DOUBLE_EQ(rotator::AngleBetween(0, 180), 180);
}

TEST(RotatorAzimuth, BearingsAreRoundedToTenthsBelowAWholeTurn)
{
    EXPECT_DOUBLE_EQ(rotator::RoundedBearing(41.46), 41.5);
    EXPECT_DOUBLE_EQ(rotator::RoundedBearing(359.96), 0);
    EXPECT_DOUBLE_EQ(rotator::LongPath(41.5), 221.5);
    EXPECT_DOUBLE_EQ(rotator::LongPath(221.5), 41.5);
    EXPECT_DOUBLE_EQ(rotator::LongPath(180), 0);
}
} // namespace

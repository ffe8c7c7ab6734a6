#include "geo/MapFrame.h"

#include <gtest/gtest.h>

#include <limits>

namespace
{
TEST(MapFrame, HasAScaleBeforeItHasASize)
{
    EXPECT_EQ(MapFrame().mapSize, 0);
    EXPECT_EQ(MapFrame().MapToPixel(7.0, -3.0), (geo::Pixel{7, 3}));
}

TEST(MapFrame, HasAWholeNumberOfMetresAPixel)
{
    const MapFrame frame(900, 20000000, 10);
    EXPECT_EQ(frame.metresPerPixel, 45454.0);
    EXPECT_EQ(frame.half, 450);
}

TEST(MapFrame, DividesTheRadiusByTheWholePixelsBetweenTheMargins)
{
    EXPECT_EQ(MapFrame(901, 20000000, 7).metresPerPixel, 45146.0); // 443 pixels
    EXPECT_EQ(MapFrame(900, 20000000, 448).metresPerPixel, 10000000.0);
    EXPECT_EQ(MapFrame(900, 20000000, 449).metresPerPixel, 20000000.0);
    const MapFrame frame(901, 12345678, 7);
    EXPECT_EQ(frame.mapSize, 901);
    EXPECT_EQ(frame.mapRadius, 12345678);
    EXPECT_EQ(frame.mapMargin, 7);
}

TEST(MapFrame, LeavesADiscOfOnePixelWhenTheMarginTakesAll)
{
    EXPECT_EQ(MapFrame(100, 20000000, 50).metresPerPixel, 20000000.0);
    EXPECT_EQ(MapFrame(100, 20000000, 500).metresPerPixel, 20000000.0);
}

TEST(MapFrame, PutsTheStationOfAnOddPictureInItsMiddle)
{
    const MapFrame frame(901, 20000000, 1);
    EXPECT_EQ(frame.half, 450);
    EXPECT_EQ(frame.MapToPixel(0.0, 0.0), (geo::Pixel{450, 450}));
}

TEST(MapFrame, TruncatesPixelsTowardZero)
{
    const MapFrame frame(900, 20000000, 10);
    const double scale = frame.metresPerPixel;
    EXPECT_EQ(frame.MapToPixel(-0.7 * scale, 0.0), (geo::Pixel{449, 450}));
    EXPECT_EQ(frame.MapToPixel(-1.2 * scale, 0.0), (geo::Pixel{448, 450}));
    EXPECT_EQ(frame.MapToPixel(0.7 * scale, -0.7 * scale), (geo::Pixel{450, 450}));
    EXPECT_EQ(frame.MapToPixel(-450.7 * scale, 450.7 * scale), (geo::Pixel{0, 0}));
    EXPECT_EQ(frame.MapToPixel(-451.2 * scale, 451.2 * scale), (geo::Pixel{-1, -1}));
}

TEST(MapFrame, GivesTheSmallestPixelForPointsThatDoNotFit)
{
    const MapFrame frame(900, 20000000, 10);
    const double nan = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(frame.MapToPixel(nan, 1e300),
              (geo::Pixel{std::numeric_limits<int>::min(), std::numeric_limits<int>::min()}));
}

TEST(MapFrame, TurnsPixelsIntoMetresEastAndNorth)
{
    const MapFrame frame(900, 20000000, 10);
    const geo::MapPoint point = frame.PixelToMap(451, 452);
    EXPECT_EQ(point.x, 45454.0);
    EXPECT_EQ(point.y, -90908.0);
}

TEST(RangeAndBearing, AreZeroAtTheCentre)
{
    EXPECT_EQ(geo::RangeAndBearingOf({0.0, 0.0}).distanceKm, 0.0);
    EXPECT_EQ(geo::RangeAndBearingOf({0.0, 0.0}).bearingDeg, 0.0);
}

TEST(RangeAndBearing, BeginAtNorthOnBothSides)
{
    EXPECT_NEAR(geo::RangeAndBearingOf({1.0, 1e6}).bearingDeg, 5.7295779513e-5, 1e-12);
    EXPECT_NEAR(geo::RangeAndBearingOf({-1.0, 1e6}).bearingDeg, 360.0 - 5.7295779513e-5, 1e-10);
    EXPECT_NEAR(geo::RangeAndBearingOf({5e5, 5e5}).bearingDeg, 45.0, 1e-8);
}

TEST(RangeAndBearing, RunClockwiseFromNorth)
{
    EXPECT_EQ(geo::RangeAndBearingOf({0.0, 1000.0}).bearingDeg, 0.0);
    EXPECT_NEAR(geo::RangeAndBearingOf({1000.0, 0.0}).bearingDeg, 90.0, 1e-8);
    EXPECT_NEAR(geo::RangeAndBearingOf({0.0, -1000.0}).bearingDeg, 180.0, 1e-8);
    EXPECT_NEAR(geo::RangeAndBearingOf({-1000.0, 0.0}).bearingDeg, 270.0, 1e-8);
    EXPECT_EQ(geo::RangeAndBearingOf({-3000.0, 4000.0}).distanceKm, 5.0);
}
} // namespace

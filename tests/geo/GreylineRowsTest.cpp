#include "geo/GreylineRows.h"

#include "tests/geo/RandomMaps.h"

#include <gtest/gtest.h>

namespace
{

geo::LatLonRad Degrees(double lat, double lon)
{
    return {lat * geo::kRadPerDeg, lon * geo::kRadPerDeg};
}

// The level of a place so many degrees from a sun that stands over 0/0.
int LevelAt(geo::GreylineShade shade, double distanceDeg)
{
    shade.sun = {0.0, 0.0};
    return shade.At(Degrees(0.0, distanceDeg));
}

geo::GreylineShade Default()
{
    return {{0.0, 0.0}, 6.0, true, 60.0, 30.0};
}

std::vector<std::uint8_t> RowOf(const geo::GreylineRows& rows, const geo::MapDisc& disc, int row)
{
    return PaintedRow<std::uint8_t>(disc, [&](std::span<std::uint8_t> out) { rows.Row(row, out); });
}

void ExpectRowsLikeThePlainLoop(const geo::MapDisc& disc, const geo::GreylineShade& shade, const std::vector<int>& rows)
{
    const geo::GreylineRows plain(disc, shade, geo::InstructionSet::Plain);
    for (const int row : rows)
    {
        const auto expected = RowOf(plain, disc, row);
        for (const auto set : VectorSets())
        {
            const auto got = RowOf(geo::GreylineRows(disc, shade, set), disc, row);
            const int column = FirstDifference(got, expected);
            ASSERT_EQ(column, -1) << disc << ", row " << row << ", set " << static_cast<int>(set) << ", sun "
                                  << shade.sun.lat << '/' << shade.sun.lon << ", width " << shade.widthDeg
                                  << ", gradient " << shade.gradient << ", grey " << shade.greyPercent << ", night "
                                  << shade.nightPercent << ": " << int{got[static_cast<std::size_t>(column)]}
                                  << " instead of " << int{expected[static_cast<std::size_t>(column)]};
        }
    }
}

geo::LatLonRad RandomSun(RandomMaps& random, const AzimuthalProjection& projection)
{
    const geo::LatLonRad overhead{projection.centreLat, projection.centreLon};
    const geo::LatLonRad underfoot{-projection.centreLat, projection.centreLon + geo::kPi};
    return random.Often() ? Degrees(random.Real(-23.45, 23.45), random.Real(-360.0, 0.0))
                          : random.OneOf({overhead, underfoot, Degrees(0.0, 0.0), Degrees(90.0, 0.0),
                                          Degrees(-23.44, -180.0), geo::LatLonRad{0.1, projection.centreLon}});
}

geo::GreylineShade RandomShade(RandomMaps& random, const AzimuthalProjection& projection)
{
    geo::GreylineShade shade{};
    shade.sun = RandomSun(random, projection);
    shade.widthDeg = random.Often() ? static_cast<double>(random.Between(1, 30))
                                    : random.OneOf({0.0, -6.0, 1.0, 90.0, 179.0, 180.0, 200.0, 0.5, 1e-9, 1000.0});
    shade.gradient = random.Often();
    const auto percent = [&]
    {
        return random.Often() ? static_cast<double>(random.Between(0, 100))
                              : random.OneOf({0.0, 100.0, 50.0, 101.0, -20.0, 1000.0, 1e9, -1e9});
    };
    shade.greyPercent = percent();
    shade.nightPercent = random.Often() ? percent() : shade.greyPercent;
    return shade;
}

TEST(GreylineShade, PutsHalfOfTheGreyzoneOnEitherSideOfTheTerminator)
{
    EXPECT_EQ(LevelAt(Default(), 86.9), 255);
    EXPECT_LT(LevelAt(Default(), 89.0), 153);
    EXPECT_EQ(LevelAt(Default(), 93.1), 76);
}

TEST(GreylineShade, TellsTheBandsApart)
{
    geo::GreylineShade shade = Default();
    for (const auto& [distance, daylight] : {std::pair{0.0, geo::Daylight::Day},
                                             {86.9, geo::Daylight::Day},
                                             {87.0, geo::Daylight::Grey},
                                             {93.0, geo::Daylight::Grey},
                                             {93.1, geo::Daylight::Night},
                                             {180.0, geo::Daylight::Night}})
        EXPECT_EQ(shade.DaylightAt(distance), daylight) << distance;
    shade.widthDeg = 20;
    EXPECT_EQ(shade.DaylightAt(81), geo::Daylight::Grey);
    EXPECT_NEAR(shade.SunDistanceDeg(Degrees(0, -35)), 35, 1e-9);
    EXPECT_NEAR(shade.SunDistanceDeg(Degrees(90, 12)), 90, 1e-9);
}

TEST(GreylineShade, FallsFromTheGreyValueToTheNightValue)
{
    EXPECT_NEAR(LevelAt(Default(), 87.0001), 152, 1);
    EXPECT_EQ(LevelAt(Default(), 90.001), 114); // half way between 153 and 76.5
    EXPECT_EQ(LevelAt(Default(), 92.999), 76);
}

TEST(GreylineShade, IsFlatWithoutAGradient)
{
    geo::GreylineShade shade = Default();
    shade.gradient = false;
    for (const double distance : {87.1, 90.0, 92.9})
        EXPECT_EQ(LevelAt(shade, distance), 153) << distance;
}

TEST(GreylineShade, CountsLevelsModulo256)
{
    geo::GreylineShade shade = Default();
    shade.gradient = false;
    shade.greyPercent = 101.0; // 257.55
    shade.nightPercent = -1.0; // -2.55
    EXPECT_EQ(LevelAt(shade, 90.0), 1);
    EXPECT_EQ(LevelAt(shade, 120.0), 254);
}

TEST(GreylineShade, HasAnAnswerForEveryWidth)
{
    geo::GreylineShade shade = Default();
    shade.widthDeg = 0.0;
    EXPECT_EQ(LevelAt(shade, 89.0), 255);
    EXPECT_EQ(LevelAt(shade, 91.0), 76);
    shade.widthDeg = std::nan("");
    EXPECT_EQ(LevelAt(shade, 10.0), 76);
    shade.widthDeg = 400.0;
    shade.gradient = false;
    EXPECT_EQ(LevelAt(shade, 10.0), 153);
}

TEST(GreylineShade, IsBlackAtNightWithADarkeningOfZero)
{
    geo::GreylineShade shade = Default();
    shade.nightPercent = 0.0;
    EXPECT_EQ(LevelAt(shade, 120.0), 0);
}

TEST(GreylineRows, AreLightOutsideTheDisc)
{
    AzimuthalProjection projection;
    projection.Init(0, 0, 10.0, 20.0);
    geo::GreylineShade shade = Default();
    shade.sun = Degrees(-10.0, -160.0); // night at the station
    const geo::MapDisc disc(projection, MapFrame(200, 20000000, 1), 5000000);
    const auto row = RowOf(geo::GreylineRows(disc, shade), disc, 100);
    EXPECT_EQ(row[0], 255);
    EXPECT_EQ(row[100], 255); // the station's own pixel
    EXPECT_EQ(row[105], 76);
    EXPECT_EQ(row[199], 255);
}

TEST(GreylineRows, GiveTheLevelsOfThePlainLoopOnRandomMaps)
{
    RandomMaps random(5);
    for (int i = 0; i < 1500 && !HasFatalFailure(); ++i)
    {
        const geo::MapDisc disc = random.Disc();
        ExpectRowsLikeThePlainLoop(disc, RandomShade(random, disc.projection), random.Rows(disc));
    }
}

// With a centre that counts as a pole without being one, places do not lie as on a globe.
TEST(GreylineRows, GiveTheLevelsOfThePlainLoopNearlyAtAPole)
{
    RandomMaps random(6);
    for (int i = 0; i < 100 && !HasFatalFailure(); ++i)
    {
        AzimuthalProjection projection;
        const double offPole = random.OneOf({0.99e-6, 0.5e-6, 1e-9, 1.01e-6}) * geo::kDegPerRad;
        projection.Init(0, 0, random.OneOf({90.0 - offPole, offPole - 90.0}), random.Real(-180.0, 180.0));
        geo::GreylineShade shade = Default();
        shade.sun = {random.Real(-0.005, 0.005), random.Real(-geo::kPi, geo::kPi)};
        const geo::MapDisc disc(projection, MapFrame(4000, 100000, 1), 20000000);
        ExpectRowsLikeThePlainLoop(disc, shade, random.Rows(disc));
    }
}

TEST(GreylineRows, GoThePlainWayWithoutACentreOrASun)
{
    AzimuthalProjection projection;
    projection.Init(0, 0, std::nan(""), 20.0);
    const MapFrame frame(200, 20000000, 1);
    ExpectRowsLikeThePlainLoop({projection, frame, 20000000}, Default(), {100, 7});
    projection.Init(0, 0, 10.0, 20.0);
    for (const double angle : {std::nan(""), std::numeric_limits<double>::infinity(), 1e9})
    {
        geo::GreylineShade shade = Default();
        shade.sun = {0.1, angle};
        ExpectRowsLikeThePlainLoop({projection, frame, 20000000}, shade, {100, 7});
        shade.sun = {angle, 0.1};
        ExpectRowsLikeThePlainLoop({projection, frame, 20000000}, shade, {100, 7});
    }
}
} // namespace

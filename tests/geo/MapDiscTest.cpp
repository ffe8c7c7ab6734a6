#include "geo/MapDisc.h"

#include "tests/geo/RandomMaps.h"

#include <gtest/gtest.h>

#include <limits>

namespace
{
geo::MapDisc Disc(double lat, double lon, std::int64_t limit)
{
    AzimuthalProjection projection;
    projection.Init(0, 0, lat, lon);
    return {projection, MapFrame(900, 20000000, 10), limit};
}

TEST(MapDisc, LeavesOutTheStationAndWhatLiesAtTheLimitOrBeyond)
{
    const geo::MapDisc disc = Disc(55.6875, 12.625, 454540); // ten pixels
    EXPECT_FALSE(disc.At(450, 450));
    EXPECT_TRUE(disc.At(451, 450));
    EXPECT_TRUE(disc.At(459, 450));
    EXPECT_FALSE(disc.At(460, 450));
}

TEST(MapDisc, EndsAtTheAntipodeWhateverTheLimit)
{
    const geo::MapDisc disc = Disc(55.6875, 12.625, std::numeric_limits<std::int64_t>::max());
    EXPECT_TRUE(disc.At(450, 450 - 440));
    EXPECT_FALSE(disc.At(450, 450 - 441));
    EXPECT_EQ(disc.Reach(450), 440);
    EXPECT_FALSE(disc.At(0, 0));
}

TEST(MapDisc, IsEmptyWithoutAPositiveLimit)
{
    for (const std::int64_t limit :
         {std::numeric_limits<std::int64_t>::min(), std::int64_t{-5}, std::int64_t{0}, std::int64_t{1}})
    {
        EXPECT_FALSE(Disc(0.0, 0.0, limit).At(451, 450));
        EXPECT_EQ(Disc(0.0, 0.0, limit).Reach(450), 0);
    }
}

TEST(MapDisc, ReachesExactlyTheColumnsThatShowAPlace)
{
    RandomMaps random(31);
    for (int i = 0; i < 3000; ++i)
    {
        const geo::MapDisc disc = random.Disc();
        const int row = random.AnyRow(disc);
        const int reach = disc.Reach(row);
        const int half = disc.frame.half;
        ASSERT_LE(reach, half);
        if (reach > 0)
        {
            ASSERT_TRUE(disc.At(half - reach, row)) << disc << ", row " << row;
            ASSERT_TRUE(disc.At(half + 1, row)) << disc << ", row " << row;
        }
        if (reach < half)
        {
            ASSERT_FALSE(disc.At(half - reach - 1, row)) << disc << ", row " << row;
        }
    }
}

TEST(MapDisc, KnowsTheMapsThatAreNotPlain)
{
    EXPECT_TRUE(Disc(90.0, 180.0, 20000000).HasPlainScale());
    EXPECT_FALSE(Disc(std::numeric_limits<double>::quiet_NaN(), 0.0, 20000000).HasPlainScale());
    EXPECT_FALSE(Disc(0.0, std::numeric_limits<double>::infinity(), 20000000).HasPlainScale());
    EXPECT_FALSE(Disc(0.0, 361.0, 20000000).HasPlainScale());
    geo::MapDisc disc = Disc(0.0, 0.0, 20000000);
    disc.frame = MapFrame(900, 100, 1); // less than a metre a pixel
    EXPECT_FALSE(disc.HasPlainScale());
    disc = Disc(0.0, 0.0, 20000000);
    disc.projection.falseEasting = 1000.0;
    EXPECT_FALSE(disc.HasPlainScale());
}
} // namespace

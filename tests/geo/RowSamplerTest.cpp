#include "geo/RowSampler.h"

#include "tests/geo/Centred.h"
#include "tests/geo/RandomMaps.h"

#include <gtest/gtest.h>

#include <numeric>

namespace
{
constexpr std::uint32_t kElsewhere = 0xFFFFFFFF;
constexpr std::uint32_t kOutside = 0xFF000000;

// Every pixel is its own number, so equal pixels mean equal cells. Pictures take as many of them as they need.
const std::vector<std::uint32_t>& Numbers()
{
    static const std::vector<std::uint32_t> numbers = []
    {
        std::vector<std::uint32_t> all(5400 * 2700);
        std::iota(all.begin(), all.end(), 0U);
        return all;
    }();
    return numbers;
}

geo::WorldCells NumberedPicture(int width, int height)
{
    return geo::WorldCells::Filling(Numbers().data(), width, height, kOutside);
}

geo::WorldCells RandomPicture(RandomMaps& random)
{
    if (!random.Often())
        return geo::WorldCells::Lattice(Numbers().data(), random.OneOf({1, 5, 7}));
    struct Size
    {
        int width;
        int height;
    };
    const Size size =
        random.OneOf<Size>({{1, 1},
                            {7, 3},
                            {361, 181},
                            {720, 360},
                            {1000, 500},
                            {5400, 2700},
                            {40000, 3},
                            {40000, 360},
                            {3, 40000},
                            {static_cast<int>(random.Between(1, 4000)), static_cast<int>(random.Between(1, 2000))}});
    return NumberedPicture(size.width, size.height);
}

std::vector<std::uint32_t> RowOf(const geo::RowSampler& sampler, const geo::MapDisc& disc, int row)
{
    return PaintedRow<std::uint32_t>(disc, [&](std::span<std::uint32_t> out) { sampler.Row(row, out); });
}

void ExpectRowsLikeThePlainLoop(const geo::MapDisc& disc, const geo::WorldCells& picture, const std::vector<int>& rows)
{
    const geo::RowSampler plain(disc, picture, kElsewhere, geo::InstructionSet::Plain);
    for (const int row : rows)
    {
        const auto expected = RowOf(plain, disc, row);
        for (const auto set : VectorSets())
        {
            const auto got = RowOf(geo::RowSampler(disc, picture, kElsewhere, set), disc, row);
            const int column = FirstDifference(got, expected);
            ASSERT_EQ(column, -1) << disc << ", row " << row << ", set " << static_cast<int>(set) << ": "
                                  << got[static_cast<std::size_t>(column)] << " instead of "
                                  << expected[static_cast<std::size_t>(column)];
        }
    }
}

TEST(WorldCells, GivesThePixelUnderAPosition)
{
    const geo::WorldCells picture = NumberedPicture(1440, 720); // four to the degree
    EXPECT_EQ(picture.At({geo::kPi / 2, -geo::kPi}), 0U);
    EXPECT_EQ(picture.At({0.0001, 0.0001}), 359U * 1440U + 720U);
    EXPECT_EQ(picture.At({-0.0001, -0.0001}), 360U * 1440U + 719U);
}

TEST(WorldCells, IsOutsideAtTheSouthPoleAndOnTheEasternDateLine)
{
    const geo::WorldCells picture = NumberedPicture(720, 360);
    EXPECT_EQ(picture.At({-geo::kPi / 2, 0.0}), kOutside);
    EXPECT_EQ(picture.At({0.1, geo::kPi}), kOutside);
    EXPECT_EQ(picture.At({std::numeric_limits<double>::quiet_NaN(), 0.0}), kOutside);
}

TEST(WorldCells, AsALatticeHasPointsOnBothEdges)
{
    const geo::WorldCells lattice = geo::WorldCells::Lattice(Numbers().data(), 5);
    EXPECT_EQ(lattice.At({geo::kPi / 2, -geo::kPi}), 0U);
    EXPECT_EQ(lattice.At({geo::kPi / 2, geo::kPi}), 1800U);
    EXPECT_EQ(lattice.At({-geo::kPi / 2, -geo::kPi}), 900U * 1801U);
    EXPECT_EQ(lattice.At({-geo::kPi / 2, geo::kPi}), 900U * 1801U + 1800U);
}

TEST(RowSampler, PutsEastToTheRightAndNorthUp)
{
    const geo::MapDisc disc(Centred(0.0, 0.0), MapFrame(900, 20000000, 10), 20000000);
    const geo::RowSampler sampler(disc, NumberedPicture(4, 2), kElsewhere);
    EXPECT_EQ(sampler.Pixel(460, 445), 2U);
    EXPECT_EQ(sampler.Pixel(440, 445), 1U);
    EXPECT_EQ(sampler.Pixel(460, 455), 6U);
    EXPECT_EQ(sampler.Pixel(700, 445), 3U); // beyond 90 degrees east
    EXPECT_EQ(sampler.Pixel(450, 450), kElsewhere);
    EXPECT_EQ(sampler.Pixel(0, 0), kElsewhere);
}

TEST(RowSampler, GivesThePixelsOfThePlainLoopOnRandomMaps)
{
    RandomMaps random(1);
    for (int i = 0; i < 2500 && !HasFatalFailure(); ++i)
    {
        const geo::MapDisc disc = random.Disc();
        ExpectRowsLikeThePlainLoop(disc, RandomPicture(random), random.Rows(disc));
    }
}

TEST(RowSampler, GivesThePixelsOfThePlainLoopOnWholeMaps)
{
    for (const double lat : {90.0, -90.0, 0.0, 55.6875})
        for (const double lon : {180.0, 12.625})
            for (const int size : {150, 151})
            {
                const geo::MapDisc disc(Centred(lat, lon), MapFrame(size, 20000000, 1), 20015078);
                std::vector<int> rows(static_cast<std::size_t>(size));
                std::iota(rows.begin(), rows.end(), 0);
                ExpectRowsLikeThePlainLoop(disc, NumberedPicture(721, 361), rows);
            }
}

// Close maps with a pole in them, where a few metres are many degrees of longitude.
TEST(RowSampler, GivesThePixelsOfThePlainLoopAroundAPoleInThePicture)
{
    RandomMaps random(9);
    for (int i = 0; i < 300 && !HasFatalFailure(); ++i)
    {
        const MapFrame frame(random.OneOf({901, 4000, 8000}), random.OneOf({100000, 150000}), 1);
        const int rowsAway = static_cast<int>(random.Between(1, frame.half / 2));
        const double metresAway = rowsAway * frame.metresPerPixel + random.Real(-1.0, 1.0);
        const double lat = 90.0 - metresAway / AzimuthalProjection::kEarthRadius * geo::kDegPerRad;
        const int side = random.OneOf({1, -1});
        const int poleRow = frame.half - side * rowsAway;
        const geo::MapDisc disc(Centred(side * lat, random.Real(-180.0, 180.0)), frame, 20000000);
        ExpectRowsLikeThePlainLoop(disc, NumberedPicture(40000, 360), {poleRow, poleRow - 1, poleRow + 1, poleRow + 3});
    }
}

TEST(RowSampler, NeverReadsBeyondAPictureOfOnePixel)
{
    const std::vector<std::uint32_t> pixel{7};
    const geo::MapDisc disc(Centred(0.0, 180.0), MapFrame(300, 20000000, 1), 20015078);
    const auto picture = geo::WorldCells::Filling(pixel.data(), 1, 1, kOutside);
    ExpectRowsLikeThePlainLoop(disc, picture, {150, 149, 0, 299, 20, 280});
    EXPECT_EQ(RowOf(geo::RowSampler(disc, picture, kElsewhere), disc, 149)[200], 7U);
}

TEST(RowSampler, GoesThePlainWayWhereTheKernelsHaveNoAnswer)
{
    const auto picture = NumberedPicture(720, 360);
    const double nan = std::numeric_limits<double>::quiet_NaN();
    for (const double lat : {nan, 1e300, 90.0001})
        ExpectRowsLikeThePlainLoop({Centred(lat, 0.0), MapFrame(200, 20000000, 1), 20000000}, picture, {100, 3});
    for (const double lon : {nan, 1e300, -181.0, 540.0})
        ExpectRowsLikeThePlainLoop({Centred(10.0, lon), MapFrame(200, 20000000, 1), 20000000}, picture, {100, 3});
    ExpectRowsLikeThePlainLoop({Centred(10.0, 20.0), MapFrame(200, 50, 1), 20000000}, picture, {100, 3});
    ExpectRowsLikeThePlainLoop({Centred(10.0, 20.0), MapFrame(1, 100000, 0), 20000000}, picture, {0});
    ExpectRowsLikeThePlainLoop({Centred(10.0, 20.0), MapFrame(0, 100000, 0), 20000000}, picture, {0});
    ExpectRowsLikeThePlainLoop({Centred(10.0, 20.0), MapFrame(200, -20000000, 1), 20000000}, picture, {100, 3});
    ExpectRowsLikeThePlainLoop({Centred(10.0, 20.0), MapFrame(200, 20000000, 1), 20000000}, NumberedPicture(0, 0),
                               {100, 3});
}

TEST(RowSampler, GoesThePlainWayWithPicturesTooLargeForAnIndex)
{
    EXPECT_TRUE(geo::WorldCells::Filling(nullptr, 40000, 20000, 0).IsIndexable());
    EXPECT_FALSE(geo::WorldCells::Filling(nullptr, 70000, 35000, 0).IsIndexable());
    EXPECT_FALSE(geo::WorldCells::Filling(nullptr, 2147483647, 2147483647, 0).IsIndexable());
}

TEST(InstructionSet, FallsBackToWhatTheProcessorHas)
{
    EXPECT_GE(geo::BestInstructionSet(), geo::InstructionSet::Baseline);
    EXPECT_EQ(geo::KernelsFor(geo::InstructionSet::Plain), nullptr);
    EXPECT_EQ(geo::KernelsFor(geo::InstructionSet::Avx512), geo::KernelsFor(geo::BestInstructionSet()));
    EXPECT_NE(geo::KernelsFor(geo::InstructionSet::Baseline), nullptr);
}
} // namespace

// The vectorised loops by themselves, and when they are used: a row is right even if they never answer, only slow.

#include "geo/GreylineRows.h"
#include "geo/RowMath.h"
#include "geo/RowSampler.h"

#include "tests/geo/Centred.h"
#include "tests/geo/RandomMaps.h"
#include "tests/geo/TruePlace.h"

#include <gtest/gtest.h>

#include <array>
#include <fstream>
#include <set>
#include <sstream>
#include <string>

namespace
{
constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();

// Results with room around them that must stay as it is.
class Results
{
public:
    Results() { m_values.fill(kUntouched); }

    std::int32_t* Data() { return m_values.data() + kRoom; }
    std::int32_t operator[](int i) const { return m_values[static_cast<std::size_t>(kRoom + i)]; }
    bool RoomIsUntouched() const
    {
        const auto untouched = [](std::int32_t value) { return value == kUntouched; };
        return std::all_of(m_values.begin(), m_values.begin() + kRoom, untouched) &&
               std::all_of(m_values.end() - kRoom, m_values.end(), untouched);
    }

private:
    static constexpr int kRoom = 16;
    static constexpr std::int32_t kUntouched = -77;
    alignas(64) std::array<std::int32_t, 256 + 2 * kRoom> m_values;
};

struct Asked
{
    geo::MapDisc disc;
    int row;
    int first;
    int count;
};

Asked RandomColumns(RandomMaps& random)
{
    for (;;)
    {
        geo::MapDisc disc = random.Disc();
        if (!random.Often()) // close maps, with 900 m around a pole for many pixels
            disc.frame = MapFrame(8000, 100000, 1);
        disc.limitMetres = 20000000;
        const int row = random.Often() ? random.AnyRow(disc) : disc.frame.half + random.OneOf({0, 1, -1, 20});
        const int reach = row < disc.frame.mapSize ? disc.Reach(row) : 0;
        if (reach < 1)
            continue;
        const int first = static_cast<int>(random.Between(1, random.Often() ? reach : std::min(reach, 40)));
        const int most = std::min(256, reach - first + 1);
        return {disc, row, first, random.Often() ? most : static_cast<int>(random.Between(1, most))};
    }
}

TruePlace PlaceAt(const Asked& asked, int i)
{
    const geo::MapPoint point = asked.disc.frame.PixelToMap(asked.disc.frame.half + asked.first + i, asked.row);
    return TruePlaceOf(asked.disc.projection, point.x, point.y);
}

long double FromWhole(long double value)
{
    return std::fabs(value - std::round(value));
}

// -1: too near to a decision, 1: far enough, 0: too near to say which.
int Sureness(long double margin, long double q)
{
    if (margin * q < 0.95e-8L || q < 0.999e-4L)
        return -1;
    return margin * q > 1.05e-8L && q > 1.001e-4L ? 1 : 0;
}

// Cells much smaller than those of any picture, so that many places are near to the edge of one.
TEST(RowKernel, KnowsTheCellOfEveryPlaceThatIsFarEnoughFromItsEdge)
{
    constexpr int kAround = 600000;
    constexpr int kAlong = 300000;
    constexpr int kStride = 1000;
    RandomMaps random(41);
    int asksPlain = 0;
    int answers = 0;
    for (int round = 0; round < 400; ++round)
    {
        const Asked asked = RandomColumns(random);
        const long double perRadian = kAround / (2 * kPiL);
        geo::CellGrid grid{};
        grid.columnsPerRadian = static_cast<double>(perRadian);
        grid.radiansPerColumn = static_cast<double>(1 / perRadian);
        grid.columnsAround = kAround;
        grid.centreColumn = static_cast<double>(perRadian * (asked.disc.projection.centreLon + kPiL));
        grid.rowsPerRadian = static_cast<double>(kAlong / kPiL);
        grid.radiansPerRow = static_cast<double>(kPiL / kAlong);
        grid.rowsAlong = kAlong;
        grid.stride = kStride;
        for (const auto set : VectorSets())
        {
            Results east;
            Results west;
            geo::KernelsFor(set)->cells(geo::RowPlane(asked.disc, asked.row), grid,
                                        {asked.first, asked.count, east.Data(), west.Data()});
            ASSERT_TRUE(east.RoomIsUntouched() && west.RoomIsUntouched()) << asked.count;
            for (int i = 0; i < asked.count; i += 1 + asked.count / 50)
            {
                const TruePlace place = PlaceAt(asked, i);
                const long double down = (kPiL / 2 - place.lat) * kAlong / kPiL;
                const auto columnOf = [&](long double turn)
                {
                    const long double column = grid.centreColumn + turn * perRadian;
                    return column < 0 ? column + kAround : column >= kAround ? column - kAround : column;
                };
                const long double right = columnOf(place.turn);
                const long double left = columnOf(-place.turn);
                const long double margin = std::min(std::min(FromWhole(right), FromWhole(left)) / perRadian,
                                                    FromWhole(down) / (kAlong / kPiL));
                const int sure = Sureness(margin, place.q);
                if (sure == 0)
                    continue;
                const auto cell = [&](long double column)
                { return sure > 0 ? static_cast<int>(down) * kStride + static_cast<int>(column) : geo::kAskPlain; };
                ASSERT_EQ(east[i], cell(right)) << asked.disc << ", row " << asked.row << ", i " << i;
                ASSERT_EQ(west[i], cell(left)) << asked.disc << ", row " << asked.row << ", i " << i;
                ++(sure > 0 ? answers : asksPlain);
            }
        }
    }
    EXPECT_GT(asksPlain, 100);
    EXPECT_GT(answers, 10000);
}

geo::LatLonRad SunAnywhere(RandomMaps& random, const AzimuthalProjection& projection)
{
    return random.Often() ? geo::LatLonRad{random.Real(-1.5, 1.5), random.Real(-geo::kPi, geo::kPi)}
                          : geo::LatLonRad{projection.centreLat, projection.centreLon};
}

long double CosineOfSun(const geo::LatLonRad& sun, const AzimuthalProjection& projection, const TruePlace& place,
                        int side)
{
    const long double turn = sun.lon - (projection.centreLon + side * place.turn);
    return std::cos(turn) * std::cos(static_cast<long double>(sun.lat)) * std::cos(place.lat) +
           std::sin(static_cast<long double>(sun.lat)) * std::sin(place.lat);
}

TEST(RowKernel, KnowsTheLevelOfTheGradientWhereItIsFarEnoughFromTheNext)
{
    RandomMaps random(42);
    int asksPlain = 0;
    int answers = 0;
    for (int round = 0; round < 500; ++round)
    {
        const Asked asked = RandomColumns(random);
        if (asked.disc.projection.IsPolar())
            continue;
        const geo::LatLonRad sun = SunAnywhere(random, asked.disc.projection);
        geo::GreyBands bands{};
        bands.sinHalfWidth = 2.0; // all is greyzone
        bands.gradient = true;
        bands.levelAtHorizon = 2e5;
        bands.levelPerRadian = 1e5;
        bands.radiansPerLevel = 1e-5;
        for (const auto set : VectorSets())
        {
            Results east;
            Results west;
            geo::KernelsFor(set)->greys(geo::SunPlane(asked.disc, sun, asked.row), bands,
                                        {asked.first, asked.count, east.Data(), west.Data()});
            ASSERT_TRUE(east.RoomIsUntouched() && west.RoomIsUntouched()) << asked.count;
            for (int i = 0; i < asked.count; i += 1 + asked.count / 50)
                for (const int side : {1, -1})
                {
                    const long double cosine = CosineOfSun(sun, asked.disc.projection, PlaceAt(asked, i), side);
                    const long double q = std::sqrt(std::fabs(1 - std::fabs(cosine)));
                    const long double value = 2e5L + 1e5L * std::asin(std::clamp(cosine, -1.0L, 1.0L));
                    const int sure = Sureness(FromWhole(value) * 1e-5L, q);
                    if (sure == 0)
                        continue;
                    ASSERT_EQ((side > 0 ? east : west)[i], sure > 0 ? static_cast<int>(value) % 256 : geo::kAskPlain)
                        << asked.disc << ", row " << asked.row << ", i " << i;
                    ++(sure > 0 ? answers : asksPlain);
                }
        }
    }
    EXPECT_GT(asksPlain, 100);
    EXPECT_GT(answers, 10000);
}

TEST(RowKernel, KnowsTheBandOfEveryPlaceThatIsFarEnoughFromItsEdge)
{
    constexpr int kDay = 255;
    constexpr int kNight = 30;
    constexpr int kFlat = 99;
    RandomMaps random(43);
    for (int round = 0; round < 3000; ++round)
    {
        Asked asked = RandomColumns(random);
        if (asked.disc.projection.IsPolar())
            continue;
        asked.count = 1;
        const geo::LatLonRad sun = SunAnywhere(random, asked.disc.projection);
        const int side = random.OneOf({1, -1});
        const double cosine = static_cast<double>(CosineOfSun(sun, asked.disc.projection, PlaceAt(asked, 0), side));
        const double away = random.OneOf({0.0, 0.9e-8, -0.9e-8, 1.1e-8, -1.1e-8, 1e-3, -1e-3});
        geo::GreyBands bands{};
        bands.sinHalfWidth = std::fabs(cosine) + away;
        if (bands.sinHalfWidth < 1e-4)
            continue;
        bands.day = kDay;
        bands.night = kNight;
        bands.flat = kFlat;
        const int beyond = cosine > 0.0 ? kDay : kNight;
        const int expected = std::fabs(away) < 1e-8 ? geo::kAskPlain : away > 0.0 ? kFlat : beyond;
        for (const auto set : VectorSets())
        {
            Results east;
            Results west;
            geo::KernelsFor(set)->greys(geo::SunPlane(asked.disc, sun, asked.row), bands,
                                        {asked.first, 1, east.Data(), west.Data()});
            ASSERT_EQ((side > 0 ? east : west)[0], expected)
                << asked.disc << ", row " << asked.row << ", away " << away;
        }
    }
}

geo::MapDisc Disc()
{
    return {Centred(10.0, 20.0), MapFrame(200, 20000000, 1), 20000000};
}

TEST(MapDisc, IsPlainUpToARoundingBeyondThePolesAndTheDateLine)
{
    for (const double side : {1.0, -1.0})
        for (const double beyond : {-0.1, 0.9e-9, 1.1e-9, 0.1})
        {
            geo::MapDisc disc = Disc();
            disc.projection.centreLat = side * (geo::kPi / 2 + beyond);
            EXPECT_EQ(disc.HasPlainScale(), beyond < 1e-9) << side << ' ' << beyond;
            disc = Disc();
            disc.projection.centreLon = side * (geo::kPi + beyond);
            EXPECT_EQ(disc.HasPlainScale(), beyond < 1e-9) << side << ' ' << beyond;
        }
}

TEST(MapDisc, IsPlainWithTwoPixelsOfAMetreAndTheStationInTheMiddle)
{
    geo::MapDisc disc = Disc();
    for (const int size : {0, 1, 2, 3, 8000})
    {
        disc.frame = MapFrame(size, 20000000, 0);
        EXPECT_EQ(disc.HasPlainScale(), size >= 2) << size;
        ++disc.frame.half;
        EXPECT_FALSE(disc.HasPlainScale()) << size;
    }
    for (const double scale : {0.0, 0.999, 1.0, 1.5, kInfinity, kNan})
    {
        disc = Disc();
        disc.frame.metresPerPixel = scale;
        EXPECT_EQ(disc.HasPlainScale(), scale == 1.0 || scale == 1.5) << scale;
    }
    disc = Disc();
    disc.projection.falseNorthing = -1.0;
    EXPECT_FALSE(disc.HasPlainScale());
    disc.projection.falseNorthing = 0.0;
    EXPECT_TRUE(disc.HasPlainScale());
    disc.projection.falseEasting = 1.0;
    EXPECT_FALSE(disc.HasPlainScale());
}

TEST(MapDisc, BeginsOneMetreFromTheStation)
{
    const geo::MapDisc disc(Centred(10.0, 20.0), MapFrame(200, 99, 1), 50); // a metre a pixel
    EXPECT_FALSE(disc.At(100, 100));
    EXPECT_TRUE(disc.At(101, 100));
    EXPECT_TRUE(disc.At(149, 100));
    EXPECT_FALSE(disc.At(150, 100));
    EXPECT_TRUE(disc.At(100, 149));
    EXPECT_FALSE(disc.At(100, 150));
    EXPECT_EQ(disc.Reach(100), 49);
    EXPECT_EQ(disc.Reach(130), 39); // 30, 40, 50
    EXPECT_EQ(disc.Reach(150), 0);
}

TEST(RowSampler, LeavesThePlainWayWheneverThereAreKernels)
{
    const std::uint32_t pixel = 7;
    const auto picture = geo::WorldCells::Filling(&pixel, 1, 1, 0);
    EXPECT_FALSE(geo::RowSampler(Disc(), picture, 0).GoesThePlainWay());
    for (const auto set : VectorSets())
        EXPECT_FALSE(geo::RowSampler(Disc(), picture, 0, set).GoesThePlainWay());
    EXPECT_TRUE(geo::RowSampler(Disc(), picture, 0, geo::InstructionSet::Plain).GoesThePlainWay());
    geo::MapDisc offset = Disc();
    offset.projection.falseEasting = 1.0;
    EXPECT_TRUE(geo::RowSampler(offset, picture, 0).GoesThePlainWay());
    EXPECT_TRUE(geo::RowSampler(Disc(), geo::WorldCells::Filling(nullptr, 70000, 70000, 0), 0).GoesThePlainWay());
}

TEST(WorldCells, AreIndexableUpToTheLargestIndex)
{
    const auto isIndexable = [](int width, int height)
    { return geo::WorldCells::Filling(nullptr, width, height, 0).IsIndexable(); };
    EXPECT_TRUE(isIndexable(1, 1));
    EXPECT_FALSE(isIndexable(0, 1));
    EXPECT_FALSE(isIndexable(1, 0));
    EXPECT_TRUE(isIndexable(1, 1073741821)); // two columns and two rows more: 2147483646 cells
    EXPECT_FALSE(isIndexable(1, 1073741822));
    EXPECT_TRUE(isIndexable(715827881, 1)); // 715827882 by 3: 2147483646
    EXPECT_FALSE(isIndexable(715827882, 1));
}

TEST(WorldCells, AsALatticeHaveNothingOutside)
{
    const std::vector<std::uint32_t> points(361 * 181, 5);
    const auto lattice = geo::WorldCells::Lattice(points.data(), 1);
    EXPECT_EQ(lattice.At({0.0, 0.0}), 5U);
    EXPECT_EQ(lattice.At({kNan, 0.0}), 0U);
    EXPECT_EQ(lattice.At({0.0, 3.2}), 0U);
}

geo::GreylineShade Shade()
{
    return {{0.1, 0.2}, 6.0, true, 60.0, 30.0};
}

bool GoesThePlainWay(const geo::GreylineShade& shade)
{
    return geo::GreylineRows(Disc(), shade).GoesThePlainWay();
}

TEST(GreylineRows, LeaveThePlainWayForEveryUsualShade)
{
    EXPECT_FALSE(GoesThePlainWay(Shade()));
    for (const auto set : VectorSets())
        EXPECT_FALSE(geo::GreylineRows(Disc(), Shade(), set).GoesThePlainWay());
    EXPECT_TRUE(geo::GreylineRows(Disc(), Shade(), geo::InstructionSet::Plain).GoesThePlainWay());

    geo::GreylineShade shade = Shade();
    for (const double width : {kNan, -6.0, 0.0, 0.01, 179.9, 180.0, 200.0})
    {
        shade.widthDeg = width;
        EXPECT_EQ(GoesThePlainWay(shade), width != 0.01 && width != 179.9) << width;
    }
    for (const double percent : {kNan, -0.1, 0.0, 100.0, 100.1})
    {
        shade = Shade();
        shade.greyPercent = percent;
        EXPECT_EQ(GoesThePlainWay(shade), percent != 0.0 && percent != 100.0) << percent;
        shade = Shade();
        shade.nightPercent = percent;
        EXPECT_EQ(GoesThePlainWay(shade), percent != 0.0 && percent != 100.0) << percent;
    }
    for (const double difference : {0.0, 0.039, 0.04, -0.039, -0.04}) // 0.04 * 2.55 / 100 is just above a thousandth
    {
        shade = {{0.1, 0.2}, 100.0, true, 50.0 + difference, 50.0};
        EXPECT_EQ(GoesThePlainWay(shade), std::fabs(difference) == 0.039) << difference;
    }
    for (const double side : {1.0, -1.0})
    {
        shade = Shade();
        shade.sun.lat = side * 3.14;
        EXPECT_FALSE(GoesThePlainWay(shade));
        shade.sun.lat = side * 3.15;
        EXPECT_TRUE(GoesThePlainWay(shade));
        shade = Shade();
        shade.sun.lon = side * 12.56;
        EXPECT_FALSE(GoesThePlainWay(shade));
        shade.sun.lon = side * 12.57;
        EXPECT_TRUE(GoesThePlainWay(shade));
    }
}

TEST(GreylineRows, GoThePlainWayNearlyAtAPoleAndOnMapsThatAreNotPlain)
{
    const auto goesThePlainWay = [](const geo::MapDisc& disc)
    { return geo::GreylineRows(disc, Shade()).GoesThePlainWay(); };
    geo::MapDisc disc = Disc();
    disc.projection = Centred(90.0, 0.0);
    EXPECT_FALSE(goesThePlainWay(disc));
    for (const double cosine : {0.9e-12, 1.1e-12, -1.1e-12, 1e-7})
    {
        disc.projection.cosLat0 = cosine;
        EXPECT_EQ(goesThePlainWay(disc), cosine != 0.9e-12) << cosine;
    }
    disc = Disc();
    disc.projection.falseEasting = 1.0;
    EXPECT_TRUE(goesThePlainWay(disc));
}

// The kernels need no more of a shade than its bands.
TEST(GreylineShade, HasBandsWithoutAGradientWhereThereIsNone)
{
    geo::GreylineShade shade = Shade();
    EXPECT_TRUE(shade.Bands().gradient);
    EXPECT_EQ(shade.Bands().night, 76);
    shade.nightPercent = shade.greyPercent;
    EXPECT_FALSE(shade.Bands().gradient);
    EXPECT_EQ(shade.Bands().flat, 153);
    shade = Shade();
    shade.gradient = false;
    EXPECT_FALSE(shade.Bands().gradient);
}

TEST(GreylineShade, AgreesWithTheDistanceOfTheSunAtRandom)
{
    RandomMaps random(44);
    for (int i = 0; i < 20000; ++i)
    {
        const geo::GreylineShade shade{{random.Real(-1.5, 1.5), random.Real(-6.3, 6.3)},
                                       random.Real(0.5, 150.0),
                                       random.Often(),
                                       random.Real(0.0, 100.0),
                                       random.Real(0.0, 100.0)};
        const geo::LatLonRad place{random.Real(-1.5, 1.5), random.Real(-3.1, 3.1)};
        // By the haversine, which is another way to the distance.
        const double haversine =
            std::pow(std::sin((place.lat - shade.sun.lat) / 2), 2) +
            std::cos(place.lat) * std::cos(shade.sun.lat) * std::pow(std::sin((place.lon - shade.sun.lon) / 2), 2);
        const double distance = 2 * std::asin(std::sqrt(std::min(haversine, 1.0))) * 180.0 / geo::kPi;
        const double intoZone = distance - (90.0 - shade.widthDeg / 2);
        const double share = 1.0 - intoZone / shade.widthDeg;
        double level = 255.0;
        if (share < 0.0)
            level = shade.nightPercent * 2.55;
        else if (share <= 1.0)
            // However they compare, the light side of the greyzone is the lighter by their difference.
            level = shade.gradient
                        ? shade.nightPercent * 2.55 + share * std::fabs(shade.greyPercent - shade.nightPercent) * 2.55
                        : shade.greyPercent * 2.55;
        if (std::fabs(level - std::round(level)) < 1e-4 && level < 255.0)
            continue;
        if (std::fabs(share) < 1e-6 || std::fabs(share - 1.0) < 1e-6)
            continue;
        ASSERT_EQ(int{shade.At(place)}, static_cast<int>(level) % 256) << distance << ' ' << shade.widthDeg;
    }
}

TEST(GreylineShade, KnowsDayAndNightUnderAndOppositeTheSun)
{
    for (int i = -900; i <= 900; ++i)
    {
        geo::GreylineShade shade = Shade();
        shade.sun = {i / 600.0, i / 300.0};
        ASSERT_EQ(shade.At(shade.sun), 255) << i;
        ASSERT_EQ(shade.At({-shade.sun.lat, shade.sun.lon + geo::kPi}), 76) << i;
    }
}

TEST(GreylineShade, CountsBothEdgesToTheGreyzone)
{
    geo::GreylineShade shade = Shade();
    shade.sun = {0.0, 0.0};
    shade.gradient = false;
    shade.widthDeg = 180.0;
    EXPECT_EQ(shade.At({0.0, 0.0}), 153);
    const double farthest = std::acos(-1.0) * geo::kDegPerRad;
    shade.widthDeg = 2.0 * (farthest - 90.0);
    EXPECT_EQ(shade.At({0.0, geo::kPi}), 153);
    shade.widthDeg = 2.0 * (farthest - 90.0) - 1e-9;
    EXPECT_EQ(shade.At({0.0, geo::kPi}), 76);
}

// What the system says of the processor.
[[maybe_unused]] std::set<std::string> ProcessorFlags()
{
    std::ifstream info("/proc/cpuinfo");
    for (std::string line; std::getline(info, line);)
        if (line.rfind("flags", 0) == 0)
        {
            std::istringstream words(line.substr(line.find(':') + 1));
            return {std::istream_iterator<std::string>(words), {}};
        }
    return {};
}

TEST(InstructionSet, NeedsEveryFeatureThatItsLoopsName)
{
    // All six, the two of the older vectors among them: without one of those neither has loops.
    EXPECT_EQ(geo::BestOf(63), geo::InstructionSet::Avx512);
    EXPECT_EQ(geo::BestOf(geo::kHasAvx2 | geo::kHasFma), geo::InstructionSet::Avx2);
    for (const unsigned lacking : {geo::kHasAvx512F, geo::kHasAvx512Bw, geo::kHasAvx512Dq, geo::kHasAvx512Vl})
        EXPECT_EQ(geo::BestOf(63 & ~lacking), geo::InstructionSet::Avx2) << lacking;
    for (const unsigned lacking : {geo::kHasAvx2, geo::kHasFma})
        EXPECT_EQ(geo::BestOf(63 & ~lacking), geo::InstructionSet::Baseline) << lacking;
    EXPECT_EQ(geo::BestOf(0), geo::InstructionSet::Baseline);
}

#ifdef __x86_64__
TEST(InstructionSet, IsTheBestThatTheSystemReports)
{
    const std::set<std::string> flags = ProcessorFlags();
    if (flags.empty())
        GTEST_SKIP() << "the system does not list the processor's flags";
    const auto hasAll = [&](std::initializer_list<const char*> names)
    { return std::all_of(names.begin(), names.end(), [&](const char* name) { return flags.count(name) > 0; }); };
    auto expected = geo::InstructionSet::Baseline;
    if (hasAll({"avx2", "fma"}))
        expected = hasAll({"avx512f", "avx512bw", "avx512dq", "avx512vl"}) ? geo::InstructionSet::Avx512
                                                                           : geo::InstructionSet::Avx2;
    EXPECT_EQ(geo::BestInstructionSet(), expected);
}
#else
TEST(InstructionSet, IsTheBaselineElsewhere)
{
    EXPECT_EQ(geo::BestInstructionSet(), geo::InstructionSet::Baseline);
}
#endif

TEST(InstructionSet, HasLoopsOfItsOwn)
{
    std::set<const geo::RowKernels*> kernels;
    for (const auto set : VectorSets())
    {
        kernels.insert(geo::KernelsFor(set));
        EXPECT_EQ(kernels.count(nullptr), 0U);
    }
    EXPECT_EQ(kernels.size(), VectorSets().size());
}
} // namespace

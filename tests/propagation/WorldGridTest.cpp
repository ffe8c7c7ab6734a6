#include "propagation/WorldGrid.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>

namespace
{
using namespace propagation;

ResultGrid Sampled(int points, const std::function<double(double lon, double lat)>& f)
{
    ResultGrid grid;
    grid.points = points;
    for (int row = 0; row < points; ++row)
        for (int column = 0; column < points; ++column)
            grid.values.push_back(f(-180 + 360.0 * column / (points - 1), -90 + 180.0 * row / (points - 1)));
    return grid;
}

/// The value at a place by the usual formula with four weights: another way than the program's.
double Bilinear(const ResultGrid& grid, double lon, double lat)
{
    const double x = (lon + 180) / 360 * (grid.points - 1);
    const double y = (lat + 90) / 180 * (grid.points - 1);
    const int column = std::min(static_cast<int>(x), grid.points - 2);
    const int row = std::min(static_cast<int>(y), grid.points - 2);
    const auto at = [&](int c, int r) { return grid.values[static_cast<std::size_t>(r * grid.points + c)]; };
    const double u = x - column;
    const double v = y - row;
    return (1 - u) * (1 - v) * at(column, row) + u * (1 - v) * at(column + 1, row) + (1 - u) * v * at(column, row + 1) +
           u * v * at(column + 1, row + 1);
}

void ExpectBilinear(const ResultGrid& grid)
{
    const auto values = WorldValues(grid);
    ASSERT_EQ(values.size(), 1801u * 901u);
    for (std::size_t j = 0; j <= 900; ++j)
        for (std::size_t i = 0; i <= 1800; ++i)
            ASSERT_NEAR(values[j * 1801 + i],
                        Bilinear(grid, static_cast<double>(i) / 5 - 180, static_cast<double>(j) / 5 - 90), 1e-10)
                << i << ", " << j;
}

TEST(WorldGrid, InterpolatesARealResultAsAnotherFormulaDoes)
{
    for (const Parameter parameter : {Parameter::Sdbw, Parameter::Muf})
    {
        LineReader file(KAV_TEST_DATA "/area_36x36.vg1");
        ExpectBilinear(*ReadResult(file, parameter));
    }
}

TEST(WorldGrid, InterpolatesEveryGridThatCanBeChosen)
{
    for (int points = 18; points <= 198; points += 18)
        ExpectBilinear(Sampled(points, [](double lon, double lat) { return 50 * std::sin(lon) - lat * lat / 90; }));
}

TEST(WorldGrid, ReproducesLinearFields)
{
    const auto field = [](double lon, double lat) { return 2 * lon - 3 * lat; };
    const auto values = WorldValues(Sampled(19, field));
    for (std::size_t j = 0; j <= 900; ++j)
        for (std::size_t i = 0; i <= 1800; ++i)
            ASSERT_NEAR(values[j * 1801 + i], field(static_cast<double>(i) / 5 - 180, static_cast<double>(j) / 5 - 90),
                        1e-12 * 630);
}

TEST(WorldGrid, BeginsWithTheFirstValueAndEndsWithTheLast)
{
    LineReader file(KAV_TEST_DATA "/area_36x36.vg1");
    ResultGrid grid = *ReadResult(file, Parameter::Snr);
    grid.values.front() = 0.1;
    grid.values.back() = -183.2;
    const auto values = WorldValues(grid);
    EXPECT_EQ(values[0], 0.1);
    EXPECT_EQ(values[1800], grid.values[35]);
    EXPECT_EQ(values[900 * 1801], grid.values[35 * 36]);
    EXPECT_EQ(values[900 * 1801 + 1800], -183.2);
}

TEST(WorldGrid, ListsClassesFromTheNorth)
{
    ClassScale scale;
    for (std::size_t k = 0; k < 10; ++k)
        scale.thresholds[k] = static_cast<double>(k) * 18 - 90;
    const auto classes = WorldClasses(WorldValues(Sampled(19, [](double, double lat) { return lat; })), scale);
    ASSERT_EQ(classes.size(), 1801u * 901u);
    EXPECT_EQ(classes[0], 9u);
    EXPECT_EQ(classes[1800], 9u);
    EXPECT_EQ(classes[450 * 1801 + 7], 4u); // the equator: above -18, not above 0
    EXPECT_EQ(classes[449 * 1801 + 7], 5u);
    EXPECT_EQ(classes[900 * 1801], 0u);
}
} // namespace

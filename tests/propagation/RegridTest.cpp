#include "propagation/Regrid.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>
#include <vector>

namespace
{
using propagation::kCubic;
using propagation::kLinear;

struct Grid
{
    Grid(int columnCount, int rowCount) : columns(columnCount), rows(rowCount)
    {
        values.resize(static_cast<std::size_t>(columns) * static_cast<std::size_t>(rows), -7777.0);
    }

    /// Samples a function of the unit square.
    Grid(int columnCount, int rowCount, const std::function<double(double, double)>& f) : Grid(columnCount, rowCount)
    {
        for (int row = 0; row < rows; ++row)
            for (int column = 0; column < columns; ++column)
                At(column, row) = f(column / (columns - 1.0), row / (rows - 1.0));
    }

    double& At(int column, int row) { return values[static_cast<std::size_t>(row * columns + column)]; }

    int columns;
    int rows;
    std::vector<double> values;
};

struct Modes
{
    int x = kLinear;
    int y = kLinear;
};

int RegridWith(const Grid& source, Grid& target, Modes modes, std::size_t work, std::size_t indexWork)
{
    std::vector<double> numbers(work);
    std::vector<int> indices(indexWork);
    return propagation::Regrid(source.columns, source.rows, source.values, target.columns, target.rows, target.values,
                               modes.x, modes.y, numbers, indices);
}

int Regrid(const Grid& source, Grid& target, Modes modes = {})
{
    return RegridWith(source, target, modes, 10000, 10000);
}

/// Target dimensions are given as they are; a grid of that size need not exist.
int ErrorFor(int nx, int ny, int mx, int my, Modes modes, std::size_t work = 10000, std::size_t indexWork = 10000)
{
    const std::vector<double> source(static_cast<std::size_t>(std::max(nx, 0) * std::max(ny, 0)));
    std::vector<double> target(static_cast<std::size_t>(std::max(mx, 0) * std::max(my, 0)), -7777.0);
    std::vector<double> numbers(work);
    std::vector<int> indices(indexWork);
    const int error = propagation::Regrid(nx, ny, source, mx, my, target, modes.x, modes.y, numbers, indices);
    const auto untouched = std::ranges::count(target, -7777.0);
    EXPECT_EQ(static_cast<std::size_t>(untouched), error == 0 ? 0 : target.size());
    return error;
}

void ExpectSamples(Grid& grid, const std::function<double(double, double)>& f, double tolerance)
{
    for (int row = 0; row < grid.rows; ++row)
        for (int column = 0; column < grid.columns; ++column)
            ASSERT_NEAR(grid.At(column, row), f(column / (grid.columns - 1.0), row / (grid.rows - 1.0)), tolerance)
                << column << ", " << row;
}

double Plane(double x, double y)
{
    return 3 + 8 * x - 16 * y;
}

double Cubic(double x, double y)
{
    return 1 + x - 2 * x * x + 3 * x * x * x + (y - 2) * y * y + x * x * x * y * y;
}

TEST(Regrid, ReproducesLinearFieldsExactlyWhereFractionsAreExact)
{
    const Grid source(3, 5, Plane);
    Grid target(17, 33);
    ASSERT_EQ(Regrid(source, target), 0);
    ExpectSamples(target, Plane, 0.0);
}

TEST(Regrid, ReproducesLinearFieldsOnAnyGrid)
{
    for (const auto& [nx, ny, mx, my] : {std::tuple{36, 36, 181, 91}, {2, 2, 50, 3}, {7, 40, 19, 6}, {100, 3, 11, 2}})
    {
        const Grid source(nx, ny, Plane);
        Grid target(mx, my);
        ASSERT_EQ(Regrid(source, target), 0);
        ExpectSamples(target, Plane, 1e-13 * 27);
    }
}

TEST(Regrid, ReproducesCubicFieldsInCubicMode)
{
    for (const auto& [nx, ny, mx, my] : {std::tuple{4, 4, 21, 33}, {9, 6, 40, 7}, {30, 25, 8, 9}, {36, 36, 181, 91}})
    {
        const Grid source(nx, ny, Cubic);
        Grid target(mx, my);
        ASSERT_EQ(Regrid(source, target, {kCubic, kCubic}), 0);
        ExpectSamples(target, Cubic, 1e-12);
    }
}

TEST(Regrid, InterpolatesEachDirectionInItsOwnMode)
{
    const auto linearInX = [](double x, double y) { return x * (1 + y * y * y); };
    const Grid source(3, 8, linearInX);
    Grid target(11, 29);
    ASSERT_EQ(Regrid(source, target, {kLinear, kCubic}), 0);
    ExpectSamples(target, linearInX, 1e-12);

    const auto linearInY = [](double x, double y) { return y * (1 + x * x * x); };
    const Grid other(8, 3, linearInY);
    ASSERT_EQ(Regrid(other, target, {kCubic, kLinear}), 0);
    ExpectSamples(target, linearInY, 1e-12);
}

TEST(Regrid, KeepsConstantStretchesExactly)
{
    const Grid source(36, 36, [](double, double) { return -183.2; });
    Grid target(181, 91);
    ASSERT_EQ(Regrid(source, target), 0);
    ExpectSamples(
        target, [](double, double) { return -183.2; }, 0.0);
}

TEST(Regrid, TakesValuesAsTheyAreWhereAPointLiesOnASourcePoint)
{
    const auto wild = [](double x, double y) { return std::sin(1000 * x) * 1e17 + 0.1 * y; };
    for (const Modes modes : {Modes{kLinear, kLinear}, Modes{kCubic, kCubic}})
    {
        Grid source(4, 5, wild);
        Grid target(10, 9); // every third column, every second row
        ASSERT_EQ(Regrid(source, target, modes), 0);
        for (int row = 0; row < 5; ++row)
            for (int column = 0; column < 4; ++column)
                EXPECT_EQ(target.At(3 * column, 2 * row), source.At(column, row)) << column << ", " << row;
    }
}

TEST(Regrid, PicksPointsWithoutInterpolationWhereAllCoincide)
{
    const auto wild = [](double x, double y) { return std::sin(1000 * x) * 1e17 + 0.1 * y; };
    for (const int mode : {kLinear, kCubic})
    {
        Grid source(9, 7, wild);
        Grid same(9, 7);
        ASSERT_EQ(RegridWith(source, same, {mode, mode}, 0, 16), 0);
        EXPECT_EQ(same.values, source.values);
        Grid coarse(3, 4); // every fourth column, every second row
        ASSERT_EQ(RegridWith(source, coarse, {mode, mode}, 0, 7), 0);
        for (int row = 0; row < 4; ++row)
            for (int column = 0; column < 3; ++column)
                EXPECT_EQ(coarse.At(column, row), source.At(4 * column, 2 * row));
    }
}

TEST(Regrid, InterpolatesOneDirectionOnly)
{
    const Grid source(5, 3, Plane);
    Grid target(5, 9);
    ASSERT_EQ(RegridWith(source, target, {}, 9 + 2 * 5, 14), 0);
    ExpectSamples(target, Plane, 0.0);
    Grid wide(17, 3);
    ASSERT_EQ(RegridWith(source, wide, {}, 17, 20), 0);
    ExpectSamples(wide, Plane, 0.0);
}

TEST(Regrid, DoesNotLetInfiniteValuesReachOtherSourcePoints)
{
    Grid source(3, 3, [](double, double) { return 1.0; });
    source.At(1, 1) = 1e308;
    source.At(2, 1) = -1e308;
    source.At(0, 1) = std::numeric_limits<double>::quiet_NaN();
    Grid target(5, 5);
    ASSERT_EQ(Regrid(source, target), 0);
    EXPECT_EQ(target.At(2, 2), 1e308);
    EXPECT_EQ(target.At(4, 2), -1e308);
    for (const int row : {0, 4})
        for (int column = 0; column < 5; ++column)
            EXPECT_EQ(target.At(column, row), 1.0);
}

TEST(Regrid, NamesTheFirstThingThatIsWrong)
{
    EXPECT_EQ(ErrorFor(1, 1, 1, 5, {9, 9}, 0, 0), 1);
    EXPECT_EQ(ErrorFor(4, 4, 5, 1, {}), 1);
    EXPECT_EQ(ErrorFor(4, 4, 0, -3, {}), 1);
    EXPECT_EQ(ErrorFor(1, 1, 5, 5, {2, 1}, 0, 0), 3);
    EXPECT_EQ(ErrorFor(1, 1, 5, 5, {3, 0}, 0, 0), 3);
    EXPECT_EQ(ErrorFor(1, 5, 5, 5, {}, 0, 0), 2);
    EXPECT_EQ(ErrorFor(5, 1, 5, 5, {}, 0, 0), 2);
    EXPECT_EQ(ErrorFor(3, 5, 5, 5, {kCubic, kLinear}, 0, 0), 2);
    EXPECT_EQ(ErrorFor(5, 3, 5, 5, {kLinear, kCubic}, 0, 0), 2);
    EXPECT_EQ(ErrorFor(3, 3, 5, 5, {}, 0, 0), 4);
    EXPECT_EQ(ErrorFor(2, 2, 2, 2, {}), 0);
    EXPECT_EQ(ErrorFor(4, 4, 5, 5, {kCubic, kCubic}), 0);
}

TEST(Regrid, NeedsItsWorkArraysInTheirFullLength)
{
    const std::size_t mx = 11;
    const std::size_t my = 7;
    const auto needed = [&](Modes modes, std::size_t work)
    {
        EXPECT_EQ(ErrorFor(5, 5, 11, 7, modes, work, mx + my), 0) << modes.x << modes.y;
        EXPECT_EQ(ErrorFor(5, 5, 11, 7, modes, work - 1, mx + my), 4) << modes.x << modes.y;
        EXPECT_EQ(ErrorFor(5, 5, 11, 7, modes, work, mx + my - 1), 4) << modes.x << modes.y;
    };
    needed({kLinear, kLinear}, mx + my + 2 * mx);
    needed({kCubic, kLinear}, mx + my + 2 * mx);
    needed({kLinear, kCubic}, mx + mx + 4 * my);
    needed({kCubic, kCubic}, mx + mx + 4 * my);
}
} // namespace

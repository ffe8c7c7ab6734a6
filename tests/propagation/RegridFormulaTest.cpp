#include "propagation/Regrid.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>
#include <vector>

// Regrid() on random grids against the textbook's sum over all source points that count, each with its weight.

namespace
{
using propagation::kCubic;
using propagation::kLinear;

struct Weight
{
    int point;
    double weight;
};

/// What the points of a direction count for one target point.
std::vector<Weight> WeightsOf(int sourceCount, int targetCount, int mode, int target)
{
    const double position = static_cast<double>(target * (sourceCount - 1)) / (targetCount - 1);
    const int interval = static_cast<int>(std::floor(position));
    const int first =
        mode == kCubic ? std::clamp(interval - 1, 0, sourceCount - 4) : std::min(interval, sourceCount - 2);
    const int last = first + mode;
    std::vector<Weight> weights;
    for (int a = first; a <= last; ++a)
    {
        double weight = 1;
        for (int b = first; b <= last; ++b)
            weight *= a == b ? 1 : (position - b) / (a - b);
        weights.push_back({a, weight});
    }
    return weights;
}

bool IsInterpolated(int sourceCount, int targetCount)
{
    return (sourceCount - 1) % (targetCount - 1) != 0;
}

/// A stretch of a larger array; what lies around it has to stay as it is.
template <class T>
class Guarded
{
public:
    explicit Guarded(std::size_t size) : m_size(size), m_all(size + 2 * kAround, kMark) {}

    std::span<T> Span() { return std::span(m_all).subspan(kAround, m_size); }
    bool IsUntouchedAround() const
    {
        return std::count(m_all.begin(), m_all.begin() + kAround, kMark) == kAround &&
               std::count(m_all.end() - kAround, m_all.end(), kMark) == kAround;
    }

private:
    static constexpr int kAround = 500;
    static constexpr T kMark{-7777};

    std::size_t m_size;
    std::vector<T> m_all;
};

struct Sizes
{
    int nx, ny, mx, my, modeX, modeY;
};

std::size_t WorkFor(const Sizes& s)
{
    const int forX = IsInterpolated(s.nx, s.mx) ? s.mx : 0;
    const int forY = !IsInterpolated(s.ny, s.my) ? 0 : s.modeY == kCubic ? s.mx + 4 * s.my : s.my + 2 * s.mx;
    return static_cast<std::size_t>(forX + forY);
}

void ExpectTheFormula(const Sizes& s, std::mt19937& random)
{
    const auto count = [](int columns, int rows) { return static_cast<std::size_t>(columns * rows); };
    std::uniform_real_distribution<double> any(-1.0, 1.0);
    std::vector<double> source(count(s.nx, s.ny));
    std::ranges::generate(source, [&] { return any(random); });
    Guarded<double> target(count(s.mx, s.my));
    Guarded<double> work(WorkFor(s));
    Guarded<int> indices(static_cast<std::size_t>(s.mx + s.my));
    ASSERT_EQ(propagation::Regrid(s.nx, s.ny, source, s.mx, s.my, target.Span(), s.modeX, s.modeY, work.Span(),
                                  indices.Span()),
              0);
    EXPECT_TRUE(target.IsUntouchedAround());
    EXPECT_TRUE(work.IsUntouchedAround());
    EXPECT_TRUE(indices.IsUntouchedAround());
    for (int j = 0; j < s.my; ++j)
        for (int i = 0; i < s.mx; ++i)
        {
            double expected = 0;
            for (const Weight& row : WeightsOf(s.ny, s.my, s.modeY, j))
                for (const Weight& column : WeightsOf(s.nx, s.mx, s.modeX, i))
                    expected += row.weight * column.weight * source[count(s.nx, row.point) + count(column.point, 1)];
            ASSERT_NEAR(target.Span()[count(s.mx, j) + count(i, 1)], expected, 1e-12) << i << ", " << j;
        }
}

TEST(RegridFormula, GivesEveryPointOnRandomGrids)
{
    std::mt19937 random(5);
    const auto between = [&](int least, int most) { return std::uniform_int_distribution(least, most)(random); };
    for (int i = 0; i < 700; ++i)
    {
        Sizes s{
            0, 0, between(2, 24), between(2, 24), between(0, 1) ? kLinear : kCubic, between(0, 1) ? kLinear : kCubic};
        s.nx = between(s.modeX == kCubic ? 4 : 2, 13);
        s.ny = between(s.modeY == kCubic ? 4 : 2, 13);
        SCOPED_TRACE(testing::Message() << s.nx << 'x' << s.ny << " to " << s.mx << 'x' << s.my << ", modes " << s.modeX
                                        << s.modeY);
        ExpectTheFormula(s, random);
        if (testing::Test::HasFailure())
            return;
    }
}

TEST(RegridFormula, HoldsOnLongThinGrids)
{
    std::mt19937 random(6);
    for (const int modeX : {kLinear, kCubic})
        for (const int modeY : {kLinear, kCubic})
        {
            ExpectTheFormula({4, 300, 7, 401, modeX, modeY}, random);
            ExpectTheFormula({300, 4, 401, 7, modeX, modeY}, random);
        }
}
} // namespace

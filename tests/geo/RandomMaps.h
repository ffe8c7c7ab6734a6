#pragma once

#include "geo/Angles.h"
#include "geo/InstructionSet.h"
#include "geo/MapDisc.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <limits>
#include <ostream>
#include <random>
#include <span>
#include <vector>

/// Maps at random, the awkward ones far more often than chance would have them.
class RandomMaps
{
public:
    explicit RandomMaps(std::uint64_t seed) : m_random(seed) {}

    geo::MapDisc Disc()
    {
        AzimuthalProjection projection;
        projection.Init(0, 0, CentreLat(), CentreLon());
        const std::int64_t radius = Often() ? 20000000 : Between(100000, 20000000);
        const int size = Often() ? static_cast<int>(Between(100, 700)) : OneOf({100, 101, 900, 901, 3999, 7999, 8000});
        const int margin = Often() ? 1 : OneOf({0, 10, 49, 5000});
        return {projection, MapFrame(size, radius, margin), Limit(radius)};
    }

    /// A few rows of a map, the station's own among them.
    std::vector<int> Rows(const geo::MapDisc& disc)
    {
        const int half = disc.frame.half;
        const int last = disc.frame.mapSize - 1;
        return {half, std::min(half + OneOf({-1, 1, 2}), last), AnyRow(disc), AnyRow(disc)};
    }

    std::int64_t Between(std::int64_t low, std::int64_t high)
    {
        return std::uniform_int_distribution<std::int64_t>(low, high)(m_random);
    }

    double Real(double low, double high) { return std::uniform_real_distribution<double>(low, high)(m_random); }

    bool Often() { return Between(0, 3) != 0; }

    template <class T>
    T OneOf(std::initializer_list<T> choices)
    {
        return choices.begin()[Between(0, static_cast<std::int64_t>(choices.size()) - 1)];
    }

    int AnyRow(const geo::MapDisc& disc) { return static_cast<int>(Between(0, disc.frame.mapSize - 1)); }

private:
    double CentreLat()
    {
        // Around a pole, on both sides of where it begins to count as one.
        const double offPole = OneOf({0.0, 1e-9, 0.3e-6, 0.999e-6, 1.001e-6, 2e-6, 1e-5}) * geo::kDegPerRad;
        return Often() ? Real(-90.0, 90.0)
                       : OneOf({90.0 - offPole, offPole - 90.0, 90.0 - offPole, 0.0, 1e-9, -45.0, 55.6875});
    }

    double CentreLon()
    {
        return Often() ? Real(-180.0, 180.0) : OneOf({-180.0, 180.0, 179.9999999, -179.9999999, 0.0, 90.0, 12.625});
    }

    std::int64_t Limit(std::int64_t radius)
    {
        using Limits = std::numeric_limits<std::int64_t>;
        return Often() ? OneOf<std::int64_t>({20000000, 20015078, radius})
                       : OneOf<std::int64_t>({Limits::max(), Limits::min(), -1, 0, 1, 2, 50000, 20015077, radius / 2});
    }

    std::mt19937_64 m_random;
};

/// The vectorised instruction sets that this machine has.
inline std::vector<geo::InstructionSet> VectorSets()
{
    using enum geo::InstructionSet;
    std::vector<geo::InstructionSet> sets{Baseline, Avx2, Avx512};
    std::erase_if(sets, [](geo::InstructionSet set) { return set > geo::BestInstructionSet(); });
    return sets;
}

namespace geo
{
inline std::ostream& operator<<(std::ostream& out, const MapDisc& disc)
{
    out.precision(17);
    return out << "centre " << disc.projection.centreLatDeg << '/' << disc.projection.centreLonDeg << ", size "
               << disc.frame.mapSize << ", " << disc.frame.metresPerPixel << " m/px, limit " << disc.limitMetres;
}
} // namespace geo

/// The first column in which two rows differ, or -1.
template <class Pixel>
int FirstDifference(const std::vector<Pixel>& row, const std::vector<Pixel>& other)
{
    const auto [at, otherAt] = std::mismatch(row.begin(), row.end(), other.begin(), other.end());
    return at == row.end() && otherAt == other.end() ? -1 : static_cast<int>(at - row.begin());
}

/// The row that a painter paints into its span, which must leave what lies beside it as it is.
template <class Pixel, class Paint>
std::vector<Pixel> PaintedRow(const geo::MapDisc& disc, Paint paint)
{
    constexpr std::size_t kRoom = 4;
    constexpr Pixel kUntouched{77};
    const auto size = static_cast<std::size_t>(disc.frame.mapSize);
    std::vector<Pixel> pixels(size + 2 * kRoom, kUntouched);
    paint(std::span(pixels).subspan(kRoom, size));
    for (std::size_t i = 0; i < kRoom; ++i)
    {
        EXPECT_EQ(pixels[i], kUntouched) << disc;
        EXPECT_EQ(pixels[size + kRoom + i], kUntouched) << disc;
    }
    return {pixels.begin() + kRoom, pixels.end() - kRoom};
}

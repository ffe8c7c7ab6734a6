#include "propagation/Regrid.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>

namespace propagation
{
namespace
{
std::size_t Size(int count)
{
    return static_cast<std::size_t>(count);
}

using CubicWeights = std::array<double, 4>;

/// Lagrange's weights of the points at -1, 0, 1 and 2.
CubicWeights CubicWeightsAt(double t)
{
    return {-t * (t - 1) * (t - 2) / 6, (t + 1) * (t - 1) * (t - 2) / 2, -(t + 1) * t * (t - 2) / 2,
            (t + 1) * t * (t - 1) / 6};
}

/// One direction of both grids.
class Axis
{
public:
    Axis(int sourceCount, int targetCount, int mode) : m_source(sourceCount), m_target(targetCount), m_mode(mode) {}

    bool HasKnownMode() const { return m_mode == kLinear || m_mode == kCubic; }
    bool HasEnoughSource() const { return m_source >= (m_mode == kCubic ? 4 : 2); }
    bool IsCubic() const { return m_mode == kCubic; }
    bool IsInterpolated() const { return m_source - Ratio() * (m_target - 1) != 1; }

    int Target() const { return m_target; }
    int Source() const { return m_source; }

    /// Finds the source interval of every target point, as the index of its first point, and the place in it, as a
    /// fraction. The last source point is the beginning of an interval of its own, so that no point is at the end of
    /// one.
    void FindIntervals(std::span<int> index, std::span<double> fraction) const
    {
        for (int i = 0; i < m_target; ++i)
        {
            const std::int64_t steps = std::int64_t{i} * (m_source - 1);
            const int whole = static_cast<int>(steps / (m_target - 1));
            index[Size(i)] = whole;
            if (!IsInterpolated())
                continue;
            const int first = m_mode == kCubic ? std::clamp(whole, 1, m_source - 3) : whole;
            index[Size(i)] = first;
            fraction[Size(i)] =
                static_cast<double>(steps % (m_target - 1)) / static_cast<double>(m_target - 1) + (whole - first);
        }
    }

private:
    int Ratio() const { return (m_source - 1) / (m_target - 1); }

    int m_source;
    int m_target;
    int m_mode;
};

double Between(double from, double to, double fraction)
{
    return from + fraction * (to - from);
}

/// Interpolates rows of the source along x.
class RowInterpolator
{
public:
    RowInterpolator(const Axis& axis, std::span<const double> source, std::span<const int> index,
                    std::span<const double> fraction)
        : m_axis(axis), m_source(source), m_index(index), m_fraction(fraction)
    {
    }

    void Interpolate(int sourceRow, std::span<double> out) const
    {
        const auto row = m_source.subspan(Size(sourceRow) * Size(m_axis.Source()));
        if (!m_axis.IsInterpolated())
            Pick(row, out);
        else if (m_axis.IsCubic())
            Cubic(row, out);
        else
            Linear(row, out);
    }

private:
    void Pick(std::span<const double> row, std::span<double> out) const
    {
        for (std::size_t i = 0; i < out.size(); ++i)
            out[i] = row[Size(m_index[i])];
    }

    void Linear(std::span<const double> row, std::span<double> out) const
    {
        for (std::size_t i = 0; i < out.size(); ++i)
        {
            const std::size_t first = Size(m_index[i]);
            // On a source point its neighbour does not count: it may be infinite, or there may be none.
            out[i] = m_fraction[i] == 0.0 ? row[first] : Between(row[first], row[first + 1], m_fraction[i]);
        }
    }

    /// There is room for one number a column, so the four weights are made anew for each row.
    void Cubic(std::span<const double> row, std::span<double> out) const
    {
        for (std::size_t i = 0; i < out.size(); ++i)
        {
            const CubicWeights weights = CubicWeightsAt(m_fraction[i]);
            const auto points = row.subspan(Size(m_index[i] - 1));
            out[i] = weights[0] * points[0] + weights[1] * points[1] + weights[2] * points[2] + weights[3] * points[3];
        }
    }

    const Axis& m_axis;
    std::span<const double> m_source;
    std::span<const int> m_index;
    std::span<const double> m_fraction;
};

std::span<double> TargetRow(std::span<double> target, std::size_t columns, std::size_t row)
{
    return target.subspan(row * columns, columns);
}

void PickRows(const RowInterpolator& rows, const Axis& x, const Axis& y, std::span<double> target,
              std::span<const int> index)
{
    for (std::size_t j = 0; j < Size(y.Target()); ++j)
        rows.Interpolate(index[j], TargetRow(target, Size(x.Target()), j));
}

/// @param work fractions of the rows, then room for two rows along x.
void InterpolateLinearly(const RowInterpolator& rows, const Axis& x, const Axis& y, std::span<double> target,
                         std::span<const int> index, std::span<double> work)
{
    const auto fraction = work.first(Size(y.Target()));
    // Even source rows stand in the first buffer, odd ones in the second.
    const std::array buffers{work.subspan(fraction.size(), Size(x.Target())),
                             work.subspan(fraction.size() + Size(x.Target()), Size(x.Target()))};
    std::array<std::optional<int>, buffers.size()> held;
    const auto sourceRow = [&](int row)
    {
        const std::size_t buffer = Size(row % 2);
        if (held[buffer] != row)
            rows.Interpolate(row, buffers[buffer]);
        held[buffer] = row;
        return buffers[buffer];
    };
    for (std::size_t j = 0; j < Size(y.Target()); ++j)
    {
        const auto from = sourceRow(index[j]);
        const auto out = TargetRow(target, Size(x.Target()), j);
        if (fraction[j] == 0.0)
        {
            std::ranges::copy(from, out.begin());
            continue;
        }
        const auto to = sourceRow(index[j] + 1);
        for (std::size_t i = 0; i < out.size(); ++i)
            out[i] = Between(from[i], to[i], fraction[j]);
    }
}

/// @param work four weights for each row, then room for one row along x. Each source row is interpolated once and
///             added to all the target rows that it has a part in.
void InterpolateCubically(const RowInterpolator& rows, const Axis& x, const Axis& y, std::span<double> target,
                          std::span<const int> index, std::span<double> work)
{
    const auto weights = work.first(4 * Size(y.Target()));
    const auto buffer = work.subspan(weights.size(), Size(x.Target()));
    std::ranges::fill(target.first(Size(x.Target()) * Size(y.Target())), 0.0);
    for (int row = 0; row < y.Source(); ++row)
    {
        rows.Interpolate(row, buffer);
        for (std::size_t j = 0; j < Size(y.Target()); ++j)
        {
            const int point = row - (index[j] - 1);
            if (point < 0 || point > 3)
                continue;
            const double weight = weights[4 * j + Size(point)];
            const auto out = TargetRow(target, Size(x.Target()), j);
            for (std::size_t i = 0; i < out.size(); ++i)
                out[i] += weight * buffer[i];
        }
    }
}

/// Turns the fractions at the beginning of an array into four weights each, from the last backwards.
void SpreadToCubicWeights(std::span<double> work, int count)
{
    for (std::size_t j = Size(count); j-- > 0;)
        std::ranges::copy(CubicWeightsAt(work[j]), work.subspan(4 * j).begin());
}

std::size_t WorkNeeded(const Axis& x, const Axis& y)
{
    const std::size_t mx = Size(x.Target());
    const std::size_t my = Size(y.Target());
    const std::size_t forX = x.IsInterpolated() ? mx : 0;
    const std::size_t forY = !y.IsInterpolated() ? 0 : y.IsCubic() ? mx + 4 * my : my + 2 * mx;
    return forX + forY;
}

int Check(const Axis& x, const Axis& y, std::size_t work, std::size_t indexWork)
{
    if (std::min(x.Target(), y.Target()) < 2)
        return kTargetTooSmall;
    if (!x.HasKnownMode() || !y.HasKnownMode())
        return kUnknownMode;
    if (!x.HasEnoughSource() || !y.HasEnoughSource())
        return kSourceTooSmall;
    return work < WorkNeeded(x, y) || indexWork < Size(x.Target()) + Size(y.Target()) ? kWorkTooShort : kRegridDone;
}
} // namespace

int Regrid(int nx, int ny, std::span<const double> source, int mx, int my, std::span<double> target, int modeX,
           int modeY, std::span<double> work, std::span<int> indexWork)
{
    const Axis x(nx, mx, modeX);
    const Axis y(ny, my, modeY);
    if (const int error = Check(x, y, work.size(), indexWork.size()); error != kRegridDone)
        return error;
    const auto fractionX = work.first(x.IsInterpolated() ? Size(mx) : 0);
    const auto workY = work.subspan(fractionX.size());
    const auto indexY = indexWork.subspan(Size(mx));
    x.FindIntervals(indexWork, fractionX);
    y.FindIntervals(indexY, workY);
    const RowInterpolator rows(x, source, indexWork, fractionX);
    if (!y.IsInterpolated())
        PickRows(rows, x, y, target, indexY);
    else if (y.IsCubic())
    {
        SpreadToCubicWeights(workY, my);
        InterpolateCubically(rows, x, y, target, indexY, workY);
    }
    else
        InterpolateLinearly(rows, x, y, target, indexY, workY);
    return kRegridDone;
}
} // namespace propagation

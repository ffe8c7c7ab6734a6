#include "geo/RowSampler.h"

#include "geo/Angles.h"
#include "geo/MirroredRow.h"
#include "geo/Truncate.h"

#include <cstddef>
#include <limits>

namespace geo
{
WorldCells::WorldCells(const std::uint32_t* pixels, int width, int height, std::uint32_t outside)
    : m_pixels(pixels),
      m_width(width),
      m_height(height),
      m_xScale(width / 360.0),
      m_yScale(height / 180.0),
      m_outside(outside)
{
}

WorldCells WorldCells::Filling(const std::uint32_t* pixels, int width, int height, std::uint32_t outside)
{
    return {pixels, width, height, outside};
}

WorldCells WorldCells::Lattice(const std::uint32_t* pixels, int perDegree)
{
    WorldCells picture = Filling(pixels, 360 * perDegree + 1, 180 * perDegree + 1, 0);
    picture.m_xScale = perDegree;
    picture.m_yScale = perDegree;
    return picture;
}

std::uint32_t WorldCells::At(LatLonRad position) const
{
    const int y = TruncateToInt32(m_yScale * (90.0 - position.lat * kDegPerRad));
    const int x = TruncateToInt32(m_xScale * (position.lon * kDegPerRad + 180.0));
    if (x < 0 || x >= m_width || y < 0 || y >= m_height)
        return m_outside;
    return m_pixels[static_cast<std::size_t>(y) * static_cast<std::size_t>(m_width) + static_cast<std::size_t>(x)];
}

CellGrid WorldCells::GridAround(double centreLon) const
{
    CellGrid grid{};
    grid.columnsPerRadian = m_xScale * kDegPerRad;
    grid.radiansPerColumn = 1.0 / grid.columnsPerRadian;
    grid.columnsAround = grid.columnsPerRadian * 2.0 * kPi;
    grid.centreColumn = grid.columnsPerRadian * (centreLon + kPi);
    grid.rowsPerRadian = m_yScale * kDegPerRad;
    grid.radiansPerRow = 1.0 / grid.rowsPerRadian;
    grid.rowsAlong = grid.rowsPerRadian * kPi;
    grid.stride = m_width;
    return grid;
}

bool WorldCells::IsIndexable() const
{
    // One column and one row more, because a cell is computed before it is known to be sure.
    return m_width > 0 && m_height > 0 &&
           (std::int64_t{m_width} + 1) * (std::int64_t{m_height} + 2) <= std::numeric_limits<std::int32_t>::max();
}

RowSampler::RowSampler(const MapDisc& disc, const WorldCells& picture, std::uint32_t elsewhere, InstructionSet set)
    : m_disc(disc),
      m_picture(picture),
      m_elsewhere(elsewhere),
      m_grid(picture.GridAround(disc.projection.centreLon)),
      m_kernels(disc.HasPlainScale() && picture.IsIndexable() ? KernelsFor(set) : nullptr)
{
}

std::uint32_t RowSampler::Pixel(int column, int row) const
{
    const auto position = m_disc.At(column, row);
    return position ? m_picture.At(*position) : m_elsewhere;
}

void RowSampler::Row(int row, std::span<std::uint32_t> out) const
{
    if (!m_kernels)
    {
        for (int column = 0; column < m_disc.frame.mapSize; ++column)
            out[static_cast<std::size_t>(column)] = Pixel(column, row);
        return;
    }
    const RowPlane plane(m_disc, row);
    const std::uint32_t* const pixels = m_picture.Pixels();
    PaintMirroredRow(
        m_disc, row, out, m_elsewhere, [&](const Columns& columns) { m_kernels->cells(plane, m_grid, columns); },
        [this, row, pixels](int column, std::int32_t cell) { return cell >= 0 ? pixels[cell] : Pixel(column, row); });
}
} // namespace geo

#pragma once

#include "geo/InstructionSet.h"
#include "geo/MapDisc.h"
#include "geo/RowKernel.h"

#include <cstdint>
#include <span>

namespace geo
{
/**
 * How the pixels of a picture of the whole world lie in longitude and latitude: 32-bit pixels, row after row, the
 * northernmost first, each from longitude -180 eastward. It refers to the pixels and does not own them.
 */
class WorldCells
{
public:
    /**
     * A picture whose pixels fill the globe: width / 360 and height / 180 of them to the degree.
     *
     * @param[in] outside what a read just beyond the picture gives. Longitude +180 and latitude -90, when they are met
     *                    exactly, lie one pixel beyond the last.
     */
    static WorldCells Filling(const std::uint32_t* pixels, int width, int height, std::uint32_t outside);

    /// A lattice of points on both edges as well: 360 perDegree + 1 columns and 180 perDegree + 1 rows. Every position
    /// takes the point to the west and north of it.
    static WorldCells Lattice(const std::uint32_t* pixels, int perDegree);

    /// The pixel under a position, cut off to whole columns and rows.
    std::uint32_t At(LatLonRad position) const;

    /// The cells as the row kernels count them, the station's longitude being given in radians.
    CellGrid GridAround(double centreLon) const;

    /// Whether a cell's index fits the kernels.
    bool IsIndexable() const;

    const std::uint32_t* Pixels() const { return m_pixels; }

private:
    WorldCells(const std::uint32_t* pixels, int width, int height, std::uint32_t outside);

    const std::uint32_t* m_pixels;
    int m_width;
    int m_height;
    double m_xScale; ///< columns a degree
    double m_yScale; ///< rows a degree
    std::uint32_t m_outside;
};

/**
 * A world picture seen through a map's projection: every map pixel gets the picture's pixel under it, the nearest to
 * the north-west, without filtering.
 */
class RowSampler
{
public:
    /**
     * @param[in] picture   must outlive the sampler.
     * @param[in] elsewhere what pixels outside the disc get, the station's own among them.
     * @param[in] set       if this processor lacks it, the best it has is taken.
     */
    RowSampler(const MapDisc& disc, const WorldCells& picture, std::uint32_t elsewhere,
               InstructionSet set = BestInstructionSet());

    /// One pixel by the plain arithmetic: what Row() has to give.
    std::uint32_t Pixel(int column, int row) const;

    /// A whole row; out has room for the map's size.
    void Row(int row, std::span<std::uint32_t> out) const;

    /// Whether every pixel is computed by the plain arithmetic, which takes many times as long.
    bool GoesThePlainWay() const { return !m_kernels; }

private:
    MapDisc m_disc;
    WorldCells m_picture;
    std::uint32_t m_elsewhere;
    CellGrid m_grid;
    const RowKernels* m_kernels; ///< none: the plain arithmetic
};
} // namespace geo

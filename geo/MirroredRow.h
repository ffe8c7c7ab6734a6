#pragma once

#include "geo/MapDisc.h"
#include "geo/RowKernel.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <span>

namespace geo
{
/**
 * Paints one row of a map from the station's column outward, a block of columns to both sides at a time.
 *
 * @param[out] out       the row, frame.mapSize pixels.
 * @param[in]  elsewhere what pixels outside the disc get.
 * @param[in]  kernel    called as kernel(columns) to work out a block.
 * @param[in]  pixel     pixel(column, result) turns the kernel's result for a column, or kAskPlain, into a pixel.
 */
template <class Pixel, class Kernel, class PixelOf>
void PaintMirroredRow(const MapDisc& disc, int row, std::span<Pixel> out, Pixel elsewhere, Kernel kernel, PixelOf pixel)
{
    const int centre = disc.frame.half;
    const int reach = disc.Reach(row);
    const int eastReach = std::min(reach, disc.frame.mapSize - 1 - centre); // an even picture ends sooner there
    std::fill(out.begin(), out.begin() + (centre - reach), elsewhere);
    std::fill(out.begin() + (centre + eastReach + 1), out.end(), elsewhere);
    Pixel* const station = out.data() + centre;
    *station = pixel(centre, kAskPlain);

    alignas(64) std::int32_t east[kKernelBlock];
    alignas(64) std::int32_t west[kKernelBlock];
    for (int first = 1; first <= reach; first += kKernelBlock)
    {
        const int count = std::min(kKernelBlock, reach - first + 1);
        const int eastCount = std::min(count, eastReach - first + 1);
        kernel(Columns{first, count, east, west});
        for (int i = 0; i < eastCount; ++i)
            station[first + i] = pixel(centre + first + i, east[i]);
        for (int i = 0; i < count; ++i)
            station[-first - i] = pixel(centre - first - i, west[i]);
    }
}
} // namespace geo

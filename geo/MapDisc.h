#pragma once

#include "geo/AzimuthalProjection.h"
#include "geo/LatLon.h"
#include "geo/MapFrame.h"

#include <cstdint>
#include <optional>

namespace geo
{
/**
 * The part of a map picture that shows the earth: the pixels whose distance d from the station, in whole metres,
 * satisfies 1 <= d < limit. Neither the station's own pixel nor anything beyond the antipode belongs to it.
 *
 * A value, fixed for the life of one map.
 */
class MapDisc
{
public:
    /// @param[in] limitMetres any number; 1 or less leaves the disc empty.
    MapDisc(const AzimuthalProjection& projection, const MapFrame& frame, std::int64_t limitMetres);

    /// The position that a pixel shows; none outside the disc. Columns and rows outside the picture are allowed.
    std::optional<LatLonRad> At(int column, int row) const;

    /// How many columns the disc reaches to the left and right of the station's column in a row of the picture, 0 for
    /// none; whether it covers the station's column itself is left open. Needs HasPlainScale().
    int Reach(int row) const;

    /// Whether the map is one that rows can be computed for: a centre on the globe, no offsets, and pixels of at least
    /// one metre, so that only the station's own pixel is nearer than one metre.
    bool HasPlainScale() const;

    AzimuthalProjection projection;
    MapFrame frame;
    std::int64_t limitMetres;

private:
    bool Covers(double x, double y) const;
};
} // namespace geo

#pragma once

#include "geo/MapFrame.h"

namespace render
{
/**
 * The disc of the map in pixels, for layers that draw bearings and distances without the projection: there great
 * circles through the station are straight lines and equal distances are circles.
 *
 * With an odd size its centre lies one pixel right of and below the station that MapFrame has; that is kept.
 */
struct DiscGeometry
{
    /// A margin that leaves no disc is taken as leaving one pixel.
    explicit DiscGeometry(const MapFrame& frame);

    /// The pixel in a direction (degrees clockwise from north) at a distance from the centre (pixels), truncated toward
    /// zero.
    geo::Pixel At(double bearingDeg, double distance) const;

    int centre; ///< column and row
    int radius; ///< pixels from the centre to the edge of the disc, at least 1
};
} // namespace render

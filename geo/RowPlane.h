#pragma once

#include "geo/MapDisc.h"

/// Constants of one row of a map: what the approximate arithmetic of geo/RowMath.h starts from. Distances are angles,
/// in radians: dx is a pixel's distance east of the station's column, z that from the station, and sinc z = sin z / z.
namespace geo
{
/**
 * The unit vector of the places in a row, x to the station's meridian, y eastward and z to the North Pole:
 * (xCos cos z + xSinc sinc z, dx sinc z, zCos cos z + zSinc sinc z).
 *
 * With a polar centre x and y give the direction only, which is all that the longitude needs.
 */
struct RowPlane
{
    RowPlane(const MapDisc& disc, int row);

    double step; ///< dx of one column
    double yy;   ///< square of the row's distance from the station
    double xCos;
    double xSinc;
    double zCos;
    double zSinc;
};

/// The cosine of the sun's distance from the places in a row: fromCos cos z + (fromSinc + fromColumn dx) sinc z.
struct SunPlane
{
    /// The position is that of the sub-solar point. Not for a centre that is nearly, but not exactly a pole.
    SunPlane(const MapDisc& disc, LatLonRad sun, int row);

    double step; ///< dx of one column
    double yy;   ///< square of the row's distance from the station
    double fromCos;
    double fromSinc;
    double fromColumn;
};
} // namespace geo

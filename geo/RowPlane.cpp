#include "geo/RowPlane.h"

#include <cmath>

namespace
{
double StepOf(const geo::MapDisc& disc)
{
    return disc.frame.metresPerPixel / AzimuthalProjection::kEarthRadius;
}

double NorthOf(const geo::MapDisc& disc, int row)
{
    return disc.frame.PixelToMap(disc.frame.half, row).y / AzimuthalProjection::kEarthRadius;
}
} // namespace

namespace geo
{
RowPlane::RowPlane(const MapDisc& disc, int row) : step(StepOf(disc))
{
    const AzimuthalProjection& projection = disc.projection;
    const double north = NorthOf(disc, row);
    yy = north * north;
    zCos = projection.sinLat0;
    zSinc = north * projection.cosLat0;
    const bool polar = projection.IsPolar();
    xCos = polar ? 0.0 : projection.cosLat0;
    xSinc = -north * (polar ? std::copysign(1.0, projection.centreLat) : projection.sinLat0);
}

SunPlane::SunPlane(const MapDisc& disc, LatLonRad sun, int row) : step(StepOf(disc))
{
    const AzimuthalProjection& projection = disc.projection;
    const double north = NorthOf(disc, row);
    const double east = sun.lon - projection.centreLon;
    const double sunZ = std::sin(sun.lat);
    const double sunX = std::cos(sun.lat) * std::cos(east);
    yy = north * north;
    fromCos = projection.sinLat0 * sunZ + projection.cosLat0 * sunX;
    fromSinc = north * (projection.cosLat0 * sunZ - projection.sinLat0 * sunX);
    fromColumn = std::cos(sun.lat) * std::sin(east);
}
} // namespace geo

#include "render/DiscGeometry.h"

#include "geo/Angles.h"
#include "geo/Truncate.h"

#include <algorithm>
#include <cmath>

namespace render
{
DiscGeometry::DiscGeometry(const MapFrame& frame)
    : centre((frame.mapSize + 1) / 2), radius(std::max(centre - frame.mapMargin, 1))
{
}

geo::Pixel DiscGeometry::At(double bearingDeg, double distance) const
{
    const double bearing = bearingDeg * geo::kRadPerDeg;
    return {geo::TruncateToInt32(centre + std::sin(bearing) * distance),
            geo::TruncateToInt32(centre - std::cos(bearing) * distance)};
}
} // namespace render

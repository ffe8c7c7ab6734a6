#include "geo/MapFrame.h"

#include "geo/Angles.h"
#include "geo/Truncate.h"

#include <algorithm>
#include <cmath>

namespace geo
{
RangeAndBearing RangeAndBearingOf(MapPoint point)
{
    const double bearing = std::atan2(point.x, point.y) * kDegPerRad;
    return {std::sqrt(point.x * point.x + point.y * point.y) / 1000.0, bearing < 0.0 ? bearing + 360.0 : bearing};
}
} // namespace geo

MapFrame::MapFrame(int size, std::int64_t radius, int margin)
    : mapSize(size),
      mapRadius(radius),
      mapMargin(margin),
      metresPerPixel(static_cast<double>(radius / std::max((size - 2 * margin) / 2, 1))),
      half(size / 2)
{
}

geo::Pixel MapFrame::MapToPixel(double x, double y) const
{
    return {geo::TruncateToInt32(x / metresPerPixel + half), geo::TruncateToInt32(half - y / metresPerPixel)};
}

geo::MapPoint MapFrame::PixelToMap(int column, int row) const
{
    return {(column - half) * metresPerPixel, (half - row) * metresPerPixel};
}

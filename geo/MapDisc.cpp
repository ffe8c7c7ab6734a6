#include "geo/MapDisc.h"

#include "geo/Angles.h"
#include "geo/Truncate.h"

#include <cmath>
#include <numeric>

namespace
{
constexpr double kRounding = 1e-9; ///< radians; a pole or the date line may round to a little more
} // namespace

namespace geo
{
MapDisc::MapDisc(const AzimuthalProjection& mapProjection, const MapFrame& mapFrame, std::int64_t limit)
    : projection(mapProjection), frame(mapFrame), limitMetres(limit)
{
}

std::optional<LatLonRad> MapDisc::At(int column, int row) const
{
    const MapPoint point = frame.PixelToMap(column, row);
    LatLonRad position{};
    const std::int64_t distance = projection.Inverse(position.lon, position.lat, point.x, point.y);
    if (distance < 1 || distance >= limitMetres)
        return std::nullopt;
    return position;
}

// What Inverse() and At() ask of the distance. It falls as |x| grows even after rounding, so the covered columns of a
// row are neighbours.
bool MapDisc::Covers(double x, double y) const
{
    const double rh = std::sqrt(x * x + y * y);
    return rh <= AzimuthalProjection::kAntipodeDistance && TruncateToInt64(rh) < limitMetres;
}

int MapDisc::Reach(int row) const
{
    const double y = frame.PixelToMap(frame.half, row).y;
    int reach = 0;
    int beyond = frame.half + 1;
    while (beyond - reach > 1)
    {
        const int middle = std::midpoint(reach, beyond);
        (Covers(middle * frame.metresPerPixel, y) ? reach : beyond) = middle;
    }
    return reach;
}

bool MapDisc::HasPlainScale() const
{
    return frame.mapSize > 1 && frame.half == frame.mapSize / 2 && frame.metresPerPixel >= 1.0 &&
           std::isfinite(frame.metresPerPixel) && projection.falseEasting == 0.0 && projection.falseNorthing == 0.0 &&
           std::fabs(projection.centreLat) <= kPi / 2 + kRounding && std::fabs(projection.centreLon) <= kPi + kRounding;
}
} // namespace geo

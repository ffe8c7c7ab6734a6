#pragma once

#include "render/MapView.h"

#include <cmath>
#include <numbers>

struct Position
{
    double lon; ///< degrees
    double lat;
};

/// The place that lies so many metres east and north of the station on the map, by rotating unit vectors: another way
/// than the program's.
inline Position PlaceAt(const MapView& view, double east, double north)
{
    constexpr double kRad = std::numbers::pi / 180;
    const double range = std::hypot(east, north);
    const double z = range / 6370997.0;
    const double lat0 = view.projection.centreLatDeg * kRad;
    const double n = std::sin(z) * north / range;
    const double e = std::sin(z) * east / range;
    const double outward = std::cos(z) * std::cos(lat0) - n * std::sin(lat0);
    const double up = std::cos(z) * std::sin(lat0) + n * std::cos(lat0);
    return {std::remainder(view.projection.centreLonDeg + std::atan2(e, outward) / kRad, 360.0),
            std::atan2(up, std::hypot(outward, e)) / kRad};
}

#pragma once

#include "geo/Angles.h"

namespace geo
{
/// A position in decimal degrees, north and east positive.
struct LatLon
{
    double lat;
    double lon;
};

/// A position in radians, north and east positive.
struct LatLonRad
{
    double lat;
    double lon;
};

constexpr LatLonRad InRadians(LatLon position)
{
    return {position.lat * kRadPerDeg, position.lon * kRadPerDeg};
}
} // namespace geo

#pragma once

#include "geo/AzimuthalProjection.h"

#include <cmath>

inline constexpr long double kPiL = 3.14159265358979323846264338327950288L;

struct TruePlace
{
    long double lat;
    long double turn; // eastward from the station
    long double q;
};

// The place that the inverse projection means, without its rounding.
inline TruePlace TruePlaceOf(const AzimuthalProjection& projection, long double x, long double y)
{
    const long double rh = std::sqrt(x * x + y * y);
    const long double z = rh / AzimuthalProjection::kEarthRadius;
    const long double sin0 = std::sin(static_cast<long double>(projection.centreLat));
    const long double cos0 = std::cos(static_cast<long double>(projection.centreLat));
    const long double north = std::sin(z) * y / rh;
    const long double east = std::sin(z) * x / rh;
    const long double towards = std::cos(z) * cos0 - north * sin0;
    const long double up = std::cos(z) * sin0 + north * cos0;
    const long double lat = std::atan2(up, std::hypot(towards, east));
    const long double turn =
        projection.IsPolar() ? std::atan2(x, projection.centreLat > 0.0 ? -y : y) : std::atan2(east, towards);
    return {lat, turn, std::sqrt(1.0L - std::fabs(up))};
}

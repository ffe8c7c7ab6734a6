#include "rotator/Azimuth.h"

#include <cmath>

namespace rotator
{
double RoundedBearing(double bearingDeg)
{
    return BearingOfAzimuth(std::round(bearingDeg * 10.0) / 10.0);
}

double LongPath(double bearingDeg)
{
    return BearingOfAzimuth(bearingDeg + 180.0);
}

double BearingOfAzimuth(double azimuthDeg)
{
    const double bearing = std::fmod(azimuthDeg, 360.0);
    // A tiny negative remainder gives a whole turn.
    return bearing < 0.0 ? std::fmod(bearing + 360.0, 360.0) : bearing;
}

double AngleBetween(double bearingDeg, double otherDeg)
{
    return std::abs(std::remainder(bearingDeg - otherDeg, 360.0));
}

double AzimuthForBearing(double bearingDeg, AzimuthRange range, std::optional<double> currentDeg)
{
    std::optional<double> nearest;
    const double from = currentDeg.value_or(bearingDeg);
    for (const double turn : {0.0, -360.0, 360.0})
    {
        const double azimuth = bearingDeg + turn;
        const bool isNearer = !nearest || std::abs(azimuth - from) < std::abs(*nearest - from);
        if (azimuth >= range.min && azimuth <= range.max && isNearer)
            nearest = azimuth;
    }
    return nearest.value_or(bearingDeg);
}
} // namespace rotator

#pragma once

#include "geo/AzimuthalProjection.h"

/// The projection around a station.
inline AzimuthalProjection Centred(double latDeg, double lonDeg)
{
    AzimuthalProjection projection;
    projection.Init(0, 0, latDeg, lonDeg);
    return projection;
}

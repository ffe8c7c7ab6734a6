#pragma once

#include <optional>

namespace rotator
{
/// The azimuths that a rotator can take, degrees. Common are 0..360, -180..180 and 0..450.
struct AzimuthRange
{
    double min = 0.0;
    double max = 360.0;
};

/// A bearing to the tenth of a degree to which bearings are shown: 0 <= bearing < 360.
double RoundedBearing(double bearingDeg);

/// The bearing along the long path: the opposite one, 0 <= bearing < 360.
double LongPath(double bearingDeg);

/// The bearing at which an antenna of this azimuth points: 0 <= bearing < 360. Azimuths may be negative or more than a
/// whole turn.
double BearingOfAzimuth(double azimuthDeg);

/// The smaller angle between two bearings, 0..180 degrees.
double AngleBetween(double bearingDeg, double otherDeg);

/**
 * The azimuth for a bearing: of those inside the range the one nearest to where the antenna stands now, and of two as
 * near the bearing itself.
 *
 * @param[in] currentDeg azimuth now, if it is known.
 * @return the bearing as it stands where none lies inside the range: the rotator will refuse it.
 */
double AzimuthForBearing(double bearingDeg, AzimuthRange range, std::optional<double> currentDeg);
} // namespace rotator

#pragma once

#include <cmath>
#include <cstdint>

/// Sine and cosine of an angle.
struct SineCosine
{
    explicit SineCosine(double rad) : sin(std::sin(rad)), cos(std::cos(rad)) {}

    double sin;
    double cos;
};

/**
 * Wraps an angle in radians into -pi..pi, in at most five rounds of subtracting whole turns.
 *
 * Both ends are left as they are: -pi stays -pi. Huge values (beyond about 1e38) may stay outside the range; NaN stays
 * NaN.
 */
double AdjustLon(double angle);

/**
 * The azimuthal equidistant projection of a sphere, seen from a station.
 *
 * Straight lines through the centre are great circles, the distance from the centre is the great-circle distance and
 * the direction is the bearing. North of the centre is up (positive y). Positions are radians, east and north
 * positive; map coordinates are metres east (x) and north (y) of the centre.
 *
 * The literal factors and the order of the operations decide which pixel is painted and must stay as they are.
 *
 * Snyder, Map Projections: A Working Manual, USGS Professional Paper 1395 (1987), section 25, equations 20-14 to 20-18,
 * 25-2, 25-4 and 25-15.
 */
class AzimuthalProjection
{
public:
    /// Radius of the sphere in metres.
    static constexpr double kEarthRadius = 6370997.0;

    /// pi R: the distance of the antipode in metres, the largest that Inverse() knows.
    static constexpr double kAntipodeDistance = 20015077.371242613;

    /**
     * Puts the centre at a position given in degrees; the offsets (metres) are added to all map coordinates.
     *
     * @pre -90 <= lat0Deg <= 90 and -180 <= lon0Deg <= 180.
     */
    void Init(int falseEasting, int falseNorthing, double lat0Deg, double lon0Deg);

    /**
     * Projects a position to the map plane.
     *
     * @return great-circle distance from the centre in whole metres, truncated. At the centre itself and at its
     *         antipode the formula has no value: what it gives there is not a number or arbitrary, and the smallest
     *         64-bit integer is returned for a distance that is not a number. Callers draw only points whose distance
     * is 1 or more.
     */
    std::int64_t Forward(double& x, double& y, double lonRad, double latRad) const;

    /// The same for many positions on one meridian or parallel, whose sines and cosines need not be computed anew.
    /// @param[in] east from EastOfCentre(). @param[in] lat of the latitude.
    std::int64_t Forward(double& x, double& y, const SineCosine& east, const SineCosine& lat) const;

    /// Of the angle from the centre's meridian to a longitude.
    SineCosine EastOfCentre(double lonRad) const;

    /**
     * The position that lies under a point of the map plane.
     *
     * @param[out] lonRad longitude in -pi..pi.
     * @param[out] latRad latitude in -pi/2..pi/2.
     * @return great-circle distance from the centre in whole metres, truncated; -1 beyond the antipode
     *         (20015077.37 m), where lonRad and latRad keep their values.
     *
     * The centre gives its own position and 0. With the centre at the North Pole its longitude points down the map, at
     * the South Pole up. Forward() of the result returns to (x, y) within 3 m up to 19000 km; the worst is near a pole,
     * where the arcsine loses digits. Closer to the antipode nothing is promised. x and y must be finite.
     */
    std::int64_t Inverse(double& lonRad, double& latRad, double x, double y) const;

    /// Whether the centre counts as a pole (within 1e-6 radians). Longitudes then follow from the direction alone.
    bool IsPolar() const;

    double sinLat0 = 0.0;
    double cosLat0 = 1.0;
    double centreLon = 0.0; ///< radians
    double centreLat = 0.0; ///< radians
    double falseNorthing = 0.0;
    double falseEasting = 0.0;
    double centreLatDeg = 0.0;
    double centreLonDeg = 0.0;
};

#pragma once

#include "geo/Locator.h"

#include <cstdint>

/**
 * Where the sun stands, by a low-precision solar theory: a Kepler ellipse whose elements are linear in time.
 *
 * Angles are degrees, east and north positive; the time scale is UT. Nutation, aberration, parallax, the pull of the
 * moon and the planets and the difference between UT and dynamical time are left out. From 1990 to 2050 the result
 * stays within 0.007 degrees of the apparent declination, 0.019 of the ecliptic longitude and the right ascension,
 * 0.010 of the Greenwich hour angle (2.4 seconds in the equation of time) and, before refraction, 0.011 of the place
 * in the sky.
 *
 * The literal factors and the order of the operations must stay as they are. Nothing here fails: whatever comes in,
 * arithmetic goes on, and what has no value becomes not a number.
 *
 * Paul Schlyter, How to compute planetary positions, sections 3 to 5 (day number, elements, position of the sun).
 */
class SunCalc
{
public:
    /// One computed position. "Reduced" is what Reduce() gives: between -360 and 360, with the sign kept.
    struct Result
    {
        double elevation;          ///< above the horizon, with refraction
        double azimuth;            ///< from north through east, 0..360
        double declination;        ///< -90..90
        double eclipticLongitude;  ///< true longitude of the sun, reduced
        double rightAscension;     ///< -180..180
        double gmst0;              ///< sidereal time at Greenwich at midnight: 180 + mean longitude, reduced
        double meanAnomaly;        ///< reduced
        double perihelion;         ///< argument of perihelion, reduced
        double eccentricity;       ///< of the orbit, no unit
        double obliquity;          ///< of the ecliptic, reduced
        double trueElevation;      ///< above the horizon, without refraction, -90..90
        double meanLongitude;      ///< reduced
        double greenwichHourAngle; ///< reduced; negative for a negative local hour angle at longitude 0

        /// The place that has the sun in the zenith. The longitude is not wrapped: it lies between -360 and 360.
        geo::LatLon SubSolarPoint() const { return {declination, -greenwichHourAngle}; }
    };

    /**
     * Days since 2000 January 0.0 UT: 1.0 is 2000-01-01 00:00.
     *
     * Right for the Gregorian dates from March 1900 to February 2100. Nothing is checked: month 13, day 0 or hour 99
     * give what the formula gives (day and time run over into their neighbours), and no combination of values
     * overflows.
     */
    static double DayNumber(int day, int month, int year, int hour, int minute, int second);

    /**
     * The sun at a day number, seen from a place on the globe.
     *
     * At the zenith and at the poles the azimuth is arbitrary within its range. Beyond two million years from 2000,
     * where the eccentricity leaves -1..1, most of the result is not a number.
     */
    static Result Position(double d, double observerLonDeg, double observerLatDeg);

    /**
     * The elevation at which the sun appears.
     *
     * For true elevations from -0.5 to 90; there it stays within 0.011 degrees of what the standard atmosphere does
     * (Meeus, Astronomical Algorithms, formula 16.4). Further below the horizon it means nothing and grows to thousands
     * of degrees at the nadir. The result is never less than the true elevation. At 10.2 degrees one formula takes over
     * from the other, with a step of less than 0.00001 degrees.
     */
    static double Refraction(double trueElevation);

    /// Removes whole turns: x - 360 trunc(x / 360), which keeps the sign of x.
    static double Reduce(double degrees);

    static double DegToRad(double degrees);
    static double RadToDeg(double radians);

    /**
     * The quotient truncated toward zero, as a double.
     *
     * @pre divisor > 0.
     */
    static double IntegerQuotient(std::int64_t dividend, std::int64_t divisor);
};

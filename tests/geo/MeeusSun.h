#pragma once

#include <cmath>
#include <cstddef>

/// The sun by another method than the program's: Jean Meeus, Astronomical Algorithms, 2nd edition (1998). Degrees.
namespace meeus
{
inline constexpr double kDegree = 0.017453292519943295;

/// Dynamical minus universal time in days: 65 s, within 30 s from 1990 to 2050. The sun moves 0.0004 degrees in 30 s.
inline constexpr double kDeltaT = 65.0 / 86400.0;

struct Sun
{
    double longitude; ///< apparent
    double rightAscension;
    double declination;
    double greenwichHourAngle;
};

struct Horizontal
{
    double azimuth; ///< from north
    double elevation;
};

inline double Sin(double degrees)
{
    return std::sin(degrees * kDegree);
}

inline double Cos(double degrees)
{
    return std::cos(degrees * kDegree);
}

/// One term of the earth's longitude: amplitude (1e-8 radians), phase and frequency (radians, a thousand years).
struct Term
{
    double amplitude;
    double phase;
    double frequency;
};

// Appendix III, the earth, L0 to L2: the terms of VSOP87 from 1e-6 radians (0.00006 degrees) up.
inline constexpr Term kLongitude0[] = {
    {175347046, 0, 0},
    {3341656, 4.6692568, 6283.0758500},
    {34894, 4.62610, 12566.15170},
    {3497, 2.7441, 5753.3849},
    {3418, 2.8289, 3.5231},
    {3136, 3.6277, 77713.7715},
    {2676, 4.4181, 7860.4194},
    {2343, 6.1352, 3930.2097},
    {1324, 0.7425, 11506.7698},
    {1273, 2.0371, 529.6910},
    {1199, 1.1096, 1577.3435},
    {990, 5.233, 5884.927},
    {902, 2.045, 26.298},
    {857, 3.508, 398.149},
    {780, 1.179, 5223.694},
    {753, 2.533, 5507.553},
    {505, 4.583, 18849.228},
    {492, 4.205, 775.523},
    {357, 2.920, 0.067},
    {317, 5.849, 11790.629},
    {284, 1.899, 796.298},
    {271, 0.315, 10977.079},
    {243, 0.345, 5486.778},
    {206, 4.806, 2544.314},
    {205, 1.869, 5573.143},
    {202, 2.458, 6069.777},
    {156, 0.833, 213.299},
    {132, 3.411, 2942.463},
    {126, 1.083, 20.775},
    {115, 0.645, 0.980},
    {103, 0.636, 4694.003},
    {102, 0.976, 15720.839},
    {102, 4.267, 7.114},
};
inline constexpr Term kLongitude1[] = {
    {628331966747, 0, 0}, {206059, 2.678235, 6283.075850}, {4303, 2.6351, 12566.1517}, {425, 1.590, 3.523},
    {119, 5.796, 26.298}, {109, 2.966, 1577.344},
};
inline constexpr Term kLongitude2[] = {
    {52919, 0, 0},
    {8720, 1.0721, 6283.0758},
    {309, 0.867, 12566.152},
};

template <std::size_t count>
double Sum(const Term (&terms)[count], double millennia)
{
    double sum = 0.0;
    for (const Term& term : terms)
        sum += term.amplitude * std::cos(term.phase + term.frequency * millennia);
    return sum;
}

/// Chapter 32: longitude of the earth around the sun, mean equinox of date.
inline double EarthLongitude(double millennia)
{
    const double sum = Sum(kLongitude0, millennia) +
                       millennia * (Sum(kLongitude1, millennia) + millennia * Sum(kLongitude2, millennia));
    return sum * 1e-8 / kDegree;
}

/// Chapter 25, higher accuracy, with the nutation of chapter 22 (its low accuracy) and the sidereal time of chapter
/// 12.
inline Sun SunAt(double julianDayUt)
{
    const double T = (julianDayUt + kDeltaT - 2451545.0) / 36525.0;
    const double node = 125.04452 - 1934.136261 * T;
    const double sunLongitude = 280.4665 + 36000.7698 * T;
    const double moonLongitude = 218.3165 + 481267.8813 * T;
    const double nutation =
        (-17.20 * Sin(node) - 1.32 * Sin(2 * sunLongitude) - 0.23 * Sin(2 * moonLongitude) + 0.21 * Sin(2 * node)) /
        3600;
    const double nutationInObliquity =
        (9.20 * Cos(node) + 0.57 * Cos(2 * sunLongitude) + 0.10 * Cos(2 * moonLongitude) - 0.09 * Cos(2 * node)) / 3600;
    const double obliquity =
        23.0 + (26.0 + (21.448 - T * (46.8150 + T * (0.00059 - T * 0.001813))) / 60) / 60 + nutationInObliquity;

    constexpr double kAberration = -20.4898 / 3600;
    const double longitude = EarthLongitude(T / 10) + 180 + kAberration + nutation;
    const double rightAscension = std::atan2(Cos(obliquity) * Sin(longitude), Cos(longitude)) / kDegree;
    const double declination = std::asin(Sin(obliquity) * Sin(longitude)) / kDegree;

    const double days = julianDayUt - 2451545.0;
    const double centuries = days / 36525.0;
    const double sidereal = 280.46061837 + 360.98564736629 * days + 0.000387933 * centuries * centuries;
    return {longitude, rightAscension, declination, sidereal + nutation * Cos(obliquity) - rightAscension};
}

/// Formulas 13.5 and 13.6, with the azimuth turned to count from north.
inline Horizontal FromPlace(const Sun& sun, double lonDeg, double latDeg)
{
    const double H = sun.greenwichHourAngle + lonDeg;
    const double tanDeclination = Sin(sun.declination) / Cos(sun.declination);
    const double fromSouth = std::atan2(Sin(H), Cos(H) * Sin(latDeg) - tanDeclination * Cos(latDeg)) / kDegree;
    const double sine = Sin(latDeg) * Sin(sun.declination) + Cos(latDeg) * Cos(sun.declination) * Cos(H);
    return {fromSouth + 180, std::asin(sine) / kDegree};
}

/// Formula 16.4 (Saemundsson): refraction in degrees at a true elevation, standard atmosphere.
inline double RefractionAt(double trueElevation)
{
    const double argument = trueElevation + 10.3 / (trueElevation + 5.11);
    return 1.02 / 60 * Cos(argument) / Sin(argument);
}
} // namespace meeus

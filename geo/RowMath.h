#pragma once

#include "geo/Angles.h"
#include "geo/RowPlane.h"

#include <algorithm>
#include <cmath>

/**
 * The inverse projection of a pixel by polynomials: no sine, no arc sine, one square root and one division, nothing
 * that branches, so that a compiler makes vectors of it.
 *
 * The results are approximate on purpose. What is painted depends only on whole numbers cut from them (a column, a row,
 * a grey level) and on comparisons, so a value far enough from the next decision decides as the plain arithmetic does,
 * and a value nearer to it than a guard is given to the plain arithmetic.
 *
 * The guard. Write q = sqrt(1 - |sin(latitude)|), which is between cos(latitude) / sqrt(2) and cos(latitude). An error
 * of the unit vector of a place moves its latitude and its longitude by at most that error / cos(latitude), so both
 * errors are bounded after multiplication by q:
 * - these polynomials: 4e-10, mostly the cosine (1.14e-10), the arc cosine (1.9e-10) and the arc tangent
 *   (1.4e-10);
 * - the plain arithmetic's own rounding: a few 1e-16 as a rule, but its longitude divides the rounding of
 *   cos z - sin(lat0) sin(lat) by cos(lat0), which is as small as 1e-6 before the rule for polar centres takes over:
 *   1e-9;
 * - the arithmetic of columns and levels, some 1e-15.
 * kGuard is more than six times their sum. The cosine of the sun's distance has the unit vector's error alone, so it is
 * compared with the edges of the greyzone under the same guard, without q; for the sun's height the zenith is the pole.
 *
 * Where q is below kPoleCap (900 m around a pole) q itself would be too uncertain, and the plain arithmetic decides. It
 * also does in the station's own column, where it has rules of its own for x = 0.
 *
 * The coefficients are minimax fits (tools/fit_row_polynomials.py).
 */
namespace geo::rowmath
{
inline constexpr double kGuard = 1e-8;   ///< radians times q
inline constexpr double kPoleCap = 1e-4; ///< smallest q that is trusted

[[gnu::always_inline]] inline double Polynomial(double, double last)
{
    return last;
}

/// first + second x + ... by Horner's rule.
template <class... Coefficients>
[[gnu::always_inline]] inline double Polynomial(double x, double first, Coefficients... others)
{
    return first + x * Polynomial(x, others...);
}

/// cos(sqrt(t)) for 0 <= t <= pi^2, within 1.14e-10.
[[gnu::always_inline]] inline double CosOfRoot(double t)
{
    return Polynomial(t, 0.9999999998864882, -0.49999999852174665, 0.04166666350769328, -0.00138888631560048,
                      2.4800556601446218e-05, -2.753484572438348e-07, 2.0603906483155244e-09, -9.723401893303192e-12);
}

/// sin(sqrt(t)) / sqrt(t) for 0 <= t <= pi^2, within 4e-11.
[[gnu::always_inline]] inline double SincOfRoot(double t)
{
    return Polynomial(t, 0.9999999999659569, -0.16666666645534364, 0.00833333299948015, -0.00019841247168325593,
                      2.7556518207643755e-06, -2.5036198658654236e-08, 1.5879468163180935e-10, -6.56368307645647e-13);
}

/// acos(s) / sqrt(1 - s) for 0 <= s <= 1; times 1 - s the error is below 1.9e-10.
[[gnu::always_inline]] inline double AcosOverRoot(double s)
{
    return Polynomial(s, 1.5707963266103926, -0.21460179031964757, 0.08904672975652798, -0.050762927725949224,
                      0.03344064725902705, -0.02324291153531401, 0.015312378795578643, -0.008234604983467264,
                      0.0029720590955979306, -0.0005123539893519137);
}

/// atan2(y, x) for y >= 0, within 1.4e-10; 0 when both are 0.
[[gnu::always_inline]] inline double AngleOf(double y, double x)
{
    constexpr double kTanEighth = 0.41421356237309503; // tan(pi / 8)
    constexpr double kNotZero = 1e-300;
    const double width = std::fabs(x);
    const double longer = std::max(width, y) + kNotZero;
    const double shorter = std::min(width, y);
    const bool turned = shorter > kTanEighth * longer; // by an eighth of a turn, to stay within tan(pi / 8)
    const double u = (turned ? shorter - longer : shorter) / (turned ? shorter + longer : longer);
    const double small = u * Polynomial(u * u, 0.9999999969616731, -0.3333327730448356, 0.19997197753028884,
                                        -0.14226273411185222, 0.1049209427693392, -0.05860938987320469);
    const double octant = turned ? small + kPi / 4 : small;
    const double quadrant = y > width ? kPi / 2 - octant : octant;
    return x < 0.0 ? kPi - quadrant : quadrant;
}

/// A latitude as its angle from the pole of its own hemisphere.
struct FromPole
{
    double angle; ///< radians, 0..pi/2
    double q;     ///< sqrt(1 - |sin(latitude)|)
};

[[gnu::always_inline]] inline FromPole AngleFromPole(double sinLat)
{
    const double s = std::fabs(sinLat);
    const double q = std::sqrt(std::fabs(1.0 - s)); // s may be a little above 1
    return {q * AcosOverRoot(s), q};
}

/// How far a number, not negative and below 2^31, is from the next whole number.
[[gnu::always_inline]] inline double FromWhole(double value, int truncated)
{
    return 0.5 - std::fabs(value - truncated - 0.5);
}

/// Whether a margin, in radians, to the next decision is beyond the guard at a latitude of that q. One comparison,
/// which the vectors of every instruction set can do.
[[gnu::always_inline]] inline bool IsSure(double margin, double q)
{
    constexpr double kPerRadian = kPoleCap / kGuard;
    const double scaled = margin * q * kPerRadian;
    return std::min(scaled, q) > kPoleCap;
}

/// The unit vector of a place: x to the station's meridian, y eastward, z to the North Pole.
struct UnitVector
{
    double x;
    double y;
    double z;
};

/// That of the pixels a number of columns (1 or more) to the right; y changes its sign to the left.
[[gnu::always_inline]] inline UnitVector UnitVectorOf(const RowPlane& row, double columns)
{
    const double dx = columns * row.step;
    const double zz = dx * dx + row.yy;
    const double cosz = CosOfRoot(zz);
    const double sinc = SincOfRoot(zz);
    return {row.xCos * cosz + row.xSinc * sinc, std::fabs(dx * sinc), row.zCos * cosz + row.zSinc * sinc};
}

/// Cosine of the sun's distance from the pixels the same number of columns to the right and to the left.
struct SunCosines
{
    double east;
    double west;
};

[[gnu::always_inline]] inline SunCosines SunCosinesOf(const SunPlane& row, double columns)
{
    const double dx = columns * row.step;
    const double zz = dx * dx + row.yy;
    const double sinc = SincOfRoot(zz);
    const double shared = row.fromCos * CosOfRoot(zz) + row.fromSinc * sinc;
    const double side = row.fromColumn * dx * sinc;
    return {shared + side, shared - side};
}
} // namespace geo::rowmath

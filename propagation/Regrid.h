#pragma once

#include <span>

namespace propagation
{
inline constexpr int kLinear = 1;
inline constexpr int kCubic = 3;

/// What Regrid() returns.
enum RegridError
{
    kRegridDone = 0,
    kTargetTooSmall = 1,
    kSourceTooSmall = 2,
    kUnknownMode = 3,
    kWorkTooShort = 4
};

/**
 * Interpolates from one uniform grid to another over the same rectangle; either may be the finer one.
 *
 * Element (column, row) of a grid stands at row * columns + column, its outermost points on the rectangle's edges. A
 * target point that lies on a source point takes its value as it is, and between equal values linear interpolation
 * gives exactly that value. Where the target's points of a direction all lie on source points nothing is interpolated
 * in it.
 *
 * @param[in]  source      nx * ny values.
 * @param[out] target      mx * my values; left as it is on an error.
 * @param[in]  modeX,modeY kLinear, or kCubic: through the four points around, at the edges through the last four.
 * @param      work        at least mx numbers if x is interpolated; and if y is, my + 2 mx more (linear) or mx + 4 my
 *                         more (cubic).
 * @param      indexWork   at least mx + my numbers.
 * @return 0, or the first of these that applies: 1 for fewer than 2 target points in a direction; 3 for an unknown
 *         mode; 2 for fewer than 2 (linear) or 4 (cubic) source points in a direction; 4 for a work array too short.
 */
int Regrid(int nx, int ny, std::span<const double> source, int mx, int my, std::span<double> target, int modeX,
           int modeY, std::span<double> work, std::span<int> indexWork);
} // namespace propagation

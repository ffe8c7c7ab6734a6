#pragma once

namespace geo
{
/// Degrees to radians, as settings, label files and grids are converted. The literal decides which pixel is painted.
inline constexpr double kRadPerDeg = 0.01745329251994328;

/// Radians to degrees, with ten decimals on purpose: pixels and read-outs are computed with this value, not with
/// 180/pi.
inline constexpr double kDegPerRad = 57.2957795131;

inline constexpr double kPi = 3.141592653589793;
} // namespace geo

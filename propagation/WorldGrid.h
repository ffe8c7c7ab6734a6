#pragma once

#include "propagation/ClassScale.h"
#include "propagation/ResultReader.h"

#include <cstdint>
#include <vector>

namespace propagation
{
/// A grid over the whole world in steps of 0.2 degrees, both edges included: longitude index i = 0..1800 for
/// -180..180, latitude index j = 0..900 for -90..90, at j * kWorldColumns + i.
inline constexpr int kPointsPerDegree = 5;
inline constexpr int kWorldColumns = 360 * kPointsPerDegree + 1;
inline constexpr int kWorldRows = 180 * kPointsPerDegree + 1;

/// The values of a result, interpolated linearly.
std::vector<double> WorldValues(const ResultGrid& result);

/// The class of each value, the northernmost row first: a lattice of 5 points a degree as geo::WorldCells has it.
std::vector<std::uint32_t> WorldClasses(const std::vector<double>& values, const ClassScale& scale);
} // namespace propagation

#pragma once

#include "propagation/LineReader.h"

#include <vector>

namespace propagation
{
/// The propagation parameters that can be drawn: the indexes of config::kParameters.
enum class Parameter
{
    Sdbw, ///< median signal power at the receiver, dBW
    Snr,  ///< median signal-to-noise ratio, dB
    Muf,  ///< MHz
    Rel   ///< circuit reliability, 0..1
};

/// The parameter of a setting; a value outside 0..3 is SDBW.
Parameter ParameterOf(int setting);

/// One parameter over the whole world.
struct ResultGrid
{
    int points{};               ///< along each side
    std::vector<double> values; ///< from the south-west corner, longitude running fastest; both edges included
    double minimum = 999.0;     ///< of the values that were read
    double maximum = -999.0;
    std::size_t withoutValue = 0; ///< points that have no number in the file, or no line; their value is 0
};

/**
 * Reads one parameter from an area result, a ".vg1" or ".ig1" file.
 *
 * The third line begins with the number of points in three characters; the points follow, a line each, with the
 * parameter at a fixed place. A field that begins with no number is 0; lines are not checked otherwise. Points that a
 * short file lacks are 0 and do not count for minimum and maximum; so is a point whose field is cut off by the end of
 * the file.
 *
 * @return none when the file has fewer than 18 points a side.
 */
std::optional<ResultGrid> ReadResult(LineReader& file, Parameter parameter);
} // namespace propagation

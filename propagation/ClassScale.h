#pragma once

#include "config/Settings.h"
#include "propagation/ResultReader.h"

#include <wx/colour.h>

#include <cstdint>

namespace propagation
{
/// How the values of a parameter are sorted into classes, and the colours of these; index 0 is the lowest.
struct ClassScale
{
    std::array<double, ColourScale::kSteps> thresholds{};
    std::array<wxColour, ColourScale::kSteps> colours;
};

/**
 * The scale of the chosen parameter.
 *
 * With automatic levels the thresholds divide the range of the grid's values evenly; the highest is the maximum, so the
 * highest class stays empty.
 *
 * @param[in] settings thresholds that are not numbers are 0.
 */
ClassScale ScaleOf(const PropagationSettings& settings, const ResultGrid& grid);

/// The highest class whose threshold lies below a value, 0..9. The lowest threshold does not count: what lies below all
/// others is class 0. So is what is not a number.
inline std::uint32_t ClassOf(double value, const std::array<double, ColourScale::kSteps>& thresholds)
{
    std::uint32_t found = 0;
    for (std::uint32_t k = 1; k < thresholds.size(); ++k)
        found = value > thresholds[k] ? k : found;
    return found;
}
} // namespace propagation

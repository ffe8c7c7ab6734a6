#include "propagation/ClassScale.h"

#include "propagation/NumberOf.h"
#include "render/Style.h"

#include <algorithm>
#include <cmath>

namespace propagation
{
namespace
{
wxColour GreyOfClass(std::size_t k)
{
    const auto level = static_cast<unsigned char>(25 * k);
    return {level, level, level};
}

double AutomaticThreshold(const ResultGrid& grid, std::size_t k)
{
    const double step = std::abs(grid.maximum - grid.minimum) / 10.0;
    return (grid.minimum + step) + static_cast<double>(k) * step;
}
} // namespace

ClassScale ScaleOf(const PropagationSettings& settings, const ResultGrid& grid)
{
    const ColourScale& stored = settings.scales[static_cast<std::size_t>(ParameterOf(settings.parameter))];
    const bool automatic = settings.autoLevel == 1;
    ClassScale scale;
    for (std::size_t k = 0; k < ColourScale::kSteps; ++k)
    {
        scale.colours[k] = settings.greyScale == 1 ? GreyOfClass(k) : ColourFromSetting(stored.colours[k]);
        scale.thresholds[k] = automatic ? AutomaticThreshold(grid, k) : NumberOf(stored.values[k]);
    }
    // The sum of the steps may be rounded to just below the maximum.
    if (automatic)
        scale.thresholds.back() = std::max(scale.thresholds.back(), grid.maximum);
    return scale;
}
} // namespace propagation

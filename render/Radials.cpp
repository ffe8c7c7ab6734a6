#include "render/Radials.h"

#include "render/ChainStroker.h"
#include "render/DiscGeometry.h"

#include <algorithm>
#include <array>

namespace render
{
int RadialStepDeg(int every)
{
    static constexpr std::array<int, 5> kSteps{5, 10, 15, 30, 45};
    return kSteps[static_cast<std::size_t>(std::clamp(every, 0, static_cast<int>(kSteps.size()) - 1))];
}

void DrawRadials(wxDC& dc, const MapView& view, int every)
{
    const DiscGeometry disc(view.frame);
    const geo::Pixel centre{disc.centre, disc.centre};
    ChainStroker segment(dc);
    for (int degree = 0; degree < 360; degree += RadialStepDeg(every))
        segment(centre, disc.At(degree, disc.radius));
}
} // namespace render

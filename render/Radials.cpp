#include "render/Radials.h"

#include "render/ChainStroker.h"
#include "render/DiscGeometry.h"

namespace render
{
int RadialStepDeg(int every)
{
    return config::Chosen(kRadialSteps, every).value;
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

#include "render/Compass.h"

#include "render/ChainStroker.h"
#include "render/DiscDrawing.h"
#include "render/Style.h"

namespace render
{
namespace
{
constexpr int kCentreMarkRadius = 4;
} // namespace

int CompassTickLength(const MapFrame& frame)
{
    return frame.mapSize / 100;
}

CompassTick CompassTickAt(const DiscGeometry& disc, int tickLength, int degree)
{
    const int length = degree % 10 == 0 ? tickLength * 3 / 2 : tickLength;
    return {disc.At(degree, disc.radius), disc.At(degree, disc.radius - length)};
}

void DrawCompass(wxDC& dc, const MapView& view)
{
    const DiscGeometry disc(view.frame);
    const int tickLength = CompassTickLength(view.frame);
    DrawCircle(dc, disc, kCentreMarkRadius);
    DrawCircle(dc, disc, disc.radius);
    DrawCircle(dc, disc, disc.radius - tickLength);
    ChainStroker segment(dc);
    for (int degree = 0; degree < 360; ++degree)
    {
        const CompassTick tick = CompassTickAt(disc, tickLength, degree);
        segment(tick.outer, tick.inner);
    }
}

void DrawCompassText(wxDC& dc, const MapView& view, const TextStyle& style)
{
    SetTextStyle(dc, style.font, style.colour);
    const DiscGeometry disc(view.frame);
    for (int degree = 0; degree < 360; degree += 10)
        DrawNumberAlongCircle(dc, disc, degree, degree, disc.radius, disc.centre);
}
} // namespace render

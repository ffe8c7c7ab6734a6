#include "render/RangeCircles.h"

#include "render/DiscDrawing.h"
#include "render/Style.h"

namespace render
{
long RangeCircleStepKm(long distanceKm)
{
    return distanceKm <= 99 ? 100 : distanceKm;
}

void DrawRangeCircles(wxDC& dc, const MapView& view, const RangeCirclesSettings& circles, const wxString& font)
{
    SetTextStyle(dc, font, circles.colour);
    const DiscGeometry disc(view.frame);
    const double bearing = static_cast<double>(circles.legendBearingDeg);
    TraceRangeCircles(view, RangeCircleStepKm(circles.distanceKm),
                      [&](long km, int radius)
                      {
                          DrawCircle(dc, disc, radius);
                          if (circles.legendShow)
                              DrawNumberAlongCircle(dc, disc, km, bearing, radius, radius);
                      });
}
} // namespace render

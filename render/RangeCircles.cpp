#include "render/RangeCircles.h"

#include "geo/Truncate.h"
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
    const long step = RangeCircleStepKm(circles.distanceKm);
    const double bearing = static_cast<double>(circles.legendBearingDeg);
    for (long km = step; km < view.frame.mapRadius / 1000; km += step)
    {
        const int radius = geo::TruncateToInt32(static_cast<double>(km * 1000) / view.frame.metresPerPixel);
        DrawCircle(dc, disc, radius);
        if (circles.legendShow)
            DrawNumberAlongCircle(dc, disc, km, bearing, radius, radius);
    }
}
} // namespace render

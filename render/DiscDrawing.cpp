#include "render/DiscDrawing.h"

#include "geo/Angles.h"

#include <wx/graphics.h>

#include <cmath>

namespace render
{
void DrawCircle(wxDC& dc, const DiscGeometry& disc, int radius)
{
    // The toolkit scales a circle by width / height.
    if (radius >= 1)
        dc.DrawEllipse(disc.centre - radius, disc.centre - radius, 2 * radius, 2 * radius);
}

void DrawNumberAlongCircle(wxDC& dc, const DiscGeometry& disc, long number, double bearingDeg, int radius,
                           int anchorRadius)
{
    const wxString text = wxString::Format("%ld", number);
    const double shift = std::atan2(dc.GetTextExtent(text).y, radius) * geo::kDegPerRad / 2.5;
    const geo::Pixel anchor = disc.At(bearingDeg - shift, anchorRadius);
    // The rotation is taken back by the opposite one, which would leave a rounding error for the texts to come.
    wxGraphicsContext* const context = dc.GetGraphicsContext();
    context->PushState();
    dc.DrawRotatedText(text, anchor.x, anchor.y, 360 - bearingDeg);
    context->PopState();
}
} // namespace render

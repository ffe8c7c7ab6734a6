#include "render/Hatch.h"

#include <wx/bitmap.h>
#include <wx/graphics.h>
#include <wx/image.h>

namespace render
{
namespace
{
constexpr int kSide = std::tuple_size_v<HatchPattern>;

/// The pattern in a colour, on a transparent ground.
wxBitmap StippleBitmap(const HatchPattern& pattern, const wxColour& colour)
{
    wxImage image(kSide, kSide);
    image.InitAlpha();
    for (int y = 0; y < kSide; ++y)
        for (int x = 0; x < kSide; ++x)
        {
            image.SetRGB(x, y, colour.Red(), colour.Green(), colour.Blue());
            const bool isSet = (pattern[static_cast<std::size_t>(y)] >> x & 1) != 0;
            image.SetAlpha(x, y, isSet ? wxALPHA_OPAQUE : wxALPHA_TRANSPARENT);
        }
    return wxBitmap(image);
}

/// Through the middles of the pixels, as the outline runs: without a pen the toolkit would fill from the corners of the
/// pixels, and leave holes beside the right and lower edges.
wxGraphicsPath PathThrough(wxGraphicsContext& context, std::span<const wxPoint> corners)
{
    constexpr double kMiddle = 0.5;
    wxGraphicsPath path = context.CreatePath();
    for (const wxPoint& corner : corners)
        path.AddLineToPoint(corner.x + kMiddle, corner.y + kMiddle);
    path.CloseSubpath();
    return path;
}
} // namespace

// The toolkit's own hatch brushes are smoothed even where shapes are not.
Hatch::Hatch(int stipple, const wxColour& fillColour, const wxColour& borderColour)
    : m_fill(StippleBitmap(config::Chosen(kHatchings, stipple).value, fillColour)), m_border(borderColour)
{
}

void Hatch::FillPolygon(wxDC& dc, std::span<const wxPoint> corners) const
{
    // In two steps: under a pen of one pixel the pattern would be shifted by half a pixel and smoothed.
    dc.SetPen(*wxTRANSPARENT_PEN);
    dc.SetBrush(m_fill);
    wxGraphicsContext& context = *dc.GetGraphicsContext();
    context.FillPath(PathThrough(context, corners), wxODDEVEN_RULE);
    dc.SetPen(m_border);
    dc.SetBrush(*wxTRANSPARENT_BRUSH);
    dc.DrawPolygon(static_cast<int>(corners.size()), corners.data());
}
} // namespace render

#include "render/Hatch.h"

#include <wx/bitmap.h>
#include <wx/graphics.h>
#include <wx/image.h>

#include <algorithm>
#include <array>
#include <cstdint>

namespace render
{
namespace
{
constexpr int kSide = 8;

/// Rows of a pattern from the top; bit 0 is the leftmost pixel.
using Pattern = std::array<std::uint8_t, kSide>;

constexpr std::array<Pattern, 7> kPatterns{{
    {0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF},
    {0x80, 0x40, 0x20, 0x10, 0x08, 0x04, 0x02, 0x01},
    {0x81, 0x42, 0x24, 0x18, 0x18, 0x24, 0x42, 0x81},
    {0x01, 0x02, 0x04, 0x08, 0x10, 0x20, 0x40, 0x80},
    {0x10, 0x10, 0x10, 0xFF, 0x10, 0x10, 0x10, 0x10},
    {0x00, 0x00, 0x00, 0xFF, 0x00, 0x00, 0x00, 0x00},
    {0x10, 0x10, 0x10, 0x10, 0x10, 0x10, 0x10, 0x10},
}};

/// The pattern in a colour, on a transparent ground.
wxBitmap StippleBitmap(const Pattern& pattern, const wxColour& colour)
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

const Pattern& PatternOf(int stipple)
{
    return kPatterns[static_cast<std::size_t>(std::clamp(stipple, 0, static_cast<int>(kPatterns.size()) - 1))];
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
    : m_fill(StippleBitmap(PatternOf(stipple), fillColour)), m_border(borderColour)
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

#pragma once

#include <wx/brush.h>
#include <wx/colour.h>
#include <wx/dc.h>
#include <wx/pen.h>

#include <span>

namespace render
{
/// Fills polygons with a hatching and outlines them.
class Hatch
{
public:
    /// @param[in] stipple 0 solid, then hatched: 1 backward diagonal, 2 crossed diagonal, 3 forward diagonal, 4 cross,
    ///                    5 horizontal, 6 vertical. What lies outside is taken as the nearest.
    Hatch(int stipple, const wxColour& fillColour, const wxColour& borderColour);

    /// Fills a polygon by the odd-even rule and draws its outline, one pixel wide. On a drawing context without
    /// smoothing only the two colours occur.
    void FillPolygon(wxDC& dc, std::span<const wxPoint> corners) const;

private:
    wxBrush m_fill;
    wxPen m_border;
};
} // namespace render

#pragma once

#include "config/Choice.h"

#include <wx/brush.h>
#include <wx/colour.h>
#include <wx/dc.h>
#include <wx/pen.h>

#include <array>
#include <cstdint>
#include <span>

namespace render
{
/// Eight rows of a pattern from the top; bit 0 is the leftmost pixel.
using HatchPattern = std::array<std::uint8_t, 8>;

inline constexpr config::Choice<HatchPattern> kHatchings[] = {
    {"Solid", {0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF}},
    {"Diagonal 1", {0x80, 0x40, 0x20, 0x10, 0x08, 0x04, 0x02, 0x01}},
    {"Cross Diagonal", {0x81, 0x42, 0x24, 0x18, 0x18, 0x24, 0x42, 0x81}},
    {"Diagonal 2", {0x01, 0x02, 0x04, 0x08, 0x10, 0x20, 0x40, 0x80}},
    {"Cross", {0x10, 0x10, 0x10, 0xFF, 0x10, 0x10, 0x10, 0x10}},
    {"Horizontal", {0x00, 0x00, 0x00, 0xFF, 0x00, 0x00, 0x00, 0x00}},
    {"Vertical", {0x10, 0x10, 0x10, 0x10, 0x10, 0x10, 0x10, 0x10}},
};

/// Fills polygons with a hatching and outlines them.
class Hatch
{
public:
    /// @param[in] stipple choice of kHatchings; one outside the table is taken as the nearest.
    Hatch(int stipple, const wxColour& fillColour, const wxColour& borderColour);

    /// Fills a polygon by the odd-even rule and draws its outline, one pixel wide. On a drawing context without
    /// smoothing only the two colours occur.
    void FillPolygon(wxDC& dc, std::span<const wxPoint> corners) const;

private:
    wxBrush m_fill;
    wxPen m_border;
};
} // namespace render

#pragma once

#include "geo/MapFrame.h"

#include <wx/dc.h>

namespace render
{
/// Where a label stands relative to its place.
enum class Alignment
{
    Centre,
    Left,
    Right,
    Top,
    Bottom
};

/// The box of a text around or beside its place, in pixels; halves are rounded down.
wxRect LabelBox(geo::Pixel place, wxSize extent, Alignment alignment);

/// Writes a text into its box with the font and colour of the drawing context. One that lies outside the picture is
/// left out.
void DrawLabel(wxDC& dc, const wxString& text, const wxRect& box);
} // namespace render

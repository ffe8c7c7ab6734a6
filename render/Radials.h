#pragma once

#include "render/MapView.h"

#include <wx/dc.h>

namespace render
{
/// Degrees between radials for the choice "Every": 5, 10, 15, 30 or 45. A choice outside 0..4 is taken as the nearest.
int RadialStepDeg(int every);

/// Draws lines from the centre to the edge of the disc, the first one to the north.
void DrawRadials(wxDC& dc, const MapView& view, int every);
} // namespace render

#pragma once

#include "config/Choice.h"
#include "render/MapView.h"

#include <wx/dc.h>

namespace render
{
/// Degrees between radials.
inline constexpr config::Choice<int> kRadialSteps[] = {{"5 deg Radials", 5},
                                                       {"10 deg Radials", 10},
                                                       {"15 deg Radials", 15},
                                                       {"30 deg Radials", 30},
                                                       {"45 deg Radials", 45}};

/// Degrees between radials for a choice; one outside the table is taken as the nearest.
int RadialStepDeg(int every);

/// Draws lines from the centre to the edge of the disc, the first one to the north.
void DrawRadials(wxDC& dc, const MapView& view, int every);
} // namespace render

#pragma once

#include "render/MapView.h"

#include <wx/dc.h>

namespace render
{
/// Kilometres between range circles for a setting: 99 or less becomes 100, which is also written back to the setting.
long RangeCircleStepKm(long distanceKm);

/**
 * Draws circles of equal distance inside the radius of the map and, if wanted, their distances in kilometres at one
 * bearing.
 *
 * @param[in] font description of the font of the distances: the compass has the same.
 */
void DrawRangeCircles(wxDC& dc, const MapView& view, const RangeCirclesSettings& circles, const wxString& font);
} // namespace render

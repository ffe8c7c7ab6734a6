#pragma once

#include "geo/Truncate.h"
#include "render/MapView.h"

#include <wx/dc.h>

namespace render
{
/// Kilometres between range circles for a setting: 99 or less becomes 100, which is also written back to the setting.
long RangeCircleStepKm(long distanceKm);

/// Calls circle(km, radius), kilometres and pixels, for every multiple of a distance that is less than the map's
/// radius.
template <class Sink>
void TraceRangeCircles(const MapView& view, long stepKm, Sink circle)
{
    for (long km = stepKm; km < view.frame.mapRadius / 1000; km += stepKm)
        circle(km, geo::TruncateToInt32(static_cast<double>(km * 1000) / view.frame.metresPerPixel));
}

/**
 * Draws circles of equal distance inside the radius of the map and, if wanted, their distances in kilometres at one
 * bearing.
 *
 * @param[in] font description of the font of the distances: the compass has the same.
 */
void DrawRangeCircles(wxDC& dc, const MapView& view, const RangeCirclesSettings& circles, const wxString& font);
} // namespace render

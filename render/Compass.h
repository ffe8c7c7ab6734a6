#pragma once

#include "render/DiscGeometry.h"
#include "render/MapView.h"

#include <wx/dc.h>

namespace render
{
/// One tick of the ring, from its outer to its inner end.
struct CompassTick
{
    geo::Pixel outer;
    geo::Pixel inner;
};

/// Length of the ticks between the tens in pixels: a hundredth of the side of the map.
int CompassTickLength(const MapFrame& frame);

/// The tick of a whole degree, clockwise from north. Those of the tens are half as long again, truncated.
CompassTick CompassTickAt(const DiscGeometry& disc, int tickLength, int degree);

/// Draws the centre mark, the double ring at the edge of the disc and a tick for every degree.
void DrawCompass(wxDC& dc, const MapView& view);

/// Writes the bearings 0, 10, ..., 350 into the margin outside the disc.
void DrawCompassText(wxDC& dc, const MapView& view, const TextStyle& style);
} // namespace render

#pragma once

#include "geo/GreylineRows.h"
#include "geo/Locator.h"
#include "render/MapView.h"

#include <wx/bitmap.h>

#include <memory>

namespace render
{
/// How dark the earth is by the settings, with the sun in the zenith of a place.
geo::GreylineShade ShadeOf(const GreyzoneSettings& greyzone, geo::LatLon subSolarPoint);

/**
 * The greyline as an overlay with opacity: clear by day, darker through the greyzone into the night, and a yellow sun
 * over its sub-solar point. The outermost one-pixel frame is opaque.
 *
 * @return a bitmap of the map's side; none when there is not enough memory for it.
 */
std::unique_ptr<wxBitmap> DrawGreyline(const MapView& view, const GreyzoneSettings& greyzone,
                                       geo::LatLon subSolarPoint);
} // namespace render

#pragma once

#include "geo/LatLon.h"
#include "geo/MapFrame.h"
#include "render/MapView.h"

#include <wx/gdicmn.h>
#include <wx/string.h>

#include <optional>

namespace ui
{
/// A locator of the right length to write another into.
inline constexpr const char* kScratchLocator = "AA11RR";

/// A place on the earth.
struct MapPlace
{
    geo::LatLon at;
    wxString locator;
};

/// What lies at a pixel of the map.
struct MapSpot
{
    geo::RangeAndBearing fromStation;
    std::optional<MapPlace> place; ///< none on the rim of the disc and outside
};

MapSpot SpotAt(const MapView& view, const wxPoint& pixel);

/// The read-out of a spot, empty where there is no place.
wxString ReadOutOf(const MapSpot& spot);
} // namespace ui

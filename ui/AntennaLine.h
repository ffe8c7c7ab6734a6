#pragma once

#include "geo/MapFrame.h"

#include <wx/dc.h>

#include <vector>

namespace ui
{
/// A line with an arrow from the station to the ring, in pixels of the map.
struct AntennaLine
{
    /// The line along a bearing in degrees.
    AntennaLine(const MapFrame& frame, double bearingDeg);

    void Draw(wxDC& dc, const wxPen& pen) const;

    /// Small rectangles along it that hold all that is drawn.
    std::vector<wxRect> Places() const;

    bool operator==(const AntennaLine&) const = default;

    wxPoint station;
    wxPoint tip;
};
} // namespace ui

#pragma once

#include "geo/LatLon.h"
#include "render/MapView.h"
#include "render/ThinnedPen.h"

#include <wx/dc.h>

#include <vector>

namespace render
{
/// The lines of a grid in whole degrees, both ends included. A step below 1 leaves that direction out.
struct GridSpec
{
    int lonFrom;
    int lonTo;
    int lonStep;
    int latFrom;
    int latTo;
    int latStep;
};

inline constexpr GridSpec kMeridianGrid{-180, 180, 15, -75, 75, 15};
inline constexpr GridSpec kFieldGrid{-180, 180, 20, -90, 90, 10};
inline constexpr GridSpec kSquareGrid{-180, 180, 2, -84, 84, 1};

/**
 * Calls segment(from, to), in pixels, for every stretch of a grid that is drawn.
 *
 * Lines of constant longitude run from latitude 85 to -85 whatever the grid's latitudes are, lines of constant latitude
 * around the globe, both in steps of a tenth of a degree, thinned to 3 pixels: the last two pixels of a line may be
 * left out. A line is broken where it leaves the visible disc and at the centre.
 */
template <class Sink>
void TraceGridLines(const MapView& view, const GridSpec& grid, Sink& segment)
{
    constexpr double kStep = 0.1;
    // The steps add up rounding errors; where a line ends depends on them.
    std::vector<SineCosine> latitudes;
    for (double lat = 85.0; lat >= -85.0; lat -= kStep)
        latitudes.emplace_back(lat * geo::kRadPerDeg);
    std::vector<SineCosine> longitudes;
    for (double lon = -180.0; lon <= 180.0; lon += kStep)
        longitudes.push_back(view.projection.EastOfCentre(lon * geo::kRadPerDeg));

    ThinnedPen pen(3);
    const auto sample = [&](const SineCosine& east, const SineCosine& lat)
    {
        if (const auto pixel = view.VisiblePixel(east, lat))
            pen.To(*pixel, segment);
        else
            pen.Lift();
    };
    for (long lon = grid.lonFrom; grid.lonStep > 0 && lon <= grid.lonTo; lon += grid.lonStep, pen.Lift())
        for (const SineCosine east = view.projection.EastOfCentre(static_cast<double>(lon) * geo::kRadPerDeg);
             const SineCosine& lat : latitudes)
            sample(east, lat);
    for (long lat = grid.latFrom; grid.latStep > 0 && lat <= grid.latTo; lat += grid.latStep, pen.Lift())
        for (const SineCosine parallel(static_cast<double>(lat) * geo::kRadPerDeg); const SineCosine& east : longitudes)
            sample(east, parallel);
}

/// Draws a grid in the pen of the drawing context.
void DrawGridLines(wxDC& dc, const MapView& view, const GridSpec& grid);
} // namespace render

#pragma once

#include "geo/LatLon.h"
#include "render/MapView.h"

#include <wx/dc.h>

#include <array>

namespace render
{
/// A name of the grid: two letters or two digits.
using GridName = std::array<char, 2>;

/// The name of the field in which a position in degrees lies: the longitude's letter, then the latitude's.
GridName FieldName(int lon, int lat);

/// Calls label(pixel, name) for the middle of every visible field. The rows at the poles have no names.
template <class Sink>
void TraceFieldLabels(const MapView& view, Sink label)
{
    for (int lon = -170; lon <= 170; lon += 20)
        for (int lat = -75; lat <= 75; lat += 10)
            if (const auto pixel =
                    view.VisiblePixel(geo::InRadians({static_cast<double>(lat), static_cast<double>(lon)})))
                label(*pixel, FieldName(lon, lat));
}

/**
 * Calls label(pixel, number) for the middle of every visible square, number 10 times the longitude's digit plus the
 * latitude's.
 *
 * A nineteenth row of fields lies beyond the North Pole (latitudes 90.5 to 99.5). The projection folds it over the
 * pole, so its numbers stand mirrored over those of the last real row; that is kept.
 */
template <class Sink>
void TraceSquareLabels(const MapView& view, Sink label)
{
    for (int west = -180; west <= 160; west += 20)
        for (int south = -90; south <= 90; south += 10)
            for (int number = 0; number < 100; ++number)
            {
                const int lon = west + 2 * (number / 10) + 1;
                const double lat = south + number % 10 + 0.5;
                if (const auto pixel = view.VisiblePixel(geo::InRadians({lat, static_cast<double>(lon)})))
                    label(*pixel, number);
            }
}

/// Writes the names of the fields, each centred on the middle of its field.
void DrawFieldLabels(wxDC& dc, const MapView& view, const TextStyle& style);

/// Writes the numbers of the squares, each centred on the middle of its square.
void DrawSquareLabels(wxDC& dc, const MapView& view, const TextStyle& style);
} // namespace render

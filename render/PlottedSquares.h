#pragma once

#include "geo/Locator.h"
#include "render/GoOn.h"
#include "render/MapView.h"

#include <wx/dc.h>

#include <array>
#include <optional>
#include <string_view>

namespace render
{
/// The south-west corner in degrees of the locator square that four characters name, in upper or lower case; none if
/// they name none.
std::optional<geo::LatLon> SquareNamed(std::wstring_view characters);

/// Four corners of a square on the picture, around it.
using SquareOutline = std::array<wxPoint, 4>;

/**
 * The outline of the square of 1 degree of latitude by 2 degrees of longitude that begins at a corner. Its edges are
 * straight in the picture.
 *
 * @return none if any corner lies farther away than the visible limit. A corner at the centre of the map is there.
 */
std::optional<SquareOutline> OutlineOfSquare(const MapView& view, geo::LatLon southWest);

/**
 * Fills every locator square that a text names.
 *
 * @param[in] text  any text: wherever four characters of a line form a square, that square is drawn.
 * @param[in] style colours and hatching.
 */
void DrawPlottedSquares(wxDC& dc, const MapView& view, std::wstring_view text, const PlotSquaresSlot& style,
                        const GoOn& goOn = Always);
} // namespace render

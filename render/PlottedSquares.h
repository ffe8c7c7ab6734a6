#pragma once

#include "render/MapView.h"

#include <wx/dc.h>

namespace render
{
/**
 * Fills every locator square that a text names.
 *
 * @param[in] text  any text, see ReadTextFile(): wherever four characters of it form a square in upper or lower case,
 *                  that square is drawn, unless one of its corners lies farther away than the visible limit.
 * @param[in] style colours and hatching.
 */
void DrawPlottedSquares(wxDC& dc, const MapView& view, const wxString& text, const PlotSquaresSlot& style);
} // namespace render

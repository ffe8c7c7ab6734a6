#pragma once

#include "render/MapView.h"

#include <wx/dc.h>

namespace render
{
/**
 * Draws the polylines of a point file in the pen of the drawing context.
 *
 * The file is looked up by FindDataFile(). One that cannot be opened or read is reported by the toolkit's log and
 * draws nothing.
 */
void DrawBorderLines(wxDC& dc, const MapView& view, const wxString& file);
} // namespace render

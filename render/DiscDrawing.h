#pragma once

#include "render/DiscGeometry.h"

#include <wx/dc.h>

namespace render
{
/// Draws a circle around the centre of the disc in the pen of the drawing context. A radius below 1 draws nothing.
void DrawCircle(wxDC& dc, const DiscGeometry& disc, int radius);

/**
 * Writes a number along a circle, tangent to it and reading clockwise.
 *
 * It is nudged counter-clockwise by an angle that grows with the height of the text and shrinks with the radius.
 *
 * @param[in] bearingDeg   where, degrees clockwise from north.
 * @param[in] radius       of the circle to which the text belongs, pixels.
 * @param[in] anchorRadius of the circle on which its upper left corner lies, pixels.
 */
void DrawNumberAlongCircle(wxDC& dc, const DiscGeometry& disc, long number, double bearingDeg, int radius,
                           int anchorRadius);
} // namespace render

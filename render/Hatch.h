#pragma once

#include <wx/colour.h>
#include <wx/dc.h>

#include <span>

namespace render
{
/**
 * Fills a polygon by the odd-even rule and draws its outline, one pixel wide. Only the two colours occur.
 *
 * @param[in] stipple 0 solid, then hatched: 1 backward diagonal, 2 crossed diagonal, 3 forward diagonal, 4 cross,
 *                    5 horizontal, 6 vertical. What lies outside is taken as the nearest.
 */
void FillPolygonHatched(wxDC& dc, std::span<const wxPoint> points, int stipple, const wxColour& fillColour,
                        const wxColour& borderColour);
} // namespace render

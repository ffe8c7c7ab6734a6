#pragma once

#include "propagation/ClassScale.h"

#include <wx/bitmap.h>
#include <wx/font.h>

namespace propagation
{
/// The legend of an overlay, opaque on a transparent ground, and where it lies.
struct Legend
{
    wxBitmap bitmap;
    int top = 0; ///< the map's row of its first row, negative where the map has no room; its left edge is the map's
};

/**
 * Title, thresholds and, beside each of these, a box in the colour of the class above it. A text is black, or white
 * where the overlay under it is dark.
 *
 * @param[in] overlay for which it is; the legend is not made wider.
 */
Legend DrawLegend(Parameter parameter, const ClassScale& scale, const wxFont& font, wxBitmap& overlay);
} // namespace propagation

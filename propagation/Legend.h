#pragma once

#include "propagation/ClassScale.h"
#include "render/PictureRows.h"
#include "render/PixelGrid.h"

#include <wx/font.h>

namespace propagation
{
/// The legend of an overlay and where it lies.
struct Legend
{
    render::PixelGrid marks{}; ///< 0 where there is nothing
    int top = 0; ///< the map's row of its first row, negative where the map has no room; its left edge is the map's
};

/**
 * Title, thresholds and, beside each of these, a box in the colour of the class above it. A text is black, or white
 * where the overlay under it is dark.
 *
 * @param[in] overlay for which it is; the legend is not made wider.
 */
Legend DrawLegend(Parameter parameter, const ClassScale& scale, const wxFont& font, const render::PictureRows& overlay);
} // namespace propagation

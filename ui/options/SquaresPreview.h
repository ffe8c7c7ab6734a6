#pragma once

#include "config/Configuration.h"

#include <wx/bitmap.h>

namespace ui
{
/// How plotted squares will look: two of them on a small map, 64 x 64 pixels.
wxBitmap SquaresPreview(const PlotSquaresSlot& style);
} // namespace ui

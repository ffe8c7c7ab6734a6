#pragma once

#include "propagation/ClassScale.h"
#include "propagation/Legend.h"
#include "render/MapView.h"

#include <memory>
#include <span>

namespace propagation
{
/**
 * The overlay of a map: every pixel in the colour of its class, white where there is none (at the station itself and
 * from the visible limit on), everything with one opacity. Only the outermost one-pixel frame stays opaque.
 *
 * @param[in] worldClasses from WorldClasses(); a pixel takes the class of the grid point to its north-west.
 * @param[in] alpha        0 invisible .. 255 opaque.
 * @return none when there is not enough memory for it.
 */
std::unique_ptr<wxBitmap> DrawOverlay(const MapView& view, std::span<const std::uint32_t> worldClasses,
                                      const ClassScale& scale, std::uint8_t alpha);

/// Puts a legend on an overlay, with the opacity that the overlay has there. Between its marks the overlay stays as it
/// is.
void PutLegend(wxBitmap& overlay, Legend& legend, std::uint8_t alpha);
} // namespace propagation

#pragma once

#include "render/PixelGrid.h"

namespace render
{
/**
 * Unpacks a picture that is compiled into a program.
 *
 * @param[in] xpm the lines of an XPM picture with keys of three printable characters and colours written "c #RRGGBB".
 */
PixelGrid UnpackXpm(const char* const* xpm);
} // namespace render

#pragma once

#include "render/Pixel.h"

#include <vector>

namespace render
{
/// Pixels, row by row from the top.
struct PixelGrid
{
    int width;
    int height;
    std::vector<Argb> pixels;
};

/**
 * Unpacks a picture that is compiled into the program, many times faster than the toolkit's reader of the format, which
 * makes a text of every colour. That reader cost each start as much as everything else together.
 *
 * @param[in] xpm the lines of an XPM picture with keys of three printable characters and colours written "c #RRGGBB".
 */
PixelGrid UnpackXpm(const char* const* xpm);
} // namespace render

#pragma once

#include "render/Pixel.h"

#include <span>

namespace render
{
// Three bytes of every pixel, as pictures without opacity have them. The bytes may be where the pixels are, or before.

/// Red, green, blue.
void PackRgb(std::span<const Argb> pixels, unsigned char* bytes);

/// Blue, green, red.
void PackBgr(std::span<const Argb> pixels, unsigned char* bytes);
} // namespace render

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
} // namespace render

#pragma once

#include "render/Pixel.h"

#include <array>

namespace render
{
/// The built-in picture of the world, opaque, row by row from the top. Its source is written by CompileWorld.
struct WorldPixels
{
    int width;
    int height;
    std::array<Argb, std::size_t{720} * 360> pixels;
};
extern const WorldPixels kWorldPixels;
} // namespace render

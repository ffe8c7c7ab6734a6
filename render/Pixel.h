#pragma once

#include <cstdint>

namespace render
{
/// A pixel as 0xAARRGGBB. In a picture with opacity the channels are premultiplied by it.
using Argb = std::uint32_t;

inline constexpr Argb kWhite = 0xFFFFFFFF;

constexpr Argb OpaquePixel(unsigned red, unsigned green, unsigned blue)
{
    return 0xFF000000U | red << 16 | green << 8 | blue;
}

/// The pixel of a colour with opacity as the toolkit stores it: each channel is c a / 255, rounded.
constexpr Argb PremultipliedPixel(unsigned red, unsigned green, unsigned blue, unsigned alpha)
{
    const auto scaled = [alpha](unsigned channel)
    {
        const unsigned t = channel * alpha + 128;
        return (t + (t >> 8)) >> 8;
    };
    return alpha << 24 | scaled(red) << 16 | scaled(green) << 8 | scaled(blue);
}
} // namespace render

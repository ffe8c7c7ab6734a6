#pragma once

#include "render/Pixel.h"

#include <cstdint>
#include <span>

namespace render
{
/// One channel of a layer pixel over a map pixel; two integer divisions by 256, so white over white gives 254.
constexpr unsigned BlendChannel(unsigned map, unsigned layer, unsigned alpha)
{
    return map * (255 - alpha) / 256 + layer * alpha / 256;
}

/**
 * Blends a layer onto a map, both rows of red, green and blue bytes.
 *
 * Pure white in the layer means nothing is drawn there; the outermost one-pixel frame of the map is never changed.
 *
 * @param[in]     layer 3 * width * height bytes.
 * @param[in,out] map   3 * width * height bytes.
 * @param[in]     alpha opacity; 0 leaves the map as it is.
 */
void BlendLayer(std::span<const std::uint8_t> layer, std::span<std::uint8_t> map, int width, int height,
                std::uint8_t alpha);

/// The same for a pixel of an opaque map and one of a layer that is not white.
constexpr Argb BlendPixel(Argb map, Argb layer, unsigned alpha)
{
    const auto channel = [=](int shift)
    { return BlendChannel((map >> shift) & 255, (layer >> shift) & 255, alpha) << shift; };
    return 0xFF000000U | channel(16) | channel(8) | channel(0);
}

/// A pixel with opacity laid over one of an opaque map, rounded as the toolkit does it.
constexpr Argb PixelOver(Argb map, Argb over)
{
    const unsigned clear = 255 - (over >> 24);
    const Argb under = PremultipliedPixel((map >> 16) & 255, (map >> 8) & 255, map & 255, clear);
    return 0xFF000000U | ((under + over) & 0x00FFFFFFU);
}
} // namespace render

#include "render/Blend.h"

#include <algorithm>

namespace render
{
namespace
{
constexpr Argb kColourBits = 0xFFFFFF;

/// Most of a layer is white: it is passed over so many pixels at a time.
constexpr std::size_t kBlock = 32;

bool IsWhite(Argb pixel)
{
    return (pixel & kColourBits) == kColourBits;
}

bool IsBlockWhite(const Argb* pixels)
{
    Argb common = kColourBits;
    for (std::size_t i = 0; i < kBlock; ++i)
        common &= pixels[i];
    return IsWhite(common);
}

Argb BlendPixel(Argb map, Argb layer, unsigned alpha)
{
    const auto channel = [=](int shift)
    { return BlendChannel((map >> shift) & 255, (layer >> shift) & 255, alpha) << shift; };
    return 0xFF000000U | channel(16) | channel(8) | channel(0);
}
} // namespace

void BlendLayer(std::span<const std::uint8_t> layer, std::span<std::uint8_t> map, int width, int height,
                std::uint8_t alpha)
{
    if (alpha == 0)
        return;
    for (int y = 1; y < height - 1; ++y)
    {
        const std::size_t row = 3 * static_cast<std::size_t>(y) * static_cast<std::size_t>(width);
        for (std::size_t i = row + 3; i < row + 3 * (static_cast<std::size_t>(width) - 1); i += 3)
            if (layer[i] + layer[i + 1] + layer[i + 2] != 765)
                for (std::size_t c = i; c < i + 3; ++c)
                    map[c] = static_cast<std::uint8_t>(BlendChannel(map[c], layer[c], alpha));
    }
}

void BlendAndWhiten(const BitmapPixels& layer, const BitmapPixels& map, std::uint8_t alpha)
{
    const auto width = static_cast<std::size_t>(layer.Width());
    for (int y = 0; y < layer.Height(); ++y)
    {
        const std::span<Argb> drawn = layer.Row(y);
        const std::span<Argb> under = map.Row(y);
        const bool inner = alpha != 0 && y > 0 && y < layer.Height() - 1;
        for (std::size_t block = 0; block < width; block += kBlock)
        {
            const std::size_t end = std::min(block + kBlock, width);
            if (end - block == kBlock && IsBlockWhite(&drawn[block]))
                continue;
            for (std::size_t x = block; x < end; ++x)
            {
                if (IsWhite(drawn[x]))
                    continue;
                if (inner && x > 0 && x < width - 1)
                    under[x] = BlendPixel(under[x], drawn[x], alpha);
                drawn[x] = kWhite;
            }
        }
    }
}
} // namespace render

#include "render/Blend.h"

namespace render
{
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
} // namespace render

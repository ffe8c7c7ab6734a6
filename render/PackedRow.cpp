#include "render/PackedRow.h"

#include <bit>
#include <cstddef>
#include <cstring>

static_assert(std::endian::native == std::endian::little, "pixels are packed as little-endian words");

namespace render
{
namespace
{
/// @param[in] order the three bytes of a pixel as the lowest of a word.
template <class Order>
void Pack(std::span<const Argb> pixels, unsigned char* bytes, Order order)
{
    // Two pixels at a time as a word of eight bytes; the pixel after them overwrites the two that are too many.
    std::size_t x = 0;
    for (; x + 2 < pixels.size(); x += 2, bytes += 6)
    {
        const std::uint64_t word = std::uint64_t{order(pixels[x])} | std::uint64_t{order(pixels[x + 1])} << 24;
        std::memcpy(bytes, &word, sizeof word);
    }
    for (; x < pixels.size(); ++x, bytes += 3)
    {
        const std::uint32_t word = order(pixels[x]);
        std::memcpy(bytes, &word, 3);
    }
}
} // namespace

void PackRgb(std::span<const Argb> pixels, unsigned char* bytes)
{
    Pack(pixels, bytes, [](Argb pixel) { return __builtin_bswap32(pixel) >> 8; });
}

void PackBgr(std::span<const Argb> pixels, unsigned char* bytes)
{
    Pack(pixels, bytes, [](Argb pixel) { return pixel & 0x00FFFFFFU; });
}
} // namespace render

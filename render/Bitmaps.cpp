#include "render/Bitmaps.h"

#include "config/QuietToolkit.h"
#include "render/BitmapPixels.h"
#include "render/HugePages.h"

#include <cairo.h>

#include <algorithm>
#include <bit>
#include <cstring>

static_assert(std::endian::native == std::endian::little, "pixels are packed as little-endian words");

namespace render
{
namespace
{
unsigned Channel(Argb pixel, int shift)
{
    return (pixel >> shift) & 255;
}

/// Writes red, green and blue of every pixel as three bytes, which may be where the pixels are or before.
void PackRgb(std::span<const Argb> pixels, unsigned char* rgb)
{
    const auto bytes = [](Argb pixel) { return std::uint64_t{__builtin_bswap32(pixel) >> 8}; };
    // Two pixels at a time as a word of eight bytes; the pixel after them overwrites the two that are too many.
    std::size_t x = 0;
    for (; x + 2 < pixels.size(); x += 2, rgb += 6)
    {
        const std::uint64_t word = bytes(pixels[x]) | bytes(pixels[x + 1]) << 24;
        std::memcpy(rgb, &word, sizeof word);
    }
    for (; x < pixels.size(); ++x)
        for (const Argb pixel = pixels[x]; const int shift : {16, 8, 0})
            *rgb++ = static_cast<unsigned char>(Channel(pixel, shift));
}

void PackRgb(const BitmapPixels& pixels, unsigned char* rgb)
{
    for (int y = 0; y < pixels.Height(); ++y, rgb += 3 * static_cast<std::size_t>(pixels.Width()))
        PackRgb(pixels.Row(y), rgb);
}

std::unique_ptr<wxBitmap> NewBitmap(int side, int depth)
{
    auto bitmap = std::make_unique<wxBitmap>(side, side, depth);
    if (!bitmap->IsOk())
        return nullptr;
    // The surface behind a bitmap is made when it is first drawn on; only then does a lack of memory show.
    const QuietToolkit quiet;
    cairo_t* const context = bitmap->CairoCreate();
    const bool hasMemory = cairo_status(context) == CAIRO_STATUS_SUCCESS;
    if (hasMemory)
        PreferHugePagesOf(cairo_get_target(context));
    cairo_destroy(context);
    return hasMemory ? std::move(bitmap) : nullptr;
}
} // namespace

std::unique_ptr<wxBitmap> NewWhiteBitmap(int side)
{
    auto bitmap = NewBitmap(side, wxBITMAP_SCREEN_DEPTH);
    if (!bitmap)
        return nullptr;
    const BitmapPixels pixels(*bitmap);
    for (int y = 0; y < side; ++y)
        std::ranges::fill(pixels.Row(y), kWhite);
    return bitmap;
}

wxImage ImageOf(wxBitmap& bitmap)
{
    const BitmapPixels pixels(bitmap);
    wxImage image(pixels.Width(), pixels.Height(), false);
    if (!image.IsOk())
        return image;
    PreferHugePages(image.GetData(),
                    3 * static_cast<std::size_t>(pixels.Width()) * static_cast<std::size_t>(pixels.Height()));
    PackRgb(pixels, image.GetData());
    return image;
}

wxImage TakeImageOf(wxBitmap& bitmap)
{
    const BitmapPixels pixels(bitmap);
    auto* const rgb = reinterpret_cast<unsigned char*>(pixels.Row(0).data());
    PackRgb(pixels, rgb);
    return {pixels.Width(), pixels.Height(), rgb, true};
}

std::unique_ptr<wxBitmap> NewOverlayBitmap(int side)
{
    return NewBitmap(side, 32);
}
} // namespace render

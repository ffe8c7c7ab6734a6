#include "render/BitmapPixels.h"

#include "config/QuietToolkit.h"
#include "render/HugePages.h"

#include <cairo.h>
#include <wx/image.h>

#include <algorithm>
#include <array>
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

unsigned char Unpremultiplied(unsigned channel, unsigned alpha)
{
    return static_cast<unsigned char>(alpha == 0 ? 0 : (channel * 255 + alpha / 2) / alpha);
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

bool BitmapPixels::mayReachInPlace = true;

BitmapPixels::BitmapPixels(wxBitmap& bitmap)
    : m_bitmap(bitmap), m_width(bitmap.GetWidth()), m_height(bitmap.GetHeight()), m_context(ContextOf(bitmap))
{
    if (m_context)
        OpenInPlace();
    else
        OpenImage();
}

BitmapPixels::~BitmapPixels()
{
    if (m_context)
    {
        cairo_surface_mark_dirty(cairo_get_target(m_context));
        cairo_destroy(m_context);
    }
    else
    {
        WriteImageBack();
    }
}

/// A context on the surface behind a bitmap; none unless that surface is memory of 32 bits a pixel.
cairo_t* BitmapPixels::ContextOf(const wxBitmap& bitmap)
{
    if (!mayReachInPlace)
        return nullptr;
    cairo_t* const context = bitmap.CairoCreate();
    // A surface that is no memory has no format.
    const cairo_format_t format = cairo_image_surface_get_format(cairo_get_target(context));
    if (format == CAIRO_FORMAT_RGB24 || format == CAIRO_FORMAT_ARGB32)
        return context;
    cairo_destroy(context);
    return nullptr;
}

bool BitmapPixels::AreInPlace(const wxBitmap& bitmap)
{
    cairo_t* const context = ContextOf(bitmap);
    if (context)
        cairo_destroy(context);
    return context != nullptr;
}

void BitmapPixels::OpenInPlace()
{
    cairo_surface_t* const surface = cairo_get_target(m_context);
    cairo_surface_flush(surface);
    m_pixels = reinterpret_cast<Argb*>(cairo_image_surface_get_data(surface));
    m_stride = static_cast<std::size_t>(cairo_image_surface_get_stride(surface)) / sizeof(Argb);
}

void BitmapPixels::OpenImage()
{
    const wxImage image = m_bitmap.ConvertToImage();
    const std::size_t count = static_cast<std::size_t>(m_width) * static_cast<std::size_t>(m_height);
    const unsigned char* rgb = image.GetData();
    const unsigned char* const alpha = image.HasAlpha() ? image.GetAlpha() : nullptr;
    m_copy.resize(count);
    for (std::size_t i = 0; i < count; ++i, rgb += 3)
        m_copy[i] = PremultipliedPixel(rgb[0], rgb[1], rgb[2], alpha ? alpha[i] : 255);
    m_pixels = m_copy.data();
    m_stride = static_cast<std::size_t>(m_width);
}

void BitmapPixels::WriteImageBack()
{
    wxImage image(m_width, m_height);
    const bool hasAlpha = m_bitmap.HasAlpha();
    if (hasAlpha)
        image.InitAlpha();
    unsigned char* rgb = image.GetData();
    for (std::size_t i = 0; i < m_copy.size(); ++i, rgb += 3)
    {
        const unsigned alpha = hasAlpha ? Channel(m_copy[i], 24) : 255;
        rgb[0] = Unpremultiplied(Channel(m_copy[i], 16), alpha);
        rgb[1] = Unpremultiplied(Channel(m_copy[i], 8), alpha);
        rgb[2] = Unpremultiplied(Channel(m_copy[i], 0), alpha);
        if (hasAlpha)
            image.GetAlpha()[i] = static_cast<unsigned char>(alpha);
    }
    m_bitmap = wxBitmap(image);
}

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
    if (!BitmapPixels::AreInPlace(bitmap))
        return bitmap.ConvertToImage();
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
    if (!BitmapPixels::AreInPlace(bitmap))
        return bitmap.ConvertToImage();
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

#pragma once

#include <wx/bitmap.h>
#include <wx/image.h>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <vector>

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

/**
 * The pixels of a bitmap for reading and writing, for as long as this object lives.
 *
 * The one place that knows how the toolkit keeps them: they are reached in place, without a conversion, where the
 * bitmap is backed by an image surface, and through an image that is written back at the end where it is not. The
 * bitmap must not be selected into a drawing context meanwhile, and must not share its pixels with another bitmap.
 */
class BitmapPixels
{
public:
    /// @param[in] bitmap valid, of depth 24 or 32.
    explicit BitmapPixels(wxBitmap& bitmap);
    ~BitmapPixels();
    BitmapPixels(const BitmapPixels&) = delete;
    BitmapPixels& operator=(const BitmapPixels&) = delete;

    int Width() const { return m_width; }
    int Height() const { return m_height; }

    /// One row from the top, 0 <= y < Height().
    std::span<Argb> Row(int y) const
    {
        return {m_pixels + static_cast<std::size_t>(y) * m_stride, static_cast<std::size_t>(m_width)};
    }

    /// Whether the pixels of a bitmap can be reached in place.
    static bool AreInPlace(const wxBitmap& bitmap);

    /// Tests forbid the direct way to try the other.
    static bool mayReachInPlace;

private:
    static struct _cairo* ContextOf(const wxBitmap& bitmap);
    void OpenInPlace();
    void OpenImage();
    void WriteImageBack();

    wxBitmap& m_bitmap;
    int m_width;
    int m_height;
    struct _cairo* m_context = nullptr; ///< keeps the surface alive; none when an image is used
    Argb* m_pixels = nullptr;
    std::size_t m_stride{}; ///< pixels from row to row
    std::vector<Argb> m_copy;
};

/// An opaque bitmap as an image; an invalid image when there is not enough memory for it.
wxImage ImageOf(wxBitmap& bitmap);

/**
 * An opaque bitmap as an image made in the bitmap's own memory, so that it needs none of its own.
 *
 * The bitmap must live as long as the image, and must not be drawn any more.
 */
wxImage TakeImageOf(wxBitmap& bitmap);

/// A white bitmap of a map's side at screen depth; none when there is not enough memory for it.
std::unique_ptr<wxBitmap> NewWhiteBitmap(int side);

/// A bitmap of a map's side with opacity, its pixels still undefined; none when there is not enough memory for it.
std::unique_ptr<wxBitmap> NewOverlayBitmap(int side);
} // namespace render

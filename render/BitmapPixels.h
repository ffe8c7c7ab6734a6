#pragma once

#include "render/Pixel.h"

#include <wx/bitmap.h>

#include <cstddef>
#include <span>

namespace render
{
/**
 * The pixels of a bitmap for reading and writing in place, for as long as this object lives.
 *
 * The one place that knows how the toolkit keeps them: behind a bitmap of GTK stands an image surface of 32 bits a
 * pixel. The bitmap must not be selected into a drawing context meanwhile, and must not share its pixels with another
 * bitmap.
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

private:
    int m_width;
    int m_height;
    struct _cairo* m_context; ///< keeps the surface alive
    Argb* m_pixels;
    std::size_t m_stride; ///< pixels from row to row
};
} // namespace render

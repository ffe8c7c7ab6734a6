#pragma once

#include "render/BitmapPixels.h"
#include "render/MapView.h"

#include <wx/image.h>

#include <vector>

namespace render
{
/// An equirectangular picture of the world: longitude -180..180 from left to right, latitude 90..-90 from top to
/// bottom.
class WorldPicture
{
public:
    /// @param[in] image valid, of any size; its opacity does not count.
    explicit WorldPicture(const wxImage& image);

    int Width() const { return m_width; }
    int Height() const { return m_height; }

    /// The pixel at a column and row; black outside the picture.
    Argb At(int column, int row) const
    {
        const bool inside = column >= 0 && column < m_width && row >= 0 && row < m_height;
        return inside ? m_pixels[static_cast<std::size_t>(row) * static_cast<std::size_t>(m_width) +
                                 static_cast<std::size_t>(column)]
                      : OpaquePixel(0, 0, 0);
    }

private:
    int m_width;
    int m_height;
    std::vector<Argb> m_pixels;
};

/// The picture that is built in, 720 x 360 pixels, from Natural Earth.
const WorldPicture& BuiltInWorld();

/**
 * Paints one row of the base map: every pixel takes the nearest pixel of the world under it, truncated, without
 * interpolation. The centre and everything from the visible limit on are white.
 *
 * @param[out] pixels one for each column of the map.
 */
void DrawBaseMapRow(const MapView& view, const WorldPicture& world, int row, std::span<Argb> pixels);
} // namespace render

#pragma once

#include "geo/RowSampler.h"
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

    /// Its pixels as cells of the globe; what lies just beyond them is black.
    geo::WorldCells Cells() const
    {
        return geo::WorldCells::Filling(m_pixels.data(), m_width, m_height, OpaquePixel(0, 0, 0));
    }

private:
    int m_width;
    int m_height;
    std::vector<Argb> m_pixels;
};

/// The picture that is built in, 720 x 360 pixels, from Natural Earth.
const WorldPicture& BuiltInWorld();

/**
 * The rows of a base map: every pixel takes the nearest pixel of the world under it, truncated, without interpolation.
 * The centre and everything from the visible limit on are white.
 *
 * @param[in] world must outlive the result.
 */
geo::RowSampler BaseMapRows(const MapView& view, const WorldPicture& world);
} // namespace render

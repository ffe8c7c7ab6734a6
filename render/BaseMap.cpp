#include "render/BaseMap.h"

#include "geo/Angles.h"
#include "geo/Truncate.h"
#include "resources/world.xpm"

namespace render
{
WorldPicture::WorldPicture(const wxImage& image)
    : m_width(image.GetWidth()),
      m_height(image.GetHeight()),
      m_pixels(static_cast<std::size_t>(m_width) * static_cast<std::size_t>(m_height))
{
    const unsigned char* rgb = image.GetData();
    for (Argb& pixel : m_pixels)
    {
        pixel = OpaquePixel(rgb[0], rgb[1], rgb[2]);
        rgb += 3;
    }
}

const WorldPicture& BuiltInWorld()
{
    static const WorldPicture world{wxImage(world_xpm)};
    return world;
}

void DrawBaseMapRow(const MapView& view, const WorldPicture& world, int row, std::span<Argb> pixels)
{
    const double xScale = world.Width() / 360.0;
    const double yScale = world.Height() / 180.0;
    for (int column = 0; column < view.frame.mapSize; ++column)
    {
        const geo::MapPoint point = view.frame.PixelToMap(column, row);
        double lon = 0.0;
        double lat = 0.0;
        Argb pixel = kWhite;
        if (view.IsVisible(view.projection.Inverse(lon, lat, point.x, point.y)))
            pixel = world.At(geo::TruncateToInt32(xScale * (lon * geo::kDegPerRad + 180)),
                             geo::TruncateToInt32(yScale * (90 - lat * geo::kDegPerRad)));
        pixels[static_cast<std::size_t>(column)] = pixel;
    }
}
} // namespace render

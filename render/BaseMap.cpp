#include "render/BaseMap.h"

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

geo::RowSampler BaseMapRows(const MapView& view, const WorldPicture& world)
{
    return {view.Disc(), world.Cells(), kWhite};
}
} // namespace render

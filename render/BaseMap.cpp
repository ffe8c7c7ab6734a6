#include "render/BaseMap.h"

#include "resources/world.xpm"

namespace render
{
namespace
{
PixelGrid PixelsOf(const wxImage& image)
{
    const int width = image.GetWidth();
    const int height = image.GetHeight();
    PixelGrid grid{width, height,
                   std::vector<Argb>(static_cast<std::size_t>(width) * static_cast<std::size_t>(height))};
    const unsigned char* rgb = image.GetData();
    for (Argb& pixel : grid.pixels)
    {
        pixel = OpaquePixel(rgb[0], rgb[1], rgb[2]);
        rgb += 3;
    }
    return grid;
}
} // namespace

WorldPicture::WorldPicture(const wxImage& image) : WorldPicture(PixelsOf(image)) {}

const WorldPicture& BuiltInWorld()
{
    static const WorldPicture world{UnpackXpm(world_xpm)};
    return world;
}

geo::RowSampler BaseMapRows(const MapView& view, const WorldPicture& world)
{
    return {view.Disc(), world.Cells(), kWhite};
}
} // namespace render

#include "render/BaseMap.h"

#include "render/WorldPixels.h"

namespace render
{
namespace
{
std::shared_ptr<const Argb[]> PixelsOf(const wxImage& image)
{
    const auto count = static_cast<std::size_t>(image.GetWidth()) * static_cast<std::size_t>(image.GetHeight());
    const auto pixels = std::make_shared_for_overwrite<Argb[]>(count);
    const unsigned char* rgb = image.GetData();
    for (std::size_t i = 0; i < count; ++i, rgb += 3)
        pixels[i] = OpaquePixel(rgb[0], rgb[1], rgb[2]);
    return pixels;
}
} // namespace

WorldPicture::WorldPicture(const wxImage& image) : WorldPicture(image.GetWidth(), image.GetHeight(), PixelsOf(image)) {}

WorldPicture WorldPicture::BuiltIn()
{
    // An owner that owns nothing: they are there as long as the program.
    const std::shared_ptr<const Argb[]> pixels(std::shared_ptr<void>(), kWorldPixels.pixels.data());
    return {kWorldPixels.width, kWorldPixels.height, pixels};
}

geo::RowSampler BaseMapRows(const MapView& view, const WorldPicture& world)
{
    return {view.Disc(), world.Cells(), kWhite};
}
} // namespace render

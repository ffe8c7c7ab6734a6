#include "propagation/Overlay.h"

#include "geo/RowSampler.h"
#include "propagation/WorldGrid.h"
#include "render/BitmapPixels.h"
#include "render/Bitmaps.h"

#include <algorithm>

namespace propagation
{
namespace
{
using render::Argb;

/// In place of a class where there is none.
constexpr std::uint32_t kNoClass = ColourScale::kSteps;

Argb WithAlpha(Argb opaque, unsigned alpha)
{
    return render::PremultipliedPixel((opaque >> 16) & 255, (opaque >> 8) & 255, opaque & 255, alpha);
}

/// The pixel of each class, and of none.
using Palette = std::array<Argb, ColourScale::kSteps + 1>;

Palette PaletteOf(const ClassScale& scale, unsigned alpha)
{
    Palette palette;
    for (std::size_t k = 0; k < scale.colours.size(); ++k)
        palette[k] = render::PremultipliedPixel(scale.colours[k].Red(), scale.colours[k].Green(),
                                                scale.colours[k].Blue(), alpha);
    palette[kNoClass] = WithAlpha(render::kWhite, alpha);
    return palette;
}

/// The pixels of classes; the one may be written in place of the other.
void Colour(std::span<const std::uint32_t> classes, const Palette& palette, std::span<Argb> pixels)
{
    std::ranges::transform(classes, pixels.begin(), [&palette](std::uint32_t k) { return palette[k]; });
}

geo::WorldCells Lattice(std::span<const std::uint32_t> points)
{
    return geo::WorldCells::Lattice(points.data(), kPointsPerDegree);
}

bool IsOutermost(int index, int side)
{
    return index == 0 || index == side - 1;
}
} // namespace

std::unique_ptr<wxBitmap> DrawOverlay(const MapView& view, std::span<const std::uint32_t> worldClasses,
                                      const ClassScale& scale, std::uint8_t alpha)
{
    const int side = view.frame.mapSize;
    auto overlay = render::NewOverlayBitmap(side);
    if (!overlay)
        return nullptr;
    const Palette opaque = PaletteOf(scale, 255);
    const Palette seeThrough = PaletteOf(scale, alpha);
    std::vector<Argb> worldPixels(worldClasses.size());
    Colour(worldClasses, seeThrough, worldPixels);
    const geo::RowSampler classes(view.Disc(), Lattice(worldClasses), kNoClass);
    const geo::RowSampler colours(view.Disc(), Lattice(worldPixels), seeThrough[kNoClass]);
    const render::BitmapPixels pixels(*overlay);
    for (int y = 0; y < side; ++y)
    {
        const auto row = pixels.Row(y);
        if (IsOutermost(y, side))
        {
            classes.Row(y, row);
            Colour(row, opaque, row);
            continue;
        }
        colours.Row(y, row);
        row.front() = opaque[classes.Pixel(0, y)];
        row.back() = opaque[classes.Pixel(side - 1, y)];
    }
    return overlay;
}

void PutLegend(wxBitmap& overlay, Legend& legend, std::uint8_t alpha)
{
    const render::BitmapPixels from(legend.bitmap);
    const render::BitmapPixels to(overlay);
    for (int y = std::max(0, -legend.top); y < from.Height() && legend.top + y < to.Height(); ++y)
    {
        const int targetY = legend.top + y;
        for (int x = 0; x < std::min(from.Width(), to.Width()); ++x)
        {
            const Argb pixel = from.Row(y)[static_cast<std::size_t>(x)];
            if (pixel != (pixel | 0xFF000000)) // nothing there
                continue;
            const bool outermost = IsOutermost(x, to.Width()) || IsOutermost(targetY, to.Height());
            to.Row(targetY)[static_cast<std::size_t>(x)] = outermost ? pixel : WithAlpha(pixel, alpha);
        }
    }
}
} // namespace propagation

#include "propagation/Overlay.h"

#include "propagation/WorldGrid.h"
#include "render/BitmapPixels.h"

#include <algorithm>
#include <utility>

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

/// The pixels of classes; the one may be written in place of the other.
template <class Palette>
void Colour(std::span<const std::uint32_t> classes, const Palette& palette, std::span<Argb> pixels)
{
    std::ranges::transform(classes, pixels.begin(), [&palette](std::uint32_t k) { return palette[k]; });
}

template <class Palette>
std::vector<Argb> Coloured(std::span<const std::uint32_t> classes, const Palette& palette)
{
    std::vector<Argb> pixels(classes.size());
    Colour(classes, palette, pixels);
    return pixels;
}

geo::WorldCells Lattice(std::span<const std::uint32_t> points)
{
    return geo::WorldCells::Lattice(points.data(), kPointsPerDegree);
}
} // namespace

Overlay::Palette Overlay::PaletteOf(const ClassScale& scale, unsigned alpha)
{
    Palette palette;
    for (std::size_t k = 0; k < scale.colours.size(); ++k)
        palette[k] = render::PremultipliedPixel(scale.colours[k].Red(), scale.colours[k].Green(),
                                                scale.colours[k].Blue(), alpha);
    palette[kNoClass] = WithAlpha(render::kWhite, alpha);
    return palette;
}

Overlay::Overlay(const MapView& view, std::vector<std::uint32_t> worldClasses, const ClassScale& scale,
                 std::uint8_t alpha)
    : m_side(view.frame.mapSize),
      m_alpha(alpha),
      m_opaque(PaletteOf(scale, 255)),
      m_seeThrough(PaletteOf(scale, alpha)),
      m_worldClasses(std::move(worldClasses)),
      m_worldPixels(Coloured(m_worldClasses, m_seeThrough)),
      m_classes(view.Disc(), Lattice(m_worldClasses), kNoClass),
      m_colours(view.Disc(), Lattice(m_worldPixels), m_seeThrough[kNoClass])
{
}

void Overlay::PutLegend(Legend legend)
{
    m_legend = std::move(legend);
}

void Overlay::Row(int y, std::span<Argb> out) const
{
    ColourRow(y, out);
    if (y >= m_legend.top && y < m_legend.top + m_legend.marks.height)
        CoverByLegend(y, out);
}

void Overlay::ColourRow(int y, std::span<Argb> out) const
{
    if (IsOutermost(y))
    {
        m_classes.Row(y, out);
        Colour(out, m_opaque, out);
        return;
    }
    m_colours.Row(y, out);
    out.front() = m_opaque[m_classes.Pixel(0, y)];
    out.back() = m_opaque[m_classes.Pixel(m_side - 1, y)];
}

void Overlay::CoverByLegend(int y, std::span<Argb> out) const
{
    const auto width = static_cast<std::size_t>(m_legend.marks.width);
    const Argb* const marks = &m_legend.marks.pixels[static_cast<std::size_t>(y - m_legend.top) * width];
    for (std::size_t x = 0; x < std::min(width, out.size()); ++x)
        if (marks[x] >> 24 == 255)
            out[x] = IsOutermost(y) || IsOutermost(static_cast<int>(x)) ? marks[x] : WithAlpha(marks[x], m_alpha);
}
} // namespace propagation

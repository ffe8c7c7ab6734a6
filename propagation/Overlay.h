#pragma once

#include "geo/RowSampler.h"
#include "propagation/ClassScale.h"
#include "propagation/Legend.h"
#include "render/MapView.h"
#include "render/PictureRows.h"

#include <vector>

namespace propagation
{
/**
 * The overlay of a map: every pixel in the colour of its class, white where there is none (at the station itself and
 * from the visible limit on), everything with one opacity. Only the outermost one-pixel frame stays opaque.
 */
class Overlay : public render::PictureRows
{
public:
    /**
     * @param[in] worldClasses from WorldClasses(); a pixel takes the class of the grid point to its north-west.
     * @param[in] alpha        0 invisible .. 255 opaque.
     */
    Overlay(const MapView& view, std::vector<std::uint32_t> worldClasses, const ClassScale& scale, std::uint8_t alpha);

    /// Puts a legend on it, with the opacity that it has there. Between the marks of the legend it stays as it is.
    void PutLegend(Legend legend);

    int Side() const override { return m_side; }
    void Row(int y, std::span<render::Argb> out) const override;

private:
    /// The pixel of each class, and of none.
    using Palette = std::array<render::Argb, ColourScale::kSteps + 1>;
    static Palette PaletteOf(const ClassScale& scale, unsigned alpha);

    bool IsOutermost(int index) const { return index == 0 || index == m_side - 1; }
    void ColourRow(int y, std::span<render::Argb> out) const;
    void CoverByLegend(int y, std::span<render::Argb> out) const;

    int m_side;
    std::uint8_t m_alpha;
    Palette m_opaque;
    Palette m_seeThrough;
    std::vector<std::uint32_t> m_worldClasses;
    std::vector<render::Argb> m_worldPixels;
    geo::RowSampler m_classes;
    geo::RowSampler m_colours;
    Legend m_legend;
};
} // namespace propagation

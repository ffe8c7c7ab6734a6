#pragma once

#include "geo/GreylineRows.h"
#include "geo/Locator.h"
#include "render/MapView.h"
#include "render/PictureRows.h"

#include <vector>

namespace render
{
/// How dark the earth is by the settings, with the sun in the zenith of a place.
geo::GreylineShade ShadeOf(const GreyzoneSettings& greyzone, geo::LatLon subSolarPoint);

/**
 * The greyline as an overlay with opacity: clear by day, darker through the greyzone into the night, and a yellow sun
 * over its sub-solar point. The outermost one-pixel frame is opaque.
 */
class GreylineOverlay : public PictureRows
{
public:
    GreylineOverlay(const MapView& view, const GreyzoneSettings& greyzone, geo::LatLon subSolarPoint);

    int Side() const override { return m_side; }
    void Row(int y, std::span<Argb> out) const override;

private:
    int m_side;
    geo::GreylineRows m_shade;
    std::vector<geo::Pixel> m_sun; ///< the pixels that it covers, some of them beyond the picture
};
} // namespace render

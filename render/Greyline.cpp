#include "render/Greyline.h"

#include "geo/Angles.h"
#include "render/Layer.h"

#include <algorithm>
#include <array>

namespace render
{
namespace
{
constexpr Argb kYellow = OpaquePixel(255, 255, 0);

/// Overlay pixels by grey level: the darker, the more opaque; the lightest is clear.
std::array<Argb, 256> OverlayPixels()
{
    std::array<Argb, 256> pixels{};
    for (unsigned grey = 0; grey < pixels.size(); ++grey)
        pixels[grey] = PremultipliedPixel(grey, grey, grey, 255 - grey);
    return pixels;
}

/// The pixels of the sun around a place: eight rays, ten pixels long, and a disc.
std::vector<geo::Pixel> SunAt(geo::Pixel place)
{
    static constexpr std::array<geo::Pixel, 8> kRays{
        {{0, -10}, {7, -7}, {10, 0}, {7, 7}, {0, 10}, {-7, 7}, {-10, 0}, {-7, -7}}};
    constexpr int kMiddle = 12;
    Layer sheet(2 * kMiddle + 1);
    wxDC& dc = sheet.Begin(*wxYELLOW, 1);
    dc.SetBrush(*wxYELLOW_BRUSH);
    for (const geo::Pixel ray : kRays)
        dc.DrawLine(kMiddle, kMiddle, kMiddle + ray.x, kMiddle + ray.y);
    dc.DrawEllipse(kMiddle - 4, kMiddle - 4, 8, 8);
    std::vector<geo::Pixel> pixels;
    sheet.TakeMarks(255).ForEachPixel(
        [&](geo::Pixel pixel) {
            pixels.push_back({place.x - kMiddle + pixel.x, place.y - kMiddle + pixel.y});
        });
    return pixels;
}
} // namespace

geo::GreylineShade ShadeOf(const GreyzoneSettings& greyzone, geo::LatLon subSolarPoint)
{
    return {geo::InRadians(subSolarPoint), static_cast<double>(greyzone.widthDeg), greyzone.gradient,
            static_cast<double>(greyzone.darkeningGrey), static_cast<double>(greyzone.darkeningNight)};
}

GreylineOverlay::GreylineOverlay(const MapView& view, const GreyzoneSettings& greyzone, geo::LatLon subSolarPoint)
    : m_side(view.frame.mapSize), m_shade(view.Disc(), ShadeOf(greyzone, subSolarPoint))
{
    if (const auto place = view.VisiblePixel(geo::InRadians(subSolarPoint)))
        m_sun = SunAt(*place);
}

void GreylineOverlay::Row(int y, std::span<Argb> out) const
{
    static const std::array<Argb, 256> kOverlay = OverlayPixels();
    std::vector<std::uint8_t> grey(out.size());
    const auto opaque = [](unsigned level) { return OpaquePixel(level, level, level); };
    m_shade.Row(y, grey);
    if (y == 0 || y == m_side - 1)
        std::ranges::transform(grey, out.begin(), opaque);
    else
        std::ranges::transform(grey, out.begin(), [](std::uint8_t level) { return kOverlay[level]; });
    out.front() = opaque(grey.front());
    out.back() = opaque(grey.back());
    for (const geo::Pixel pixel : m_sun)
        if (pixel.y == y && pixel.x >= 0 && pixel.x < m_side)
            out[static_cast<std::size_t>(pixel.x)] = kYellow;
}
} // namespace render

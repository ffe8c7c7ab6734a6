#include "render/Greyline.h"

#include "geo/Angles.h"
#include "render/BitmapPixels.h"
#include "render/Bitmaps.h"
#include "render/Layer.h"

#include <wx/dcmemory.h>

#include <array>
#include <vector>

namespace render
{
namespace
{
/// Overlay pixels by grey level: the darker, the more opaque; the lightest is clear.
std::array<Argb, 256> OverlayPixels()
{
    std::array<Argb, 256> pixels{};
    for (unsigned grey = 0; grey < pixels.size(); ++grey)
        pixels[grey] = PremultipliedPixel(grey, grey, grey, 255 - grey);
    return pixels;
}

void PaintShade(wxBitmap& overlay, const geo::GreylineRows& rows)
{
    static const std::array<Argb, 256> kOverlay = OverlayPixels();
    const BitmapPixels pixels(overlay);
    const auto side = static_cast<std::size_t>(pixels.Width());
    std::vector<std::uint8_t> grey(side);
    const auto opaque = [&grey](std::size_t x) { return OpaquePixel(grey[x], grey[x], grey[x]); };
    for (int y = 0; y < pixels.Height(); ++y)
    {
        const std::span<Argb> row = pixels.Row(y);
        rows.Row(y, grey);
        const bool frame = y == 0 || y == pixels.Height() - 1;
        for (std::size_t x = 0; x < side; ++x)
            row[x] = frame ? opaque(x) : kOverlay[grey[x]];
        row.front() = opaque(0);
        row.back() = opaque(side - 1);
    }
}

/// Eight rays, ten pixels long, and a disc.
void DrawSun(wxBitmap& overlay, geo::Pixel at)
{
    static constexpr std::array<geo::Pixel, 8> kRays{
        {{0, -10}, {7, -7}, {10, 0}, {7, 7}, {0, 10}, {-7, 7}, {-10, 0}, {-7, -7}}};
    wxMemoryDC dc(overlay);
    SwitchSmoothingOff(dc);
    dc.SetPen(wxPen(wxColour(255, 255, 0)));
    dc.SetBrush(*wxYELLOW_BRUSH);
    for (const geo::Pixel ray : kRays)
        dc.DrawLine(at.x, at.y, at.x + ray.x, at.y + ray.y);
    dc.DrawEllipse(at.x - 4, at.y - 4, 8, 8);
}
} // namespace

geo::GreylineShade ShadeOf(const GreyzoneSettings& greyzone, geo::LatLon subSolarPoint)
{
    return {{subSolarPoint.lat * geo::kRadPerDeg, subSolarPoint.lon * geo::kRadPerDeg},
            static_cast<double>(greyzone.widthDeg),
            greyzone.gradient,
            static_cast<double>(greyzone.darkeningGrey),
            static_cast<double>(greyzone.darkeningNight)};
}

std::unique_ptr<wxBitmap> DrawGreyline(const MapView& view, const GreyzoneSettings& greyzone, geo::LatLon subSolarPoint)
{
    auto overlay = NewOverlayBitmap(view.frame.mapSize);
    if (!overlay)
        return nullptr;
    const geo::GreylineShade shade = ShadeOf(greyzone, subSolarPoint);
    PaintShade(*overlay, geo::GreylineRows(view.Disc(), shade));
    if (const auto sun = view.VisiblePixel(shade.sun.lon, shade.sun.lat))
        DrawSun(*overlay, *sun);
    return overlay;
}
} // namespace render

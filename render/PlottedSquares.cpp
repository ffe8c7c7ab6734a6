#include "render/PlottedSquares.h"

#include "render/Hatch.h"
#include "render/Style.h"

#include <cmath>

namespace render
{
namespace
{
constexpr std::size_t kNameLength = 4;

/// Upper case of a letter of the basic alphabet; what cannot be part of a locator becomes a blank.
char LocatorCharacter(wchar_t c)
{
    if (c >= L'a' && c <= L'z')
        return static_cast<char>(c - L'a' + 'A');
    return c > L' ' && c <= L'~' ? static_cast<char>(c) : ' ';
}

/// The cosine of the angle between a place and the centre, which tells the two places where the projection has no
/// value from each other.
double CosineOfDistance(const AzimuthalProjection& projection, geo::LatLonRad place)
{
    return projection.sinLat0 * std::sin(place.lat) +
           projection.cosLat0 * std::cos(place.lat) * std::cos(place.lon - projection.centreLon);
}

std::optional<wxPoint> CornerPixel(const MapView& view, geo::LatLon corner)
{
    constexpr double kAtAntipode = -1.0 + 1e-12; // within ten metres
    const geo::LatLonRad position = geo::InRadians(corner);
    const double cosine = CosineOfDistance(view.projection, position);
    geo::MapPoint place{};
    const std::int64_t distance = view.projection.Forward(place.x, place.y, position.lon, position.lat);
    if (cosine < kAtAntipode || distance > view.visibleLimit)
        return std::nullopt;
    if (distance < 1)
        return wxPoint(view.frame.half, view.frame.half);
    const geo::Pixel pixel = view.frame.MapToPixel(place.x, place.y);
    return wxPoint(pixel.x, pixel.y);
}
} // namespace

std::optional<geo::LatLon> SquareNamed(std::wstring_view characters)
{
    if (characters.size() != kNameLength)
        return std::nullopt;
    geo::Locator locator{' ', ' ', ' ', ' ', 'L', 'L'};
    for (std::size_t i = 0; i < kNameLength; ++i)
        locator[i] = LocatorCharacter(characters[i]);
    const auto inside = geo::CentreOfLocator({locator.data(), locator.size()});
    if (!inside)
        return std::nullopt;
    return geo::LatLon{std::floor(inside->lat), 2 * std::floor(inside->lon / 2)};
}

std::optional<SquareOutline> OutlineOfSquare(const MapView& view, geo::LatLon southWest)
{
    static constexpr std::array<std::array<int, 2>, 4> kCorners{{{0, 0}, {0, 2}, {1, 2}, {1, 0}}};
    SquareOutline outline;
    for (std::size_t i = 0; i < outline.size(); ++i)
    {
        const auto corner = CornerPixel(view, {southWest.lat + kCorners[i][0], southWest.lon + kCorners[i][1]});
        if (!corner)
            return std::nullopt;
        outline[i] = *corner;
    }
    return outline;
}

void DrawPlottedSquares(wxDC& dc, const MapView& view, std::wstring_view text, const PlotSquaresSlot& style,
                        const GoOn& goOn)
{
    const Hatch hatch(style.stipple, ColourFromSetting(style.fillColour), ColourFromSetting(style.borderColour));
    // The end of a line is no part of a locator, so lines need not be told apart.
    const auto all = static_cast<double>(text.size());
    for (std::size_t i = 0; i + kNameLength <= text.size() && goOn(static_cast<double>(i) / all); ++i)
        if (const auto square = SquareNamed(text.substr(i, kNameLength)))
            if (const auto outline = OutlineOfSquare(view, *square))
                hatch.FillPolygon(dc, *outline);
}
} // namespace render

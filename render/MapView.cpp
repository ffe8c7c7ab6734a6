#include "render/MapView.h"

#include <algorithm>
#include <limits>

std::optional<geo::Pixel> MapView::VisiblePixel(geo::LatLonRad position) const
{
    return VisiblePixel(projection.EastOfCentre(position.lon), SineCosine(position.lat));
}

std::optional<geo::Pixel> MapView::VisiblePixel(const SineCosine& east, const SineCosine& lat) const
{
    constexpr int kFarthest = 1 << 20;
    geo::MapPoint place{};
    if (!IsVisible(projection.Forward(place.x, place.y, east, lat)))
        return std::nullopt;
    const geo::Pixel pixel = frame.MapToPixel(place.x, place.y);
    const auto isNear = [](int coordinate) { return coordinate >= -kFarthest && coordinate <= kFarthest; };
    return isNear(pixel.x) && isNear(pixel.y) ? std::optional(pixel) : std::nullopt;
}

namespace render
{
std::int64_t MapRadius(long zoomKm)
{
    return std::clamp(zoomKm, 100L, 20000L) * 1000;
}

std::int64_t VisibleLimit(const Settings& settings)
{
    constexpr long kLargest = std::numeric_limits<std::int64_t>::max() / 1000;
    return settings.compass.show ? std::clamp(settings.zoom, -kLargest, kLargest) * 1000 : 20000000;
}

AzimuthalProjection StationProjection(const Settings& settings)
{
    AzimuthalProjection projection;
    projection.Init(0, 0, std::clamp(settings.centreLat, -90.0, 90.0), std::clamp(settings.centreLon, -180.0, 180.0));
    return projection;
}

MapView MakeMapView(const Settings& settings, int compassTextHeight)
{
    const int size = static_cast<int>(settings.size);
    MapView view;
    view.projection = StationProjection(settings);
    view.compassTextHeight = settings.compass.text.show ? compassTextHeight : 1;
    // The ring drawn outside the disc needs room.
    const int ring = settings.compass.insideMap ? 0 : size / 100;
    view.frame = MapFrame(size, MapRadius(settings.zoom), view.compassTextHeight + ring);
    view.visibleLimit = VisibleLimit(settings);
    return view;
}
} // namespace render

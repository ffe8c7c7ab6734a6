#include "ui/MapSpot.h"

#include "config/Configuration.h"
#include "geo/Angles.h"

namespace ui
{
namespace
{
MapPlace PlaceAt(const AzimuthalProjection& projection, geo::MapPoint point)
{
    double lon{};
    double lat{};
    projection.Inverse(lon, lat, point.x, point.y);
    MapPlace place{{lat * geo::kDegPerRad, lon * geo::kDegPerRad}, kScratchLocator};
    Configuration::LatLonToLocator(place.locator, place.at.lat, place.at.lon);
    return place;
}
} // namespace

MapSpot SpotAt(const MapView& view, const wxPoint& pixel)
{
    const geo::MapPoint point = view.frame.PixelToMap(pixel.x, pixel.y);
    MapSpot spot{geo::RangeAndBearingOf(point), std::nullopt};
    if (static_cast<double>(view.frame.mapRadius / 1000) > spot.fromStation.distanceKm)
        spot.place = PlaceAt(view.projection, point);
    return spot;
}

wxString ReadOutOf(const MapSpot& spot)
{
    if (!spot.place)
        return "";
    return wxString::Format("lat = %3.1f / long = %3.1f / %s / %5.1f km / %3.1f degs", spot.place->at.lat,
                            spot.place->at.lon, spot.place->locator, spot.fromStation.distanceKm,
                            spot.fromStation.bearingDeg);
}
} // namespace ui

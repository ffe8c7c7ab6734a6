#pragma once

#include "config/Settings.h"
#include "geo/AzimuthalProjection.h"
#include "geo/LatLon.h"
#include "geo/MapDisc.h"
#include "geo/MapFrame.h"

#include <cstdint>
#include <optional>

/**
 * How one map shows the world: where its centre lies, how metres become pixels and how far it reaches.
 *
 * A value that is fixed when the map is created. Layers read it and never change it; overlays drawn later belong to it,
 * even if the settings have changed since.
 */
struct MapView
{
    AzimuthalProjection projection;
    MapFrame frame;
    std::int64_t visibleLimit{}; ///< metres; what lies at this distance or beyond is not drawn
    int compassTextHeight{};     ///< pixels

    /// Whether a point at this distance from the centre is drawn: not the centre itself, nothing from the limit on.
    bool IsVisible(std::int64_t distance) const { return distance >= 1 && distance < visibleLimit; }

    /// The pixels that show the earth.
    geo::MapDisc Disc() const { return {projection, frame, visibleLimit}; }

    /**
     * The pixel of a place; none where the place is not visible. The pixel may lie outside the
     * picture.
     *
     * No place on earth lies farther than 2^20 pixels from the station on any map. What the projection puts beyond that
     * is arbitrary (it has no value for the antipode) and counts as not visible, so that drawings can calculate with
     * pixels without running over.
     */
    std::optional<geo::Pixel> VisiblePixel(geo::LatLonRad position) const;

    /// The same for many places on one meridian or parallel: see AzimuthalProjection::Forward().
    std::optional<geo::Pixel> VisiblePixel(const SineCosine& east, const SineCosine& lat) const;
};

namespace render
{
/// The smallest and the largest picture that can be made, in pixels.
inline constexpr long kMinMapSize = 100;
inline constexpr long kMaxMapSize = 8000;

/// The radius in metres for a "Zoom" in kilometres, brought into 100..20000 km.
std::int64_t MapRadius(long zoomKm);

/// 20000000 m, or with the compass shown the "Zoom" as it stands in metres.
std::int64_t VisibleLimit(const Settings& settings);

/// The projection around the station of the settings, which is brought into -90..90 and -180..180 degrees first.
AzimuthalProjection StationProjection(const Settings& settings);

/**
 * The view of a new map.
 *
 * @param[in] settings      its centre is that of StationProjection().
 * @param[in] compassTextHeight height of the compass font in pixels; it becomes the margin when the figures are shown.
 * @pre the size lies in kMinMapSize..kMaxMapSize.
 */
MapView MakeMapView(const Settings& settings, int compassTextHeight);
} // namespace render

#pragma once

#include <cstdint>

namespace geo
{
/// A point of the map plane: metres east and north of the centre.
struct MapPoint
{
    double x;
    double y;
};

/// A pixel of the map picture: column from the left, row from the top.
struct Pixel
{
    int x;
    int y;

    bool operator==(const Pixel&) const = default;
};

/// Distance and direction of a point from the station.
struct RangeAndBearing
{
    double distanceKm;
    double bearingDeg; ///< clockwise from north, 0 <= bearing < 360
};

/// Distance and bearing of a map point from the centre; both are 0 at the centre itself.
RangeAndBearing RangeAndBearingOf(MapPoint point);
} // namespace geo

/**
 * How the map plane lies on the square picture: north up, pixel y downward, the station at (half, half).
 *
 * A value, fixed for the life of one map. The scale is a whole number of metres a pixel.
 */
class MapFrame
{
public:
    /// Of no size yet.
    MapFrame() = default;

    /**
     * @param[in] size   side of the picture in pixels, 100..8000.
     * @param[in] radius great-circle distance from the centre to the edge of the disc, metres.
     * @param[in] margin pixels left free around the disc. A margin that leaves no disc is taken as leaving one pixel.
     */
    MapFrame(int size, std::int64_t radius, int margin);

    /// The pixel in which a point lies, truncated toward zero: x = trunc(x / metresPerPixel + half). Points too far
    /// outside for an int get the smallest one.
    geo::Pixel MapToPixel(double x, double y) const;

    /// The point at a pixel, given as column and row; both may lie outside the picture.
    geo::MapPoint PixelToMap(int column, int row) const;

    int mapSize{};
    std::int64_t mapRadius{};
    int mapMargin{};
    double metresPerPixel = 1.0;
    int half{}; ///< column and row of the station: mapSize / 2
};

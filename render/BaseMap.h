#pragma once

#include "geo/RowSampler.h"
#include "render/MapView.h"
#include "render/PictureRows.h"

#include <wx/image.h>

#include <memory>
#include <utility>

namespace render
{
/// An equirectangular picture of the world: longitude -180..180 from left to right, latitude 90..-90 from top to
/// bottom. Copies share their pixels.
class WorldPicture
{
public:
    /// @param[in] image valid, of any size; its opacity does not count.
    explicit WorldPicture(const wxImage& image);

    /// The picture that is built in, 720 x 360 pixels, from Natural Earth.
    static WorldPicture BuiltIn();

    /// Its pixels as cells of the globe; what lies just beyond them is black.
    geo::WorldCells Cells() const
    {
        return geo::WorldCells::Filling(m_pixels.get(), m_width, m_height, OpaquePixel(0, 0, 0));
    }

private:
    WorldPicture(int width, int height, std::shared_ptr<const Argb[]> pixels)
        : m_width(width), m_height(height), m_pixels(std::move(pixels))
    {
    }

    int m_width;
    int m_height;
    std::shared_ptr<const Argb[]> m_pixels;
};

/**
 * The rows of a base map: every pixel takes the nearest pixel of the world under it, truncated, without interpolation.
 * The centre and everything from the visible limit on are white.
 *
 * @param[in] world its pixels must outlive the result.
 */
geo::RowSampler BaseMapRows(const MapView& view, const WorldPicture& world);

/// The same as a picture that holds the world's.
class BaseMap : public PictureRows
{
public:
    BaseMap(const MapView& view, WorldPicture world)
        : m_world(std::move(world)), m_side(view.frame.mapSize), m_rows(BaseMapRows(view, m_world))
    {
    }
    BaseMap(const BaseMap&) = delete;
    BaseMap& operator=(const BaseMap&) = delete;

    int Side() const override { return m_side; }
    void Row(int y, std::span<Argb> out) const override { m_rows.Row(y, out); }

private:
    WorldPicture m_world;
    int m_side;
    geo::RowSampler m_rows;
};
} // namespace render

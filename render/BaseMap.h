#pragma once

#include "geo/RowSampler.h"
#include "render/CompiledPicture.h"
#include "render/MapView.h"
#include "render/PictureRows.h"

#include <wx/image.h>

#include <utility>

namespace render
{
/// An equirectangular picture of the world: longitude -180..180 from left to right, latitude 90..-90 from top to
/// bottom.
class WorldPicture
{
public:
    /// @param[in] image valid, of any size; its opacity does not count.
    explicit WorldPicture(const wxImage& image);

    /// @param[in] pixels at least one.
    explicit WorldPicture(PixelGrid pixels) : m_grid(std::move(pixels)) {}

    /// Its pixels as cells of the globe; what lies just beyond them is black.
    geo::WorldCells Cells() const
    {
        return geo::WorldCells::Filling(m_grid.pixels.data(), m_grid.width, m_grid.height, OpaquePixel(0, 0, 0));
    }

private:
    PixelGrid m_grid;
};

/// The picture that is built in, 720 x 360 pixels, from Natural Earth.
const WorldPicture& BuiltInWorld();

/**
 * The rows of a base map: every pixel takes the nearest pixel of the world under it, truncated, without interpolation.
 * The centre and everything from the visible limit on are white.
 *
 * @param[in] world must outlive the result.
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

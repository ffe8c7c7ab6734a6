#pragma once

#include "render/LayerMarks.h"
#include "render/MapSurface.h"

#include <vector>

/**
 * A map that is kept as what it is made of, for pictures that are written row by row: a row is the base map's, then
 * blended with the marks of one layer after the other, then the overlays are laid over it. No bitmap of the map's size
 * is needed.
 */
class MapRows : public MapSurface, public render::PictureRows
{
public:
    bool NewMap(int side) override;
    bool HasMap() const override { return m_side > 0; }
    void PutBase(std::unique_ptr<PictureRows> base, const std::function<void(int)>& rowsDone) override;
    void PutLayer(render::Layer& layer, std::uint8_t alpha) override;
    bool PutGreyline(std::unique_ptr<PictureRows> overlay) override;
    bool PutPropagation(std::unique_ptr<PictureRows> overlay) override;

    int Side() const override { return m_side; }
    void Row(int y, std::span<render::Argb> out) const override;

private:
    int m_side = 0;
    std::unique_ptr<PictureRows> m_base; ///< none: white
    std::vector<render::LayerMarks> m_layers;
    std::unique_ptr<PictureRows> m_greyline;
    std::unique_ptr<PictureRows> m_propagation;
};

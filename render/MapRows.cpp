#include "render/MapRows.h"

#include "render/Blend.h"
#include "render/Layer.h"

#include <algorithm>
#include <utility>

namespace
{
void LayOver(std::span<render::Argb> row, int y, const render::PictureRows& overlay)
{
    std::vector<render::Argb> over(row.size());
    overlay.Row(y, over);
    std::ranges::transform(row, over, row.begin(), render::PixelOver);
}
} // namespace

bool MapRows::NewMap(int side)
{
    *this = MapRows();
    m_side = side;
    return true;
}

void MapRows::PutBase(std::unique_ptr<PictureRows> base, const std::function<void(int)>&)
{
    m_base = std::move(base);
    m_layers.clear();
}

void MapRows::PutLayer(render::Layer& layer, std::uint8_t alpha)
{
    m_layers.push_back(layer.TakeMarks(alpha));
}

bool MapRows::PutGreyline(std::unique_ptr<PictureRows> overlay)
{
    m_greyline = std::move(overlay);
    return showGreyline = true;
}

bool MapRows::PutPropagation(std::unique_ptr<PictureRows> overlay)
{
    m_propagation = std::move(overlay);
    return showPropagation = true;
}

void MapRows::Row(int y, std::span<render::Argb> out) const
{
    if (m_base)
        m_base->Row(y, out);
    else
        std::ranges::fill(out, render::kWhite);
    for (const render::LayerMarks& layer : m_layers)
        layer.BlendOnto(y, out);
    if (showGreyline && m_greyline)
        LayOver(out, y, *m_greyline);
    if (showPropagation && m_propagation)
        LayOver(out, y, *m_propagation);
}

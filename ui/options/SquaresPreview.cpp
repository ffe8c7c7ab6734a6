#include "ui/options/SquaresPreview.h"

#include "render/Hatch.h"
#include "render/Layer.h"
#include "render/Style.h"
#include "resources/preview_map.xpm"

#include <algorithm>

namespace
{
const wxPoint kUpperSquare[] = {{10, 8}, {40, 5}, {44, 27}, {13, 31}};
const wxPoint kLowerSquare[] = {{13, 31}, {44, 27}, {49, 50}, {17, 56}};
} // namespace

namespace ui
{
wxBitmap SquaresPreview(const PlotSquaresSlot& style)
{
    wxBitmap map(wxImage(preview_map_xpm), 24);
    render::Layer layer(map.GetWidth(), render::Inks::Many);
    const wxColour border = ColourFromSetting(style.borderColour);
    wxDC& dc = layer.Begin(border, 1);
    const render::Hatch hatch(style.stipple, ColourFromSetting(style.fillColour), border);
    hatch.FillPolygon(dc, kUpperSquare);
    hatch.FillPolygon(dc, kLowerSquare);
    layer.BlendOnto(map, static_cast<std::uint8_t>(std::clamp<long>(style.alpha, 0, 255)));
    return map;
}
} // namespace ui

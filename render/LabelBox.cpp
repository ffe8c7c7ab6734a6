#include "render/LabelBox.h"

#include "render/Layer.h"

#include <wx/graphics.h>

#include <array>
#include <utility>

namespace render
{
LabelStyle LabelStyleOf(int align)
{
    const bool isListed = align >= 0 && align < static_cast<int>(std::size(kLabelStyles));
    return config::Chosen(kLabelStyles, isListed ? align : 0).value;
}

wxRect LabelBox(geo::Pixel place, wxSize extent, Alignment alignment)
{
    // By how many halves of its extent the box is moved left and up.
    static constexpr std::array<std::pair<int, int>, 5> kHalves{{{1, 1}, {2, 1}, {0, 1}, {1, 2}, {1, 0}}};
    const auto [left, up] = kHalves[static_cast<std::size_t>(alignment)];
    return {place.x - extent.x * left / 2, place.y - extent.y * up / 2, extent.x, extent.y};
}

void DrawLabel(wxDC& dc, const wxString& text, const wxRect& box)
{
    // Letters may reach over the edge of their box.
    const wxRect ink = wxRect(box).Inflate(box.height);
    // The drawing context itself would measure the text once more.
    if (ink.Intersects(DrawableArea(dc)))
        dc.GetGraphicsContext()->DrawText(text, box.x, box.y);
}
} // namespace render

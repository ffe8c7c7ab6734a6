#include "render/GridLabels.h"

#include "render/LabelBox.h"
#include "render/Style.h"

#include <vector>

namespace render
{
namespace
{
/// A text with its measures, so that it can be drawn many times.
struct MeasuredText
{
    MeasuredText(wxDC& dc, const wxString& label) : text(label), extent(dc.GetTextExtent(label)) {}

    wxString text;
    wxSize extent;
};

void DrawCentred(wxDC& dc, const MeasuredText& label, geo::Pixel place)
{
    DrawLabel(dc, label.text, LabelBox(place, label.extent, Alignment::Centre));
}
} // namespace

GridName FieldName(int lon, int lat)
{
    const auto letter = [](float index) { return static_cast<char>(index + 65.0F); };
    return {letter(static_cast<float>(180 + lon) / 20.0F), letter(static_cast<float>(90 + lat) / 10.0F)};
}

void DrawFieldLabels(wxDC& dc, const MapView& view, const TextStyle& style)
{
    SetTextStyle(dc, style.font, style.colour);
    TraceFieldLabels(view, [&](geo::Pixel place, GridName name)
                     { DrawCentred(dc, MeasuredText(dc, wxString(name.data(), name.size())), place); });
}

void DrawSquareLabels(wxDC& dc, const MapView& view, const TextStyle& style)
{
    SetTextStyle(dc, style.font, style.colour);
    std::vector<MeasuredText> labels;
    for (int number = 0; number < 100; ++number)
        labels.emplace_back(dc, wxString::Format("%02d", number));
    TraceSquareLabels(view, [&](geo::Pixel place, int number)
                      { DrawCentred(dc, labels[static_cast<std::size_t>(number)], place); });
}
} // namespace render

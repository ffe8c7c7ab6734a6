#include "propagation/Legend.h"

#include "render/Layer.h"

#include <wx/dcmemory.h>

#include <algorithm>

namespace propagation
{
namespace
{
constexpr int kTextX = 10;
constexpr int kBoxGap = 20; ///< from the left edge of the map to a box, the label's width apart
constexpr int kRightMargin = 10;
constexpr int kTitleRow = 13; ///< rows are counted in text heights from the lower edge of the map
constexpr int kLowestRow = 3;

wxString TitleOf(Parameter parameter)
{
    static constexpr std::array kTitles{"SDBW", "Signal Noice Ratio dB", "Muf MHz", "Reliability"};
    return kTitles[static_cast<std::size_t>(parameter)];
}

wxString LabelOf(double threshold)
{
    return wxString::Format("%3.2f", threshold);
}

/// Sizes of the legend's parts in a font, in pixels.
struct Metrics
{
    Metrics(const wxString& title, const ClassScale& scale, const wxFont& font)
    {
        wxBitmap pixel(1, 1);
        wxMemoryDC dc(pixel);
        dc.SetFont(font);
        titleWidth = dc.GetTextExtent(title).x;
        for (const double threshold : scale.thresholds)
        {
            const wxSize extent = dc.GetTextExtent(LabelOf(threshold));
            labelWidth = std::max(labelWidth, extent.x);
            textHeight = std::max(textHeight, extent.y);
        }
    }

    int BoxWidth() const { return 2 * textHeight; }
    int Width() const { return std::max(kTextX + titleWidth, labelWidth + kBoxGap + BoxWidth()) + kRightMargin; }

    int titleWidth = 0;
    int labelWidth = 0;
    int textHeight = 0;
};
} // namespace

Legend DrawLegend(Parameter parameter, const ClassScale& scale, const wxFont& font, int side)
{
    const wxString title = TitleOf(parameter);
    const Metrics metrics(title, scale, font);
    const int h = metrics.textHeight;
    Legend legend;
    legend.top = side - kTitleRow * h;
    legend.bitmap.Create(std::min(metrics.Width(), side), (kTitleRow - kLowestRow + 1) * h);
    wxMemoryDC dc(legend.bitmap);
    render::SwitchSmoothingOff(dc);
    // Black on white reads well whatever the scale and the map look like.
    dc.SetBackground(*wxWHITE_BRUSH);
    dc.Clear();
    dc.SetFont(font);
    dc.SetTextForeground(*wxBLACK);
    dc.SetPen(*wxBLACK_PEN);
    dc.DrawText(title, kTextX, 0);
    for (std::size_t i = 0; i < scale.thresholds.size(); ++i)
    {
        const std::size_t k = scale.thresholds.size() - 1 - i;
        const int y = static_cast<int>(i + 1) * h;
        dc.DrawText(LabelOf(scale.thresholds[k]), kTextX, y);
        dc.SetBrush(wxBrush(scale.colours[k]));
        dc.DrawRectangle(metrics.labelWidth + kBoxGap, y, metrics.BoxWidth(), h - 1);
    }
    dc.SelectObject(wxNullBitmap);
    return legend;
}
} // namespace propagation

#include "propagation/Legend.h"

#include "config/PropagationParameters.h"
#include "render/BitmapPixels.h"
#include "render/Layer.h"

#include <wx/dcmemory.h>

#include <algorithm>
#include <vector>

namespace propagation
{
namespace
{
constexpr int kTextX = 10;
constexpr int kBoxGap = 20; ///< from the left edge of the map to a box, the label's width apart
constexpr int kRightMargin = 10;
constexpr int kTitleRow = 13; ///< rows are counted in text heights from the lower edge of the map
constexpr int kLowestRow = 3;

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
/// A bitmap with nothing on it.
wxBitmap TransparentBitmap(int width, int height)
{
    wxBitmap bitmap(width, height, 32);
    const render::BitmapPixels pixels(bitmap);
    for (int y = 0; y < height; ++y)
        std::ranges::fill(pixels.Row(y), 0U);
    return bitmap;
}

/// Darker than a grey in the middle; the channels are premultiplied by the opacity.
bool IsDark(render::Argb pixel)
{
    const unsigned brightness = 299 * (pixel >> 16 & 255) + 587 * (pixel >> 8 & 255) + 114 * (pixel & 255);
    return 2 * brightness < 1000 * (pixel >> 24);
}

/// Whether most of a place on an overlay is dark.
bool IsMostlyDark(const render::PictureRows& overlay, const wxRect& place)
{
    const wxRect visible = place.Intersect(wxRect(0, 0, overlay.Side(), overlay.Side()));
    std::vector<render::Argb> row(static_cast<std::size_t>(overlay.Side()));
    std::ptrdiff_t dark = 0;
    for (int y = visible.GetTop(); y <= visible.GetBottom(); ++y)
    {
        overlay.Row(y, row);
        dark += std::ranges::count_if(
            std::span(row).subspan(static_cast<std::size_t>(visible.x), static_cast<std::size_t>(visible.width)),
            IsDark);
    }
    return 2 * dark > static_cast<std::ptrdiff_t>(visible.width) * visible.height;
}

render::PixelGrid PixelsOf(wxBitmap& bitmap)
{
    const render::BitmapPixels pixels(bitmap);
    render::PixelGrid grid{pixels.Width(), pixels.Height(), {}};
    for (int y = 0; y < grid.height; ++y)
        grid.pixels.insert(grid.pixels.end(), pixels.Row(y).begin(), pixels.Row(y).end());
    return grid;
}
} // namespace

Legend DrawLegend(Parameter parameter, const ClassScale& scale, const wxFont& font, const render::PictureRows& overlay)
{
    const wxString title = config::kParameters[static_cast<std::size_t>(parameter)].legend;
    const Metrics metrics(title, scale, font);
    const int h = metrics.textHeight;
    Legend legend;
    legend.top = overlay.Side() - kTitleRow * h;
    wxBitmap bitmap = TransparentBitmap(std::min(metrics.Width(), overlay.Side()), (kTitleRow - kLowestRow + 1) * h);
    wxMemoryDC dc(bitmap);
    render::SwitchSmoothingOff(dc);
    dc.SetFont(font);
    dc.SetPen(*wxBLACK_PEN);
    const auto write = [&](const wxString& text, int y)
    {
        const wxRect place(wxPoint(kTextX, legend.top + y), dc.GetTextExtent(text));
        dc.SetTextForeground(IsMostlyDark(overlay, place) ? *wxWHITE : *wxBLACK);
        dc.DrawText(text, kTextX, y);
    };
    write(title, 0);
    for (std::size_t i = 0; i < scale.thresholds.size(); ++i)
    {
        const std::size_t k = scale.thresholds.size() - 1 - i;
        const int y = static_cast<int>(i + 1) * h;
        write(LabelOf(scale.thresholds[k]), y);
        dc.SetBrush(wxBrush(scale.colours[k]));
        dc.DrawRectangle(metrics.labelWidth + kBoxGap, y, metrics.BoxWidth(), h - 1);
    }
    dc.SelectObject(wxNullBitmap);
    legend.marks = PixelsOf(bitmap);
    return legend;
}
} // namespace propagation

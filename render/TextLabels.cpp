#include "render/TextLabels.h"

#include "render/LabelBox.h"
#include "render/Occupancy.h"
#include "render/Style.h"
#include "render/TextFile.h"

#include <wx/crt.h>
#include <wx/log.h>
#include <wx/tokenzr.h>

namespace render
{
namespace
{
/// More does not fit on the largest map. It keeps a damaged file from taking minutes.
constexpr std::size_t kMaxTextLength = 1000;

/// Draws the labels of one file.
class LabelWriter
{
public:
    LabelWriter(wxDC& dc, const MapView& view, const TextSlot& style)
        : m_dc(dc),
          m_view(view),
          m_style(LabelStyleOf(style.align)),
          m_occupancy(style.avoidCollisions ? std::optional<Occupancy>(view.frame.mapSize) : std::nullopt)
    {
        SetTextStyle(dc, style.font, style.colour);
        dc.SetPen(wxPen(ColourFromSetting(style.colour)));
        dc.SetBrush(wxBrush(ColourFromSetting(style.colour)));
    }

    void Write(const TextLabel& label)
    {
        const auto place = m_view.VisiblePixel(geo::InRadians(label.place));
        if (!place)
            return;
        const wxSize extent = m_dc.GetTextExtent(label.text);
        const wxRect box = LabelBox(*place, extent, m_style.alignment);
        if (m_occupancy && !m_occupancy->Take(box))
            return;
        DrawLabel(m_dc, label.text, box);
        if (m_style.withDot)
            m_dc.DrawRectangle(place->x - 2, place->y - 2, 4, 4);
    }

private:
    wxDC& m_dc;
    const MapView& m_view;
    LabelStyle m_style;
    std::optional<Occupancy> m_occupancy;
};
} // namespace

std::optional<TextLabel> ParseTextLabel(std::wstring_view line)
{
    wxStringTokenizer fields(wxString(line.data(), line.size()), ";", wxTOKEN_STRTOK);
    fields.GetNextToken();
    const wxString text = fields.GetNextToken().Left(kMaxTextLength);
    if (fields.GetNextToken() == "Country")
        return std::nullopt;
    fields.GetNextToken();
    const double lat = wxAtof(fields.GetNextToken());
    const double lon = wxAtof(fields.GetNextToken());
    return TextLabel{text, {lat, lon}};
}

std::optional<std::wstring> ReadLabelFile(const wxString& file)
{
    const wxLogNull theCallerSaysIt;
    return ReadTextFile(file);
}

void DrawTextLabels(wxDC& dc, const MapView& view, std::wstring_view text, const TextSlot& style, const GoOn& goOn)
{
    LabelWriter writer(dc, view, style);
    bool goesOn = true;
    ForEachLine(text,
                [&](std::wstring_view line)
                {
                    const auto before = static_cast<double>(line.data() - text.data());
                    goesOn = goesOn && goOn(before / static_cast<double>(text.size()));
                    if (const auto label = goesOn ? ParseTextLabel(line) : std::nullopt)
                        writer.Write(*label);
                });
}
} // namespace render

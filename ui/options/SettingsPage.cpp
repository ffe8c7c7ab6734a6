#include "ui/options/SettingsPage.h"

#include "render/MapView.h"
#include "render/Radials.h"
#include "ui/options/Placing.h"

#include <wx/gbsizer.h>

#include <algorithm>

namespace
{
using namespace ui;

constexpr int kTextColumn = 5; ///< the first column of the grid that belongs to texts
constexpr char kZoomTip[] = "From the station to the rim of the map, 100 to 20000 km";

/// For whole numbers within limits.
FieldNotes::Rule NoNumberFrom(long min, long max)
{
    return [=](const wxString& text) -> wxString
    {
        long number = 0;
        if (!text.ToCLong(&number))
            return "no whole number";
        return number < min || number > max ? wxString::Format("%ld to %ld", min, max) : wxString();
    };
}

/// The rows of the page, one for each kind of line, added from the top.
class LineGrid
{
public:
    explicit LineGrid(const Form& form) : m_form(form)
    {
        static constexpr const char* kHeadings[] = {"",          "Plot",        "Lines\nColours", "Alpha", "Line Width",
                                                    "Plot Text", "Text Colour", "Font",           "Alpha"};
        for (const char* const heading : kHeadings)
            m_grid->Add(form.Label(heading), {0, m_column++}, {1, 1}, wxALIGN_BOTTOM);
    }

    LineRow Add(const wxString& label, LineStyle& style)
    {
        BeginRow(label);
        const LineRow lines = NewLineRow(m_form, style, wxString(label).Trim());
        AddCells({lines.show, lines.colour, lines.alpha, lines.lineWidth});
        return lines;
    }

    TextStyleRow AddText(const wxString& layer, TextStyle& style)
    {
        const TextStyleRow text = NewTextStyleRow(m_form, style, layer);
        AddCells({text.show, text.colour, text.font, text.alpha});
        return text;
    }

    void AddExtras(wxSizer* extras) { m_grid->Add(extras, {m_row, kTextColumn}, {1, 4}, wxALIGN_CENTRE_VERTICAL); }

    wxSizer* Sizer() const { return m_grid; }

private:
    void BeginRow(const wxString& label)
    {
        ++m_row;
        m_column = 0;
        AddCells({m_form.Label(label)});
    }

    void AddCells(std::initializer_list<wxWindow*> controls)
    {
        for (wxWindow* const control : controls)
            m_grid->Add(control, {m_row, m_column++}, {1, 1}, wxALIGN_CENTRE_VERTICAL);
    }

    const Form& m_form;
    wxGridBagSizer* m_grid = new wxGridBagSizer(kGap, 2 * kGap);
    int m_row = 0;
    int m_column = 0;
};

wxSlider* NewZoomSlider(wxWindow* parent)
{
    auto* const slider = new wxSlider(parent, wxID_ANY, 20000, 100, 20000);
    slider->SetLineSize(100);
    slider->SetPageSize(1000);
    return slider;
}
} // namespace

namespace ui
{
SettingsPage::SettingsPage(wxBookCtrlBase* book, Editing& editing)
{
    const Page page(book, "Settings", editing);
    Settings& settings = editing.draft;
    auto* const content = new wxBoxSizer(wxVERTICAL);
    content->Add(NewZoomRow(page), 0, wxEXPAND | wxBOTTOM, 2 * kGap);
    LineGrid grid(page);
    content->Add(grid.Sizer());
    meridians = grid.Add("Meridians", settings.meridians);
    fields = grid.Add("Fields", settings.fields);
    fieldNames = grid.AddText("Fields", settings.fields.text);
    squares = grid.Add("Squares", settings.squares);
    squareNames = grid.AddText("Squares", settings.squares.text);
    compass = grid.Add("Compass", settings.compass);
    compassFigures = grid.AddText("Compass", settings.compass.text);
    radials = grid.Add("Radials    ", settings.radials);
    grid.AddExtras(NewRadialExtras(page));
    rangeCircles = grid.Add("Range Circles ", settings.rangeCircles);
    grid.AddExtras(NewRangeExtras(page));
    page.Finish(content);

    zoomSlider->Bind(wxEVT_SLIDER, [this](wxCommandEvent&) { ShowZoomInField(); });
    zoom->Bind(wxEVT_TEXT, [this](wxCommandEvent&) { ShowZoomOnSlider(); });
    editing.bindings.Then([this] { ShowZoomOnSlider(); });
}

wxSizer* SettingsPage::NewZoomRow(const Form& form)
{
    Settings& settings = form.Draft();
    auto* const row = new wxBoxSizer(wxHORIZONTAL);
    row->Add(form.Label("Zoom"), 0, wxALIGN_CENTRE_VERTICAL | wxRIGHT, kGap);
    zoomSlider = form.Says(NewZoomSlider(form.Parent()), {.name = "Zoom in km", .tip = kZoomTip});
    row->Add(zoomSlider, 1, wxALIGN_CENTRE_VERTICAL | wxRIGHT, kGap);
    const Said aboutZoom{.name = "Zoom in km, as a number", .tip = kZoomTip, .note = NoNumberFrom(100, 20000)};
    zoom = Add(row, form.Text(settings.zoom, 6, aboutZoom, "20000"), wxALIGN_CENTRE_VERTICAL | wxRIGHT, 4 * kGap);
    const Said aboutSize{.tip = "100 to 8000 pixels", .note = NoNumberFrom(render::kMinMapSize, render::kMaxMapSize)};
    size = Add(row, Labelled{form.Label("Size of map (in pixels)"), form.Text(settings.size, 5, aboutSize, "900")},
               wxALIGN_CENTRE_VERTICAL | wxRIGHT, 4 * kGap);
    compassInside = Add(row, form.Check(settings.compass.insideMap, "Compass in/outside"), wxALIGN_CENTRE_VERTICAL);
    return row;
}

wxSizer* SettingsPage::NewRadialExtras(const Form& form)
{
    auto* const extras = new wxBoxSizer(wxHORIZONTAL);
    radialsEvery =
        form.Choice(form.Draft().radials.every, config::LabelsOf(render::kRadialSteps), {.name = "Radials: Every"});
    extras->Add(radialsEvery);
    return extras;
}

wxSizer* SettingsPage::NewRangeExtras(const Form& form)
{
    RangeCirclesSettings& circles = form.Draft().rangeCircles;
    const int kBeside = wxALIGN_CENTRE_VERTICAL | wxRIGHT;
    auto* const extras = new wxBoxSizer(wxHORIZONTAL);
    const Said aboutEvery{.name = "Every so many km: Range Circles",
                          .tip = "Kilometres, 100 at least",
                          .unit = "km",
                          .note = NoNumberFrom(100, 20000)};
    rangeEvery =
        Add(extras, Labelled{form.Label("Every"), form.Text(circles.distanceKm, 5, aboutEvery, "2500")}, kBeside);
    rangeLegend = Add(extras, form.Check(circles.legendShow, "Legend", {.name = "Range Circles: Legend"}), kBeside);
    const Said aboutDegs{.name = "Degs: bearing of the legend",
                         .tip = "Bearing along which the legend is written, 0 to 360 degrees"};
    rangeDegs =
        Add(extras, Labelled{form.Label("Degs"), form.Spin(circles.legendBearingDeg, {0, 360, wxSP_WRAP}, aboutDegs)},
            wxALIGN_CENTRE_VERTICAL);
    return extras;
}

void SettingsPage::ShowZoomOnSlider()
{
    long km = 0;
    if (zoom->GetValue().ToCLong(&km))
        zoomSlider->SetValue(static_cast<int>(std::clamp<long>(km, zoomSlider->GetMin(), zoomSlider->GetMax())));
}

void SettingsPage::ShowZoomInField()
{
    zoom->ChangeValue(wxString::Format("%d", zoomSlider->GetValue()));
}
} // namespace ui

#include "render/LabelBox.h"
#include "render/Radials.h"
#include "ui/OptionsRows.h"

#include <wx/gbsizer.h>
#include <wx/statbox.h>

#include <functional>

namespace
{
using namespace ui;

constexpr int kTextColumn = 5; ///< the first column of the "Settings" grid that belongs to texts

wxSizer* NewZoomRow(wxWindow* parent, SettingsPage& page)
{
    auto* const row = new wxBoxSizer(wxHORIZONTAL);
    row->Add(NewLabel(parent, "Zoom"), 0, wxALIGN_CENTRE_VERTICAL | wxRIGHT, kGap);
    page.zoomSlider = new wxSlider(parent, wxID_ANY, 20000, 100, 20000);
    page.zoomSlider->SetLineSize(100);
    page.zoomSlider->SetPageSize(1000);
    row->Add(page.zoomSlider, 1, wxALIGN_CENTRE_VERTICAL | wxRIGHT, kGap);
    page.zoom = NewText(parent, 6, "20000");
    row->Add(page.zoom, 0, wxALIGN_CENTRE_VERTICAL | wxRIGHT, 4 * kGap);
    wxStaticText* const label = NewLabel(parent, "Size of map (in pixels)");
    page.size = NewText(parent, 5, "900");
    row->Add(Labelled(label, page.size), 0, wxALIGN_CENTRE_VERTICAL | wxRIGHT, 4 * kGap);
    page.compassInside = NewCheck(parent, "Compass in/outside");
    row->Add(page.compassInside, 0, wxALIGN_CENTRE_VERTICAL);
    return row;
}

/// The rows of the "Settings" page, one for each kind of line, added from the top.
class LineGrid
{
public:
    explicit LineGrid(wxWindow* parent) : m_parent(parent)
    {
        static constexpr const char* kHeadings[] = {"",          "Plot",        "Lines\nColours", "Alpha", "Line Width",
                                                    "Plot Text", "Text Colour", "Font",           "Alpha"};
        for (const char* const heading : kHeadings)
            m_grid->Add(NewLabel(parent, heading), {0, m_column++}, {1, 1}, wxALIGN_BOTTOM);
    }

    void Add(const wxString& label, LineRow& lines)
    {
        BeginRow(label);
        lines = NewLineRow(m_parent);
        AddRow({lines.show, lines.colour, lines.alpha, lines.lineWidth});
    }

    void Add(const wxString& label, LineRow& lines, TextStyleRow& text)
    {
        Add(label, lines);
        text = NewTextStyleRow(m_parent);
        AddRow({text.show, text.colour, text.font, text.alpha});
    }

    void Add(const wxString& label, LineRow& lines, const std::function<wxSizer*()>& makeExtras)
    {
        Add(label, lines);
        m_grid->Add(makeExtras(), {m_row, kTextColumn}, {1, 4}, wxALIGN_CENTRE_VERTICAL);
    }

    wxSizer* Sizer() const { return m_grid; }

private:
    void BeginRow(const wxString& label)
    {
        ++m_row;
        m_column = 0;
        AddRow({NewLabel(m_parent, label)});
    }

    void AddRow(std::initializer_list<wxWindow*> controls)
    {
        for (wxWindow* const control : controls)
            m_grid->Add(control, {m_row, m_column++}, {1, 1}, wxALIGN_CENTRE_VERTICAL);
    }

    wxWindow* m_parent;
    wxGridBagSizer* m_grid = new wxGridBagSizer(kGap, 2 * kGap);
    int m_row = 0;
    int m_column = 0;
};
} // namespace

namespace ui
{
SettingsPage::SettingsPage(wxBookCtrlBase* book)
{
    wxScrolledWindow* const panel = NewPage(book, "Settings");
    auto* const content = new wxBoxSizer(wxVERTICAL);
    content->Add(NewZoomRow(panel, *this), 0, wxEXPAND | wxBOTTOM, 2 * kGap);

    LineGrid grid(panel);
    content->Add(grid.Sizer());
    grid.Add("Meridians", meridians);
    grid.Add("Fields", fields, fieldNames);
    grid.Add("Squares", squares, squareNames);
    grid.Add("Compass", compass, compassFigures);
    grid.Add("Radials    ", radials,
             [&]
             {
                 radialsEvery = NewChoice(panel, config::LabelsOf(render::kRadialSteps));
                 auto* const extras = new wxBoxSizer(wxHORIZONTAL);
                 extras->Add(radialsEvery);
                 return extras;
             });
    grid.Add("Range Circles ", rangeCircles,
             [&]
             {
                 auto* const extras = new wxBoxSizer(wxHORIZONTAL);
                 wxStaticText* const every = NewLabel(panel, "Every");
                 rangeEvery = NewText(panel, 5, "2500");
                 extras->Add(Labelled(every, rangeEvery), 0, wxALIGN_CENTRE_VERTICAL | wxRIGHT, 2 * kGap);
                 rangeLegend = NewCheck(panel, "Legend");
                 extras->Add(rangeLegend, 0, wxALIGN_CENTRE_VERTICAL | wxRIGHT, 2 * kGap);
                 wxStaticText* const degs = NewLabel(panel, "Degs");
                 rangeDegs = NewSpin(panel, 0, 360, wxSP_WRAP);
                 extras->Add(Labelled(degs, rangeDegs), 0, wxALIGN_CENTRE_VERTICAL);
                 return extras;
             });
    FinishPage(panel, content);
}

BordersPage::BordersPage(wxBookCtrlBase* book)
{
    wxScrolledWindow* const panel = NewPage(book, "Borders");
    wxFlexGridSizer* const grid = NewGrid(5);
    grid->AddGrowableCol(4);
    AddHeadings(panel, grid, {"Plot", "Colour", "Alpha", "Line Width", "File to plot"});
    for (Row& row : rows)
    {
        row.lines = NewLineRow(panel);
        AddCells(grid, {row.lines.show, row.lines.colour, row.lines.alpha, row.lines.lineWidth});
        row.file = NewFile(panel, "pnt files (*.pnt)|*.pnt|All files(*.*)|*.*");
        grid->Add(row.file, wxSizerFlags().Expand());
    }
    FinishPage(panel, grid);
}

TextPage::TextPage(wxBookCtrlBase* book)
{
    wxScrolledWindow* const panel = NewPage(book, "Text");
    wxFlexGridSizer* const grid = NewGrid(7);
    grid->AddGrowableCol(4);
    AddHeadings(panel, grid, {"Plot", "Colour", "Alpha", "Font", "File to plot", "Alignment", ""});
    for (Row& row : rows)
    {
        row.text.show = NewCheck(panel);
        row.text.colour = NewColour(panel);
        row.text.alpha = NewSpin(panel, 0, 255);
        row.text.font = NewFont(panel);
        AddCells(grid, {row.text.show, row.text.colour, row.text.alpha, row.text.font});
        row.file = NewFile(panel, "dat files (*.dat)|*.dat|All files (*.*)|*.*", wxFLP_SMALL);
        grid->Add(row.file, 0, wxEXPAND | wxALIGN_CENTRE_VERTICAL);
        row.align = NewChoice(panel, config::LabelsOf(render::kLabelStyles));
        row.avoidCollisions = NewCheck(panel, "Collision\ndetect");
        AddCells(grid, {row.align, row.avoidCollisions});
    }
    FinishPage(panel, grid);
}

SourceMapPage::SourceMapPage(wxBookCtrlBase* book)
{
    wxScrolledWindow* const panel = NewPage(book, "Source Map");
    auto* const content = new wxBoxSizer(wxVERTICAL);
    wxFlexGridSizer* const grid = NewGrid(2);
    grid->AddGrowableCol(1);
    content->Add(grid, 0, wxEXPAND | wxBOTTOM, 3 * kGap);
    AddHeadings(panel, grid, {"Plot", "Mapfile to plot"});
    for (Row& row : rows)
    {
        row.show = NewCheck(panel);
        AddCells(grid, {row.show});
        row.file = NewFile(panel, "*.*");
        grid->Add(row.file, wxSizerFlags().Expand());
    }
    content->Add(NewLabel(panel, "Built-in map: Natural Earth\nThis is used if no other is checked."), 0, wxBOTTOM,
                 3 * kGap);
    content->Add(NewLabel(panel, "Please note that the source maps\n"
                                 "has to be in equirectangular projection. \n"
                                 "If the source map is 360 pixels wide and \n"
                                 "180 pixels high then each pixel represent \n"
                                 "1 degree east/west and 1 degree \n"
                                 "north/south. If it is 720 pixels wide and \n"
                                 "360 pixels high then each pixel represent \n"
                                 "half a degree, and so on."));
    FinishPage(panel, content);
}
} // namespace ui

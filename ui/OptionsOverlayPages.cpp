#include "config/Settings.h"
#include "render/Hatch.h"
#include "ui/Choices.h"
#include "ui/Guide.h"
#include "ui/OptionsRows.h"
#include "ui/PositionFields.h"

#include <wx/button.h>
#include <wx/statbox.h>
#include <wx/stdpaths.h>
#include <wx/valtext.h>

namespace
{
using namespace ui;

constexpr int kPreviewSide = 64;

wxSizer* NewSquaresSlot(wxWindow* page, const wxString& label, PlotSquaresPage::Slot& slot)
{
    auto* const group = new wxStaticBoxSizer(wxVERTICAL, page, label);
    wxWindow* const box = group->GetStaticBox();
    auto* const source = new wxBoxSizer(wxHORIZONTAL);
    group->Add(source, 0, wxEXPAND | wxALL, kGap);
    slot.show = NewCheck(box, "Plot");
    source->Add(slot.show, 0, wxALIGN_CENTRE_VERTICAL | wxRIGHT, 2 * kGap);
    slot.file = NewFile(box, "*.*");
    source->Add(slot.file, 1, wxALIGN_CENTRE_VERTICAL);

    auto* const style = new wxBoxSizer(wxHORIZONTAL);
    group->Add(style, 0, wxEXPAND | wxALL, kGap);
    slot.stipple = NewChoice(box, config::LabelsOf(render::kHatchings));
    style->Add(slot.stipple, 0, wxALIGN_CENTRE_VERTICAL | wxRIGHT, 2 * kGap);
    wxStaticText* const alpha = NewLabel(box, "Alpha");
    slot.alpha = NewSpin(box, 0, 255);
    style->Add(Labelled(alpha, slot.alpha), 0, wxALIGN_CENTRE_VERTICAL | wxRIGHT, 2 * kGap);
    wxStaticText* const border = NewLabel(box, "Border Colour");
    slot.borderColour = NewColour(box);
    style->Add(Labelled(border, slot.borderColour), 0, wxALIGN_CENTRE_VERTICAL | wxRIGHT, 2 * kGap);
    wxStaticText* const fill = NewLabel(box, "Fill Colour");
    slot.fillColour = NewColour(box);
    style->Add(Labelled(fill, slot.fillColour), 0, wxALIGN_CENTRE_VERTICAL | wxRIGHT, 2 * kGap);
    slot.preview = new wxStaticBitmap(box, wxID_ANY, wxBitmap(kPreviewSide, kPreviewSide));
    style->Add(slot.preview, 0, wxALIGN_CENTRE_VERTICAL);
    return group;
}

wxTextCtrl* NewFiltered(wxWindow* parent, int digits, const char* characters)
{
    wxTextCtrl* const field = NewText(parent, digits);
    wxTextValidator filter(wxFILTER_INCLUDE_CHAR_LIST);
    filter.SetCharIncludes(characters);
    field->SetValidator(filter);
    return field;
}

PositionRow NewPositionRow(wxWindow* parent, wxSizer* grid, const char* label, const char* decimalHeading,
                           const char* hemisphereHeading, const wxArrayString& hemispheres)
{
    AddHeadings(parent, grid, {"", decimalHeading, "", "Deg", "Min", "Sec", hemisphereHeading});
    wxStaticText* const name = NewLabel(parent, label);
    PositionRow row{};
    row.decimal = NewFiltered(parent, 14, "0123456789-+.");
    row.toDecimal = new wxButton(parent, wxID_ANY, "<--", wxDefaultPosition, wxDefaultSize, wxBU_EXACTFIT);
    for (wxTextCtrl** const field : {&row.deg, &row.min, &row.sec})
        *field = NewFiltered(parent, 4, "0123456789");
    row.hemisphere = NewChoice(parent, hemispheres);
    AddCells(grid, {name, row.decimal, row.toDecimal, row.deg, row.min, row.sec, row.hemisphere});
    return row;
}
} // namespace

namespace ui
{
PlotSquaresPage::PlotSquaresPage(wxBookCtrlBase* book)
{
    wxScrolledWindow* const panel = NewPage(book, "Plot Squares");
    auto* const content = new wxBoxSizer(wxVERTICAL);
    content->Add(NewSquaresSlot(panel, "Squares to plot (File 1)", slots[0]), 0, wxEXPAND | wxBOTTOM, 2 * kGap);
    content->Add(NewSquaresSlot(panel, "Squares to plot (File 2)", slots[1]), 0, wxEXPAND | wxBOTTOM, 2 * kGap);
    content->Add(NewLabel(panel, "The file to plot is an ordinary textfile with locators one per row.\n"
                                 "Default extension is .log"));
    FinishPage(panel, content);
}

GraylinePage::GraylinePage(wxBookCtrlBase* book)
{
    wxScrolledWindow* const panel = NewPage(book, "Sun/Grayline");
    wxFlexGridSizer* const grid = NewGrid(2);
    const auto addNumber = [&](const char* label, int max, const char* tip)
    {
        wxStaticText* const name = NewLabel(panel, label);
        wxSpinCtrl* const number = NewSpin(panel, 0, max);
        number->SetToolTip(tip);
        AddCells(grid, {name, number});
        return number;
    };
    const auto addCheck = [&](const char* label)
    {
        wxCheckBox* const check = NewCheck(panel, label);
        AddCells(grid, {check});
        grid->AddSpacer(0);
        return check;
    };
    show = addCheck("Plot Grayline");
    width = addNumber("Grayzone width degrees", 15,
                      "How wide should the greyzone be?\nHalf of this value, the sun is below\nthe horizon, half it is "
                      "above.");
    gradient = addCheck("Gradient greyzone");
    gradient->SetToolTip("Gradient goes from the night \nvalue to the greyzone value.");
    darkeningGrey = addNumber("Darkening greyzone", 100,
                              "Darkening of the greyzone.\nEnd value if you use gradient.\n100 is no darkening at all."
                              "\n0 is totally black.\nMust be higher than night side.");
    darkeningNight = addNumber("Darkening night", 100,
                               "Darkening of the night side.\nStart value if you use gradient.\n100 is no darkening at "
                               "all.\n0 is totally black.\nMust be lower than greyzone.");
    FinishPage(panel, grid);
}

TimePage::TimePage(wxBookCtrlBase* book)
{
    wxScrolledWindow* const panel = NewPage(book, "Time");
    auto* const content = new wxBoxSizer(wxVERTICAL);
    content->Add(NewLabel(panel, "This time affects both the sun/grayline\nand the Voacap features."), 0, wxBOTTOM,
                 2 * kGap);
    mode = NewRadioBox(panel, "Type", config::LabelsOf(kTimeModes), 2);
    content->Add(mode, 0, wxBOTTOM, 2 * kGap);

    const auto newNumbers = [&](int count, const char* tip)
    {
        wxChoice* const choice = NewChoice(panel, TwoDigitNumbers(count));
        choice->SetToolTip(tip);
        return choice;
    };
    auto* const clock = new wxBoxSizer(wxHORIZONTAL);
    content->Add(clock, 0, wxBOTTOM, 2 * kGap);
    wxStaticText* const hourLabel = NewLabel(panel, "Hour");
    hour = newNumbers(24, "Hour value if you plot \"Once\"");
    clock->Add(Labelled(hourLabel, hour), 0, wxRIGHT, 2 * kGap);
    wxStaticText* const minuteLabel = NewLabel(panel, "Minute");
    minute = newNumbers(60, "Minute value if you plot \"Once\"");
    clock->Add(Labelled(minuteLabel, minute));

    date = new wxCalendarCtrl(panel, wxID_ANY);
    date->SetToolTip("Date and year if you plot \"Once\"");
    content->Add(date, 0, wxBOTTOM, 2 * kGap);
    now = new wxButton(panel, wxID_ANY, "Now!");
    now->SetToolTip("Click here if you want to transfer\nthe time just now to the controls\nfor plotting \"Once\"");
    content->Add(now);
    FinishPage(panel, content);
}

HomePage::HomePage(wxBookCtrlBase* book)
{
    wxScrolledWindow* const panel = NewPage(book, "Home");
    auto* const content = new wxBoxSizer(wxVERTICAL);
    wxFlexGridSizer* const grid = NewGrid(7);
    content->Add(grid, 0, wxBOTTOM, 2 * kGap);
    latitude = NewPositionRow(panel, grid, "Latitude", "Decimal (N+ / S-)", "N/S", config::LabelsOf(kNorthSouth));
    longitude = NewPositionRow(panel, grid, "Longitude", "Decimal (E+ / W-)", "E/W", config::LabelsOf(kEastWest));
    wxStaticText* const name = NewLabel(panel, "Locator");
    locator = NewText(panel, 10);
    AddCells(grid, {name});
    grid->Add(locator, wxSizerFlags().Expand());

    auto* const buttons = new wxBoxSizer(wxHORIZONTAL);
    content->Add(buttons, 0, wxBOTTOM, 4 * kGap);
    latLonFromLocator = new wxButton(panel, wxID_ANY, "Lat/Lon from Loc");
    buttons->Add(latLonFromLocator, 0, wxALIGN_CENTRE_VERTICAL | wxRIGHT, kGap);
    locatorFromLatLon = new wxButton(panel, wxID_ANY, "Loc from Lat/Lon");
    buttons->Add(locatorFromLatLon);
    link = NewLink(panel, "Kavdex Homepage", GuideAddress(wxStandardPaths::Get().GetExecutablePath()));
    content->Add(link);
    FinishPage(panel, content);
}
} // namespace ui

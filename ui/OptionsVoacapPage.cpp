#include "config/PropagationParameters.h"
#include "propagation/AreaInput.h"
#include "propagation/VoacapRun.h"
#include "ui/OptionsRows.h"

#include <wx/dcclient.h>
#include <wx/notebook.h>
#include <wx/statbox.h>

namespace
{
using namespace ui;

// Numbers wider than their place in the input of voacapl are read otherwise, and nothing tells.
constexpr char kSsnTip[] = "voacapl reads two digits:\n120 counts as 12.";
constexpr char kBelow10Tip[] = "Below 10; from there on voacapl\nreads the fields after it wrongly.";
constexpr char kBelow100Tip[] = "Below 100; from there on voacapl\nreads the fields after it wrongly.";
constexpr char kReceiverGainTip[] = "0 to 9.9; otherwise voacapl\nreads the direction wrongly.";
constexpr char kReceiverDirectionTip[] = "voacapl reads two digits:\n270 counts as 27.";

wxTextCtrl* AddField(wxWindow* parent, wxSizer* grid, const char* label, const char* tip = "")
{
    wxStaticText* const name = NewLabel(parent, label);
    wxTextCtrl* const field = NewText(parent, 8);
    field->SetToolTip(tip);
    AddCells(grid, {name, field});
    return field;
}

/// A label and its control, side by side, the label made first.
template <class MakeControl>
auto AddLabelled(wxWindow* parent, wxSizer* sizer, const char* label, MakeControl makeControl)
{
    wxStaticText* const name = NewLabel(parent, label);
    auto* const control = makeControl();
    sizer->Add(Labelled(name, control), 0, wxRIGHT | wxBOTTOM, 2 * kGap);
    return control;
}

wxSizer* NewEngineRow(wxWindow* page, VoacapMainPage& controls)
{
    auto* const row = new wxBoxSizer(wxHORIZONTAL);
    controls.engine = AddLabelled(page, row, "Propagation Engine",
                                  [&] { return NewChoice(page, config::LabelsOf(propagation::kEngines)); });
    controls.ssn = AddLabelled(page, row, "SSN", [&] { return NewSpin(page, 0, 200, wxSP_WRAP); });
    controls.ssn->SetToolTip(kSsnTip);
    controls.grid =
        AddLabelled(page, row, "Grid", [&] { return NewChoice(page, config::LabelsOf(propagation::kGrids)); });
    row->Add(controls.notes.NewBelow(page, {{"SSN", "SSN: "}}), 0, wxALIGN_CENTRE_VERTICAL | wxBOTTOM, 2 * kGap);
    return row;
}

wxSizer* NewTransmitterColumn(wxWindow* page, VoacapMainPage& controls)
{
    auto* const column = new wxBoxSizer(wxVERTICAL);
    controls.txPower =
        AddLabelled(page, column, "Tx Pwr", [&] { return NewChoice(page, config::LabelsOf(propagation::kTxPowers)); });
    controls.frequency = NewRadioBox(page, "Frequency", config::LabelsOf(propagation::kFrequencies), 3);
    column->Add(controls.frequency, 0, wxBOTTOM, 2 * kGap);
    controls.userFrequency = AddLabelled(page, column, "User Fq MHz", [&] { return NewText(page, 8); });
    column->Add(controls.notes.NewBeside(page, "UserFq"));
    return column;
}

wxSizer* NewSystemVariables(wxWindow* page, VoacapMainPage& controls)
{
    struct Field
    {
        const char* key;
        const char* label;
        const char* tip = "";
    };
    static constexpr Field kFields[] = {{"MMN", "Man Made Noise (-dBW/Hz)"},
                                        {"MTA", "Minimum Takeoff Angle (deg)", kBelow10Tip},
                                        {"RCR", "Required Circuit Reliability (%)", kBelow100Tip},
                                        {"RSN", "Required S/N Ratio (dB)"},
                                        {"MPT", "Multipath Pwr Tolerance (dB)"},
                                        {"MTM", "Max Tolerable Multipath Delay (mS)"}};
    auto* const group = new wxStaticBoxSizer(wxVERTICAL, page, "System Variables");
    wxFlexGridSizer* const grid = NewGrid(3);
    for (std::size_t i = 0; i < controls.systemVariables.size(); ++i)
    {
        wxWindow* const box = group->GetStaticBox();
        controls.systemVariables[i] = AddField(box, grid, kFields[i].label, kFields[i].tip);
        AddCells(grid, {controls.notes.NewBeside(box, kFields[i].key)});
    }
    group->Add(grid, 0, wxALL, kGap);
    return group;
}

AntennaGroup AddAntenna(wxWindow* page, wxSizer* content, const char* label)
{
    auto* const group = new wxStaticBoxSizer(wxHORIZONTAL, page, label);
    content->Add(group, 0, wxEXPAND);
    wxWindow* const box = group->GetStaticBox();
    wxFlexGridSizer* const grid = NewGrid(4);
    AntennaGroup antenna{};
    antenna.gain = AddField(box, grid, "Gain (dBi) or\nDesign fq (MHz)");
    antenna.direction = AddField(box, grid, "Direction (degs)");
    group->Add(grid, 0, wxALL | wxALIGN_CENTRE_VERTICAL, kGap);
    wxStaticText* const name = NewLabel(box, "Antenna file");
    group->Add(name, 0, wxLEFT | wxALIGN_CENTRE_VERTICAL, kGap);
    antenna.file = NewFile(box, "*.*");
    group->Add(antenna.file, 1, wxALL | wxALIGN_CENTRE_VERTICAL, kGap);
    return antenna;
}

/// A read-only text that leaves Enter to the dialog.
wxTextCtrl* NewExplanation(wxWindow* parent)
{
    auto* const text = new wxTextCtrl(parent, wxID_ANY, "", wxDefaultPosition, wxDefaultSize,
                                      wxTE_MULTILINE | wxTE_READONLY | wxTE_NO_VSCROLL | wxBORDER_NONE);
    wxSize needed;
    const wxClientDC dc(text);
    for (const config::PropagationParameter& parameter : config::kParameters)
        needed.IncTo(dc.GetMultiLineTextExtent(parameter.explanation));
    text->SetMinSize(needed + wxSize(4 * kGap, 4 * kGap));
    text->Bind(wxEVT_KEY_DOWN,
               [text](wxKeyEvent& event)
               {
                   if (event.GetKeyCode() != WXK_RETURN && event.GetKeyCode() != WXK_NUMPAD_ENTER)
                       return event.Skip();
                   wxCommandEvent ok(wxEVT_BUTTON, wxID_OK);
                   text->ProcessWindowEvent(ok);
               });
    return text;
}
} // namespace

namespace ui
{
VoacapMainPage::VoacapMainPage(wxBookCtrlBase* book)
{
    wxScrolledWindow* const panel = NewPage(book, "Main");
    auto* const content = new wxBoxSizer(wxVERTICAL);
    show = NewCheck(panel, "Plot propagation");
    content->Add(show, 0, wxBOTTOM, 2 * kGap);
    content->Add(NewEngineRow(panel, *this));
    wxStaticText* const directoryLabel = NewLabel(panel, "Icepac/Voacap directory");
    directory = NewDirectory(panel);
    content->Add(Labelled(directoryLabel, directory, 1), 0, wxEXPAND);
    content->Add(notes.NewBelow(panel, {{"Dir", ""}}), 0, wxBOTTOM, kGap);
    auto* const columns = new wxBoxSizer(wxHORIZONTAL);
    content->Add(columns, 0, wxBOTTOM, kGap);
    columns->Add(NewTransmitterColumn(panel, *this), 0, wxRIGHT, 4 * kGap);
    columns->Add(NewSystemVariables(panel, *this));
    link = NewLink(panel, "VOACAP", "https://www.voacap.com/");
    content->Add(link, 0, wxBOTTOM, 2 * kGap);

    auto* const external = new wxBoxSizer(wxHORIZONTAL);
    content->Add(external, 0, wxEXPAND);
    useExternalResult = NewCheck(panel, "Use external vg1/ig1file as input");
    external->Add(useExternalResult, 0, wxALIGN_CENTRE_VERTICAL | wxRIGHT, 2 * kGap);
    externalResult = NewFile(panel, "vg1 files (*.vg1)|*.vg1|ig1 files (*.ig1)|*.ig1|All files(*.*)|*.*");
    external->Add(externalResult, 1, wxALIGN_CENTRE_VERTICAL);
    FinishPage(panel, content);
}

VoacapAppearancePage::VoacapAppearancePage(wxBookCtrlBase* book)
{
    wxScrolledWindow* const panel = NewPage(book, "Appearance");
    auto* const group = new wxStaticBoxSizer(wxHORIZONTAL, panel, "Colour and transparency");
    wxWindow* const box = group->GetStaticBox();
    parameter = NewRadioBox(box, "Parameter", config::LabelsOf(config::kParameters), 1);
    parameter->SetMinSize(parameter->GetBestSize() + wxSize(4 * kGap, 0));
    group->Add(parameter, 0, wxALL, kGap);

    auto* const scale = new wxFlexGridSizer(2, kGap / 3, kGap);
    group->Add(scale, 0, wxALL, kGap);
    for (Step& step : steps)
    {
        step.colour = NewColour(box);
        step.value = NewText(box, 8);
        AddCells(scale, {step.colour, step.value});
    }

    auto* const right = new wxBoxSizer(wxVERTICAL);
    group->Add(right, 1, wxALL, kGap);
    explanation = NewExplanation(box);
    right->Add(explanation, 0, wxEXPAND | wxBOTTOM, 2 * kGap);
    autoLevel = NewCheck(box, "Auto level");
    greyScale = NewCheck(box, "Plot units in grey scale");
    wxStaticText* const alphaLabel = NewLabel(box, "Alpha");
    alpha = NewSpin(box, 0, 255, wxSP_WRAP);
    legend = NewCheck(box, "Draw Legend");
    right->Add(autoLevel, 0, wxBOTTOM, kGap);
    right->Add(greyScale, 0, wxBOTTOM, kGap);
    right->Add(Labelled(alphaLabel, alpha), 0, wxBOTTOM, kGap);
    right->Add(legend);
    FinishPage(panel, group);
}

VoacapAntennaPage::VoacapAntennaPage(wxBookCtrlBase* book)
{
    static constexpr const char* kLabels[] = {"* FoE", "* FoF1", "* FoF2", "* FoEs"};
    wxScrolledWindow* const panel = NewPage(book, "Antenna");
    auto* const content = new wxBoxSizer(wxVERTICAL);
    transmitter = AddAntenna(panel, content, "Transmitter antenna");
    content->Add(notes.NewBelow(panel, {{"TxGain", "Gain: "}, {"Tx1Dir", "Direction: "}, {"Tx1File", "File: "}}), 0,
                 wxBOTTOM, kGap);
    receiver = AddAntenna(panel, content, "Receiver Antenna");
    content->Add(notes.NewBelow(panel, {{"RxGain", "Gain: "}, {"Rx1Dir", "Direction: "}, {"Rx1File", "File: "}}), 0,
                 wxBOTTOM, kGap);
    receiver.gain->SetToolTip(kReceiverGainTip);
    receiver.direction->SetToolTip(kReceiverDirectionTip);
    auto* const group = new wxStaticBoxSizer(wxVERTICAL, panel, "Ionospheric parameters");
    content->Add(group, 0, wxEXPAND);
    wxWindow* const box = group->GetStaticBox();
    group->Add(NewLabel(box, "Layer Multipliers"), 0, wxALL, kGap);
    wxFlexGridSizer* const grid = NewGrid(8);
    group->Add(grid, 0, wxALL, kGap);
    for (std::size_t i = 0; i < layerMultipliers.size(); ++i)
        layerMultipliers[i] = AddField(box, grid, kLabels[i]);
    content->Add(
        notes.NewBelow(panel, {{"Fo1", "* FoE: "}, {"Fo2", "* FoF1: "}, {"Fo3", "* FoF2: "}, {"Fo4", "* FoEs: "}}));
    FinishPage(panel, content);
}

namespace
{
/// A notebook that fills a page of the outer one.
wxBookCtrlBase* NewInnerBook(wxBookCtrlBase* outer)
{
    auto* const panel = new wxPanel(outer);
    outer->AddPage(panel, "Voacap");
    auto* const inner = new wxNotebook(panel, wxID_ANY);
    auto* const sizer = new wxBoxSizer(wxVERTICAL);
    sizer->Add(inner, 1, wxEXPAND | wxALL, kGap);
    panel->SetSizer(sizer);
    return inner;
}
} // namespace

VoacapPage::VoacapPage(wxBookCtrlBase* outer) : book(NewInnerBook(outer)), main(book), appearance(book), antenna(book)
{
}
} // namespace ui

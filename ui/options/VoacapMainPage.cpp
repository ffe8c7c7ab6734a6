#include "ui/options/VoacapMainPage.h"

#include "propagation/AreaInput.h"
#include "propagation/Engines.h"
#include "ui/options/FileKinds.h"
#include "ui/options/Placing.h"

#include <wx/statbox.h>

namespace
{
constexpr char kResultKinds[] = "vg1 files (*.vg1)|*.vg1|ig1 files (*.ig1)|*.ig1|All files(*.*)|*.*";

// Numbers wider than their place in the input of voacapl are read otherwise, and nothing tells.
constexpr char kSsnTip[] = "voacapl reads two digits:\n120 counts as 12.";
constexpr char kBelow10Tip[] = "Below 10; from there on voacapl\nreads the fields after it wrongly.";
constexpr char kBelow100Tip[] = "Below 100; from there on voacapl\nreads the fields after it wrongly.";

constexpr int kApart = wxRIGHT | wxBOTTOM;
} // namespace

namespace ui
{
VoacapMainPage::VoacapMainPage(wxBookCtrlBase* book, Editing& editing, VoacapNotes& notes)
{
    const Page page(book, "Main", editing);
    PropagationSettings& p = editing.draft.propagation;
    auto* const content = new wxBoxSizer(wxVERTICAL);
    show = Add(content, page.Check(p.show, "Plot propagation"), wxBOTTOM);
    content->Add(NewEngineRow(page, notes));
    wxStaticText* const directoryLabel = page.Label("Icepac/Voacap directory");
    directory = page.Directory(p.directory, "Icepac/Voacap directory");
    content->Add(SideBySide(directoryLabel, directory, 1), 0, wxEXPAND);
    Add(content, notes.NewBelow(page.Parent(), {{"Dir", ""}}), wxBOTTOM, kGap);
    auto* const columns = new wxBoxSizer(wxHORIZONTAL);
    content->Add(columns, 0, wxBOTTOM, kGap);
    columns->Add(NewTransmitterColumn(page, notes), 0, wxRIGHT, 4 * kGap);
    columns->Add(NewSystemVariables(page, notes));
    link = Add(content, NewLink(page.Parent(), "VOACAP", "https://www.voacap.com/"), wxBOTTOM);
    content->Add(NewExternalRow(page), 0, wxEXPAND);
    page.Finish(content);
}

wxSizer* VoacapMainPage::NewEngineRow(const Form& form, VoacapNotes& notes)
{
    PropagationSettings& p = form.Draft().propagation;
    auto* const row = new wxBoxSizer(wxHORIZONTAL);
    const auto engines = config::LabelsOf(propagation::kEngines);
    const auto grids = config::LabelsOf(propagation::kGrids);
    const Limits aroundTo200{0, 200, wxSP_WRAP};
    engine = Add(row, Labelled{form.Label("Propagation Engine"), form.Choice(p.engine, engines)}, kApart);
    ssn = Add(row, Labelled{form.Label("SSN"), form.Spin(p.sunspotNumber, aroundTo200, {.tip = kSsnTip})}, kApart);
    grid = Add(row, Labelled{form.Label("Grid"), form.Choice(p.grid, grids)}, kApart);
    Add(row, notes.NewBelow(form.Parent(), {{"SSN", "SSN: "}}), wxALIGN_CENTRE_VERTICAL | wxBOTTOM);
    return row;
}

wxSizer* VoacapMainPage::NewTransmitterColumn(const Form& form, VoacapNotes& notes)
{
    PropagationSettings& p = form.Draft().propagation;
    auto* const column = new wxBoxSizer(wxVERTICAL);
    const auto powers = config::LabelsOf(propagation::kTxPowers);
    const auto frequencies = config::LabelsOf(propagation::kFrequencies);
    txPower = Add(column, Labelled{form.Label("Tx Pwr"), form.Choice(p.txPower, powers)}, kApart);
    frequency = Add(column, form.RadioBox(p.frequency, "Frequency", frequencies, 3), wxBOTTOM);
    userFrequency = Add(column, Labelled{form.Label("User Fq MHz"), form.Text(p.userFrequencyMHz, 8)}, kApart);
    column->Add(notes.NewBeside(form.Parent(), "UserFq"));
    return column;
}

wxSizer* VoacapMainPage::NewSystemVariables(const Form& form, VoacapNotes& notes)
{
    PropagationSettings& p = form.Draft().propagation;
    struct Variable
    {
        const char* key;
        wxString& setting;
        const char* label;
        const char* tip = "";
    };
    const Variable variables[] = {{"MMN", p.manMadeNoise, "Man Made Noise (-dBW/Hz)"},
                                  {"MTA", p.minTakeOffAngle, "Minimum Takeoff Angle (deg)", kBelow10Tip},
                                  {"RCR", p.requiredReliability, "Required Circuit Reliability (%)", kBelow100Tip},
                                  {"RSN", p.requiredSnr, "Required S/N Ratio (dB)"},
                                  {"MPT", p.multipathPowerTolerance, "Multipath Pwr Tolerance (dB)"},
                                  {"MTM", p.maxMultipathDelay, "Max Tolerable Multipath Delay (mS)"}};
    auto* const group = new wxStaticBoxSizer(wxVERTICAL, form.Parent(), "System Variables");
    const Form box = form.In(group->GetStaticBox());
    wxFlexGridSizer* const cells = NewGrid(3);
    auto* field = systemVariables.begin();
    for (const auto& [key, setting, label, tip] : variables)
        AddCells(cells,
                 {box.Label(label), *field++ = box.Text(setting, 8, {.tip = tip}), notes.NewBeside(box.Parent(), key)});
    group->Add(cells, 0, wxALL, kGap);
    return group;
}

wxSizer* VoacapMainPage::NewExternalRow(const Form& form)
{
    PropagationSettings& p = form.Draft().propagation;
    auto* const row = new wxBoxSizer(wxHORIZONTAL);
    useExternalResult = Add(row, form.Check(p.useExternalResult, "Use external vg1/ig1file as input"),
                            wxALIGN_CENTRE_VERTICAL | wxRIGHT);
    externalResult = form.File(p.externalResult, kResultKinds, {.name = "External vg1/ig1file", .note = MissingFile});
    row->Add(externalResult, 1, wxALIGN_CENTRE_VERTICAL);
    return row;
}
} // namespace ui

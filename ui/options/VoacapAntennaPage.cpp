#include "ui/options/VoacapAntennaPage.h"

#include "ui/options/Placing.h"

#include <wx/statbox.h>

namespace
{
using namespace ui;

// Numbers wider than their place in the input of voacapl are read otherwise, and nothing tells.
constexpr char kReceiverGainTip[] = "0 to 9.9; otherwise voacapl\nreads the direction wrongly.";
constexpr char kReceiverDirectionTip[] = "voacapl reads two digits:\n270 counts as 27.";

/// What tells the two antennas from each other.
struct About
{
    const char* group;
    const char* gainTip = "";
    const char* directionTip = "";
};

AntennaGroup AddAntenna(const Form& form, wxSizer* content, AntennaSettings& settings, const About& about)
{
    const wxString name = about.group;
    auto* const group = new wxStaticBoxSizer(wxHORIZONTAL, form.Parent(), name);
    content->Add(group, 0, wxEXPAND);
    const Form box = form.In(group->GetStaticBox());
    wxFlexGridSizer* const grid = NewGrid(4);
    AntennaGroup antenna{};
    const Said aboutGain{.name = "Gain (dBi) or Design fq (MHz): " + name, .tip = about.gainTip};
    const Said aboutDirection{.name = "Direction (degs): " + name, .tip = about.directionTip};
    AddCells(grid,
             {box.Label("Gain (dBi) or\nDesign fq (MHz)"), antenna.gain = box.Text(settings.gain, 8, aboutGain),
              box.Label("Direction (degs)"), antenna.direction = box.Text(settings.directionDeg, 8, aboutDirection)});
    group->Add(grid, 0, wxALL | wxALIGN_CENTRE_VERTICAL, kGap);
    Add(group, box.Label("Antenna file"), wxLEFT | wxALIGN_CENTRE_VERTICAL, kGap);
    antenna.file = box.File(settings.file, "*.*", {.name = "Antenna file: " + name});
    group->Add(antenna.file, 1, wxALL | wxALIGN_CENTRE_VERTICAL, kGap);
    return antenna;
}
} // namespace

namespace ui
{
VoacapAntennaPage::VoacapAntennaPage(wxBookCtrlBase* book, Editing& editing, VoacapNotes& notes)
{
    const Page page(book, "Antenna", editing);
    PropagationSettings& p = editing.draft.propagation;
    auto* const content = new wxBoxSizer(wxVERTICAL);
    const auto addNote = [&](std::initializer_list<VoacapNotes::Field> fields, int flags)
    { Add(content, notes.NewBelow(page.Parent(), fields), flags, kGap); };
    transmitter = AddAntenna(page, content, p.transmitter, {"Transmitter antenna"});
    addNote({{"TxGain", "Gain: "}, {"Tx1Dir", "Direction: "}, {"Tx1File", "File: "}}, wxBOTTOM);
    receiver = AddAntenna(page, content, p.receiver, {"Receiver Antenna", kReceiverGainTip, kReceiverDirectionTip});
    addNote({{"RxGain", "Gain: "}, {"Rx1Dir", "Direction: "}, {"Rx1File", "File: "}}, wxBOTTOM);
    content->Add(NewLayers(page), 0, wxEXPAND);
    addNote({{"Fo1", "* FoE: "}, {"Fo2", "* FoF1: "}, {"Fo3", "* FoF2: "}, {"Fo4", "* FoEs: "}}, 0);
    page.Finish(content);
}

wxSizer* VoacapAntennaPage::NewLayers(const Form& form)
{
    static constexpr const char* kLabels[] = {"* FoE", "* FoF1", "* FoF2", "* FoEs"};
    auto* const group = new wxStaticBoxSizer(wxVERTICAL, form.Parent(), "Ionospheric parameters");
    const Form box = form.In(group->GetStaticBox());
    Add(group, box.Label("Layer Multipliers"), wxALL, kGap);
    wxFlexGridSizer* const grid = NewGrid(8);
    group->Add(grid, 0, wxALL, kGap);
    auto& settings = form.Draft().propagation.layerMultipliers;
    for (std::size_t i = 0; i < layerMultipliers.size(); ++i)
        AddCells(grid, {box.Label(kLabels[i]), layerMultipliers[i] = box.Text(settings[i], 8)});
    return group;
}
} // namespace ui

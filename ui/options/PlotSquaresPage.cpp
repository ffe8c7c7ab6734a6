#include "ui/options/PlotSquaresPage.h"

#include "render/Hatch.h"
#include "ui/options/FileKinds.h"
#include "ui/options/Placing.h"
#include "ui/options/SquaresPreview.h"

#include <wx/statbox.h>

namespace
{
using namespace ui;

constexpr int kPreviewSide = 64;
const int kBeside = wxALIGN_CENTRE_VERTICAL | wxRIGHT;

wxSizer* NewSource(const Form& form, PlotSquaresPage::Slot& slot, PlotSquaresSlot& squares, const wxString& name)
{
    auto* const row = new wxBoxSizer(wxHORIZONTAL);
    slot.show = Add(row, form.Check(squares.show, "Plot", {.name = name + ": Plot"}), kBeside);
    slot.file = form.File(squares.file, "*.*", {.name = name + ": File to plot", .note = MissingFile});
    row->Add(slot.file, 1, wxALIGN_CENTRE_VERTICAL);
    return row;
}

wxSizer* NewStyle(const Form& form, PlotSquaresPage::Slot& slot, PlotSquaresSlot& squares, const wxString& name)
{
    auto* const row = new wxBoxSizer(wxHORIZONTAL);
    const wxArrayString hatchings = config::LabelsOf(render::kHatchings);
    slot.stipple = Add(row, form.Choice(squares.stipple, hatchings, {.name = name + ": Hatching"}), kBeside);
    slot.alpha = Add(row, Labelled{form.Label("Alpha"), form.Alpha(squares.alpha, "Alpha: " + name)}, kBeside);
    slot.borderColour =
        Add(row, Labelled{form.Label("Border Colour"), form.Colour(squares.borderColour, "Border Colour: " + name)},
            kBeside);
    slot.fillColour =
        Add(row, Labelled{form.Label("Fill Colour"), form.Colour(squares.fillColour, "Fill Colour: " + name)}, kBeside);
    slot.preview = new wxStaticBitmap(form.Parent(), wxID_ANY, wxBitmap(kPreviewSide, kPreviewSide));
    row->Add(slot.preview, 0, wxALIGN_CENTRE_VERTICAL);
    return row;
}

/// Calls act() when the user changes what the preview shows.
template <class Act>
void OnStyle(const PlotSquaresPage::Slot& slot, Act act)
{
    slot.stipple->Bind(wxEVT_CHOICE, [act](wxCommandEvent&) { act(); });
    slot.alpha->Bind(wxEVT_SPINCTRL, [act](wxCommandEvent&) { act(); });
    slot.borderColour->Bind(wxEVT_COLOURPICKER_CHANGED, [act](wxCommandEvent&) { act(); });
    slot.fillColour->Bind(wxEVT_COLOURPICKER_CHANGED, [act](wxCommandEvent&) { act(); });
}

PlotSquaresSlot StyleIn(const PlotSquaresPage::Slot& slot)
{
    PlotSquaresSlot style;
    style.stipple = slot.stipple->GetSelection();
    style.borderColour = SettingFromPicked(slot.borderColour->GetColour());
    style.fillColour = SettingFromPicked(slot.fillColour->GetColour());
    style.alpha = slot.alpha->GetValue();
    return style;
}
} // namespace

namespace ui
{
PlotSquaresPage::PlotSquaresPage(wxBookCtrlBase* book, Editing& editing)
{
    const Page page(book, "Plot Squares", editing);
    auto* const content = new wxBoxSizer(wxVERTICAL);
    for (std::size_t i = 0; i < slots.size(); ++i)
    {
        const wxString number = wxString::Format("%zu", i + 1);
        auto* const group = new wxStaticBoxSizer(wxVERTICAL, page.Parent(), "Squares to plot (File " + number + ")");
        const Form form = page.In(group->GetStaticBox());
        PlotSquaresSlot& squares = editing.draft.plotSquares[i];
        group->Add(NewSource(form, slots[i], squares, "Squares " + number), 0, wxEXPAND | wxALL, kGap);
        group->Add(NewStyle(form, slots[i], squares, "Squares " + number), 0, wxEXPAND | wxALL, kGap);
        content->Add(group, 0, wxEXPAND | wxBOTTOM, 2 * kGap);
        OnStyle(slots[i], [this] { ShowPreviews(); });
    }
    content->Add(page.Label("The file to plot is an ordinary textfile with locators one per row.\n"
                            "Default extension is .log"));
    page.Finish(content);
    editing.bindings.Then([this] { ShowPreviews(); });
}

void PlotSquaresPage::ShowPreviews() const
{
    for (const Slot& slot : slots)
        slot.preview->SetBitmap(SquaresPreview(StyleIn(slot)));
}
} // namespace ui

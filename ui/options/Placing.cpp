#include "ui/options/Placing.h"

#include <memory>

namespace
{
std::size_t IndexIn(wxSizer* sizer, wxWindow* control)
{
    std::size_t index = 0;
    while (sizer->GetItem(index)->GetWindow() != control)
        ++index;
    return index;
}
} // namespace

namespace ui
{
wxFlexGridSizer* NewGrid(int columns)
{
    return new wxFlexGridSizer(columns, kGap, 2 * kGap);
}

void AddCells(wxSizer* grid, std::initializer_list<wxWindow*> controls)
{
    for (wxWindow* const control : controls)
        grid->Add(control, wxSizerFlags().CentreVertical());
}

void AddHeadings(wxWindow* parent, wxSizer* grid, std::initializer_list<const char*> headings)
{
    for (const char* const heading : headings)
        grid->Add(new wxStaticText(parent, wxID_ANY, heading), wxSizerFlags().Bottom());
}

wxSizer* SideBySide(wxWindow* label, wxWindow* control, int proportion)
{
    auto* const row = new wxBoxSizer(wxHORIZONTAL);
    row->Add(label, 0, wxALIGN_CENTRE_VERTICAL | wxRIGHT, kGap);
    row->Add(control, proportion, wxALIGN_CENTRE_VERTICAL);
    return row;
}

wxStaticText* NewTextBeside(wxWindow* control, const wxString& text)
{
    auto* const words = new wxStaticText(control->GetParent(), wxID_ANY, text);
    wxSizer* const sizer = control->GetContainingSizer();
    const std::size_t index = IndexIn(sizer, control);
    const wxSizerItem& old = *sizer->GetItem(index);
    const bool expands = (old.GetFlag() & wxEXPAND) != 0;
    const bool grows = old.GetProportion() > 0 || expands;
    auto both = std::make_unique<wxBoxSizer>(wxHORIZONTAL);
    auto item = std::make_unique<wxSizerItem>(both.get(), old.GetProportion(), old.GetFlag(), old.GetBorder(), nullptr);
    sizer->Replace(index, item.release());
    both->Add(control, grows ? 1 : 0, expands ? int{wxEXPAND} : int{wxALIGN_CENTRE_VERTICAL});
    both->Add(words, 0, wxALIGN_CENTRE_VERTICAL | wxLEFT, kGap);
    both.release();
    return words;
}
} // namespace ui

#include "ui/options/VoacapPage.h"

#include "ui/options/Placing.h"

#include <wx/notebook.h>

namespace
{
/// A notebook that fills a page of the outer one.
wxBookCtrlBase* NewInnerBook(wxBookCtrlBase* outer)
{
    auto* const panel = new wxPanel(outer);
    outer->AddPage(panel, "Voacap");
    auto* const inner = new wxNotebook(panel, wxID_ANY);
    auto* const sizer = new wxBoxSizer(wxVERTICAL);
    sizer->Add(inner, 1, wxEXPAND | wxALL, ui::kGap);
    panel->SetSizer(sizer);
    return inner;
}
} // namespace

namespace ui
{
VoacapPage::VoacapPage(wxBookCtrlBase* outer, Editing& editing)
    : book(NewInnerBook(outer)),
      m_editing(editing),
      main(book, editing, m_notes),
      appearance(book, editing),
      antenna(book, editing, m_notes)
{
    WatchInput();
    editing.bindings.Then([this] { ShowNotes(); });
}

void VoacapPage::WatchInput()
{
    book->Bind(wxEVT_TEXT, &VoacapPage::OnInput, this);
    book->Bind(wxEVT_RADIOBOX, &VoacapPage::OnInput, this);
    book->Bind(wxEVT_FILEPICKER_CHANGED, &VoacapPage::OnInput, this);
    book->Bind(wxEVT_DIRPICKER_CHANGED, &VoacapPage::OnInput, this);
    // A picker keeps the events of its text to itself.
    for (wxPickerBase* const picker :
         std::initializer_list<wxPickerBase*>{main.directory, antenna.transmitter.file, antenna.receiver.file})
        picker->GetTextCtrl()->Bind(wxEVT_TEXT, &VoacapPage::OnInput, this);
}

void VoacapPage::OnInput(wxCommandEvent& event)
{
    event.Skip();
    ShowNotes();
}

void VoacapPage::ShowNotes()
{
    m_notes.Show(propagation::CheckInput(m_editing.Typed().propagation));
}
} // namespace ui

#include "ui/FieldNotes.h"

#include "ui/Native.h"
#include "ui/OptionsRows.h"

#include <memory>
#include <utility>

namespace
{
std::size_t IndexIn(wxSizer* sizer, wxWindow* control)
{
    std::size_t index = 0;
    while (sizer->GetItem(index)->GetWindow() != control)
        ++index;
    return index;
}

/// The page that has to find room for a text anew.
wxWindow* PageOf(wxWindow* window)
{
    while (!dynamic_cast<wxScrolledWindow*>(window) && !window->IsTopLevel())
        window = window->GetParent();
    return window;
}
} // namespace

namespace ui
{
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

void FieldNotes::Add(wxStaticText* note, Value value, Rule rule)
{
    note->Hide();
    m_notes.push_back({note, std::move(value), std::move(rule), std::nullopt});
}

void FieldNotes::Update()
{
    static const wxString kMark = wxString::FromUTF8("\u26a0 ");
    for (Note& note : m_notes)
    {
        const wxString value = note.value();
        if (note.judged == value)
            continue;
        const bool isNew = note.judged.has_value();
        note.judged = value;
        const wxString words = note.rule(value);
        const wxString text = words.empty() ? "" : kMark + words;
        if (text == note.text->GetLabelText())
            continue;
        note.text->SetLabelText(text);
        note.text->Show(!text.empty());
        PageOf(note.text)->Layout();
        if (isNew && !words.empty())
            native::Announce(note.text, words);
    }
}
} // namespace ui

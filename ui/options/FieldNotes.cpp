#include "ui/options/FieldNotes.h"

#include "ui/Native.h"

#include <wx/scrolwin.h>

#include <utility>

namespace
{
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
void FieldNotes::Add(wxStaticText* note, Value value, Rule rule)
{
    note->Hide();
    m_notes.push_back({note, std::move(value), std::move(rule), std::nullopt});
}

void FieldNotes::Update()
{
    for (Note& note : m_notes)
    {
        const wxString value = note.value();
        if (note.judged == value)
            continue;
        const bool isNew = note.judged.has_value();
        note.judged = value;
        const wxString words = note.rule(value);
        if (Show(note.text, words) && isNew && !words.empty())
            native::Announce(note.text, words);
    }
}

bool FieldNotes::Show(wxStaticText* note, const wxString& words)
{
    static const wxString kMark = wxString::FromUTF8("\u26a0 ");
    const wxString text = words.empty() ? "" : kMark + words;
    if (text == note->GetLabelText())
        return false;
    note->SetLabelText(text);
    note->Show(!text.empty());
    PageOf(note)->Layout();
    return true;
}
} // namespace ui

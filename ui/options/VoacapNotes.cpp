#include "ui/options/VoacapNotes.h"

#include <wx/arrstr.h>

#include <algorithm>

namespace ui
{
namespace
{
const wxColour kNoteColour(160, 50, 0);

/// Room for any finding.
wxSize RoomFor(const wxWindow& window, const char* lineBreak)
{
    wxSize room;
    for (const propagation::InputRule& rule : propagation::InputRules())
    {
        int width = 0;
        int height = 0;
        for (const wxString& line : wxSplit(propagation::InputFinding{"", &rule}.Text(lineBreak), '\n'))
        {
            const wxSize extent = window.GetTextExtent(line);
            width = std::max(width, extent.x);
            height += extent.y;
        }
        room.IncTo({width, height});
    }
    return room;
}
} // namespace

wxStaticText* VoacapNotes::New(wxWindow* parent, const char* lineBreak, std::vector<Field> fields)
{
    // Its room is the same with and without a text, so nothing moves when one comes.
    auto* const text =
        new wxStaticText(parent, wxID_ANY, "", wxDefaultPosition, wxDefaultSize, wxST_NO_AUTORESIZE | wxALIGN_LEFT);
    text->SetFont(text->GetFont().Smaller());
    text->SetForegroundColour(kNoteColour);
    wxSize& room = m_rooms[lineBreak];
    if (room == wxSize())
        room = RoomFor(*text, lineBreak);
    int nameWidth = 0;
    for (const Field& field : fields)
        nameWidth = std::max(nameWidth, text->GetTextExtent(field.name).x);
    text->SetMinSize({nameWidth + room.x, room.y * static_cast<int>(fields.size())});
    m_notes.push_back({text, std::move(fields), lineBreak});
    return text;
}

wxStaticText* VoacapNotes::NewBeside(wxWindow* parent, const char* key)
{
    return New(parent, "\n", {{key, ""}});
}

wxStaticText* VoacapNotes::NewBelow(wxWindow* parent, std::initializer_list<Field> fields)
{
    return New(parent, " ", fields);
}

void VoacapNotes::Show(const std::vector<propagation::InputFinding>& findings) const
{
    for (const Note& note : m_notes)
    {
        wxString text;
        for (const Field& field : note.fields)
        {
            // The first of several is enough.
            const auto finding = std::ranges::find_if(findings, [&field](const propagation::InputFinding& candidate)
                                                      { return wxString(candidate.key) == field.key; });
            if (finding == findings.end())
                continue;
            text << (text.empty() ? "" : "\n") << field.name << finding->Text(note.lineBreak);
        }
        note.text->SetLabelText(text);
    }
}
} // namespace ui

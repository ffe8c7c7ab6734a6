#pragma once

#include "propagation/InputRules.h"

#include <wx/stattext.h>

#include <initializer_list>
#include <map>
#include <vector>

namespace ui
{
/// The notes of a page of the options: what voacapl will not read as it is typed stands beside or below its field.
class VoacapNotes
{
public:
    /// A key in "Propagation", and what names its field where a note serves several.
    struct Field
    {
        const char* key;
        const char* name;
    };

    /// An empty note for one field, two lines high, for beside it.
    wxStaticText* NewBeside(wxWindow* parent, const char* key);

    /// An empty note for one or more fields, a line for each, for below them.
    wxStaticText* NewBelow(wxWindow* parent, std::initializer_list<Field> fields);

    void Show(const std::vector<propagation::InputFinding>& findings) const;

private:
    struct Note
    {
        wxStaticText* text;
        std::vector<Field> fields;
        const char* lineBreak; ///< between the two parts of a finding
    };

    wxStaticText* New(wxWindow* parent, const char* lineBreak, std::vector<Field> fields);

    std::vector<Note> m_notes;
    std::map<wxString, wxSize> m_rooms; ///< for a finding, by its line break; measuring takes time
};
} // namespace ui

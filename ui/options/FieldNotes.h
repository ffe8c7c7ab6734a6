#pragma once

#include <wx/stattext.h>

#include <functional>
#include <optional>
#include <vector>

namespace ui
{
/// A few words beside fields about what they hold, which come and go as the fields change.
class FieldNotes
{
public:
    using Value = std::function<wxString()>;
    using Rule = std::function<wxString(const wxString& value)>; ///< the words; empty where all is well

    void Add(wxStaticText* note, Value value, Rule rule);

    /// Writes the notes on what has changed; to be called whenever something may have.
    void Update();

private:
    /// @return whether the text has changed.
    static bool Show(wxStaticText* note, const wxString& words);

    struct Note
    {
        wxStaticText* text;
        Value value;
        Rule rule;
        std::optional<wxString> judged; ///< the value that the text is about
    };
    std::vector<Note> m_notes;
};
} // namespace ui

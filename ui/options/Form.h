#pragma once

#include "config/Settings.h"
#include "ui/options/ControlBindings.h"
#include "ui/options/Controls.h"
#include "ui/options/FieldNotes.h"

#include <functional>
#include <vector>

namespace ui
{
/// What the pages of the dialog share: the settings as they were shown, and what goes on between them and the controls.
struct Editing
{
    Settings draft;
    ControlBindings bindings;
    FieldNotes notes;
    std::vector<std::function<void()>> besides; ///< texts to be put beside controls when these have their places

    /// The settings as the controls have them. The draft stays as it is.
    Settings Typed();
};

/// What is said about a control besides its label.
struct Said
{
    wxString name = {}; ///< for screen readers, where no text of its own stands before the control
    wxString tip = {};
    wxString unit = {};         ///< at its right
    FieldNotes::Rule note = {}; ///< at its right: what is wrong with the text of a field or a path
};

struct Limits
{
    int min;
    int max;
    long style = 0; ///< wxSP_WRAP: around the ends
};

/// Makes controls, each of them with its setting (a part of the draft) and what is said about it.
class Form
{
public:
    Form(wxWindow* parent, Editing& editing) : m_parent(parent), m_editing(editing) {}

    /// For controls that stand in a group.
    Form In(wxWindow* group) const { return {group, m_editing}; }

    wxWindow* Parent() const { return m_parent; }
    Settings& Draft() const { return m_editing.draft; }

    wxStaticText* Label(const wxString& text) const;

    template <class Flag>
    wxCheckBox* Check(Flag& setting, const wxString& label, const Said& said = {}) const
    {
        return Edits(setting, new wxCheckBox(m_parent, wxID_ANY, label), said);
    }
    wxSpinCtrl* Spin(long& setting, const Limits& limits, const Said& said = {}) const;

    /// An opacity.
    wxSpinCtrl* Alpha(long& setting, const wxString& name = "", long style = 0) const;

    wxChoice* Choice(int& setting, const wxArrayString& entries, const Said& said = {}) const;
    wxRadioBox* RadioBox(int& setting, const wxString& label, const wxArrayString& entries, int columns) const;
    wxColourPickerCtrl* Colour(long& setting, const wxString& name) const;
    wxFontPickerCtrl* Font(wxString& setting, const wxString& name) const;
    wxFilePickerCtrl* File(wxString& setting, const wxString& wildcard, const Said& said, long style = 0) const;
    wxDirPickerCtrl* Directory(wxString& setting, const wxString& name) const;

    /// @param[in] initial what the field shows before it shows the setting.
    template <class Value>
    wxTextCtrl* Text(Value& setting, int digits, const Said& said = {}, const wxString& initial = "") const
    {
        return Edits(setting, NewText(m_parent, digits, initial), said);
    }

    /// Any other control that edits a setting.
    template <class Control, class Value>
    Control* Edits(Value& setting, Control* control, const Said& said = {}) const
    {
        m_editing.bindings.Bind(control, setting);
        return Says(control, said);
    }

    /// Any control.
    template <class Control>
    Control* Says(Control* control, const Said& said) const
    {
        Name(control, said);
        if constexpr (requires { FieldOf(control); })
            if (said.note)
                Note(
                    control, [field = FieldOf(control)] { return field->GetValue(); }, said.note);
        return control;
    }

    /// A note on something else than the text of the control beside which it stands.
    void Note(wxWindow* control, FieldNotes::Value value, FieldNotes::Rule rule) const;

protected:
    /// When the controls have their places.
    void PutTextsBeside() const;

private:
    static wxTextCtrl* FieldOf(wxTextCtrl* field) { return field; }
    static wxTextCtrl* FieldOf(wxPickerBase* picker) { return picker->GetTextCtrl(); }

    void Name(wxWindow* control, const Said& said) const;

    wxWindow* m_parent;
    Editing& m_editing;
};

/// The form of a whole page.
class Page : public Form
{
public:
    Page(wxBookCtrlBase* book, const wxString& title, Editing& editing);

    /// Gives the page its content and makes it ask for the room that this needs.
    void Finish(wxSizer* content) const;
};
} // namespace ui

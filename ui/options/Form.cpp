#include "ui/options/Form.h"

#include "ui/Native.h"
#include "ui/options/Placing.h"

#include <utility>

namespace ui
{
Settings Editing::Typed()
{
    const Settings shown = draft;
    bindings.TransferFromWindow();
    return std::exchange(draft, shown);
}

wxStaticText* Form::Label(const wxString& text) const
{
    return new wxStaticText(m_parent, wxID_ANY, text);
}

wxSpinCtrl* Form::Spin(long& setting, const Limits& limits, const Said& said) const
{
    return Edits(setting, NewSpin(m_parent, limits.min, limits.max, limits.style), said);
}

wxSpinCtrl* Form::Alpha(long& setting, const wxString& name, long style) const
{
    return Spin(setting, {0, 255, style}, {.name = name, .tip = "0 (not seen) to 255 (hides what lies below)"});
}

wxChoice* Form::Choice(int& setting, const wxArrayString& entries, const Said& said) const
{
    return Edits(setting, NewChoice(m_parent, entries), said);
}

wxRadioBox* Form::RadioBox(int& setting, const wxString& label, const wxArrayString& entries, int columns) const
{
    return Edits(setting, NewRadioBox(m_parent, label, entries, columns));
}

wxColourPickerCtrl* Form::Colour(long& setting, const wxString& name) const
{
    return Edits(setting, new wxColourPickerCtrl(m_parent, wxID_ANY), {.name = name});
}

wxFontPickerCtrl* Form::Font(wxString& setting, const wxString& name) const
{
    return Edits(setting, NewFont(m_parent), {.name = name});
}

wxFilePickerCtrl* Form::File(wxString& setting, const wxString& wildcard, const Said& said, long style) const
{
    return Edits(setting, NewFile(m_parent, wildcard, style), said);
}

wxDirPickerCtrl* Form::Directory(wxString& setting, const wxString& name) const
{
    return Edits(setting, NewDirectory(m_parent), {.name = name});
}

void Form::Name(wxWindow* control, const Said& said) const
{
    if (!said.name.empty())
        native::Name(control, said.name);
    if (!said.tip.empty())
        control->SetToolTip(said.tip);
    if (!said.unit.empty())
        m_editing.besides.emplace_back([control, unit = said.unit] { NewTextBeside(control, unit); });
}

void Form::Note(wxWindow* control, FieldNotes::Value value, FieldNotes::Rule rule) const
{
    m_editing.besides.emplace_back([&notes = m_editing.notes, control, value = std::move(value), rule = std::move(rule)]
                                   { notes.Add(NewTextBeside(control), value, rule); });
}

void Form::PutTextsBeside() const
{
    for (const auto& put : std::exchange(m_editing.besides, {}))
        put();
}

Page::Page(wxBookCtrlBase* book, const wxString& title, Editing& editing) : Form(NewPage(book, title), editing) {}

void Page::Finish(wxSizer* content) const
{
    auto* const padded = new wxBoxSizer(wxVERTICAL);
    padded->Add(content, 1, wxEXPAND | wxALL, 2 * kGap);
    Parent()->SetSizer(padded);
    Parent()->SetMinSize(padded->GetMinSize());
    PutTextsBeside();
}
} // namespace ui

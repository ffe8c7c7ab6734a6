#pragma once

#include "ui/options/Options.h"

#include <wx/stattext.h>
#include <wx/valtext.h>

#include <string>
#include <vector>

/// The windows of a page in the order in which they were made, parts of composite controls left out.
inline void CollectControls(const wxWindow* parent, std::vector<wxWindow*>& controls)
{
    for (wxWindow* const child : parent->GetChildren())
    {
        controls.push_back(child);
        if (dynamic_cast<wxStaticBox*>(child) && !dynamic_cast<wxRadioBox*>(child))
            CollectControls(child, controls);
    }
}

/// Seen from the dialog's outermost group, which the window manager may move meanwhile: then again. (The dialog
/// itself learns late where it is, and a group that is asked itself leaves its title out.)
inline wxRect RectOf(const wxWindow* window)
{
    const wxWindow* const top = wxGetTopLevelParent(const_cast<wxWindow*>(window));
    const wxWindow* const outermost = top->GetChildren().GetFirst()->GetData();
    wxPoint origin;
    wxPoint at;
    do
    {
        origin = outermost->ClientToScreen(wxPoint());
        at = window->GetParent()->ClientToScreen(window->GetPosition());
    } while (outermost->ClientToScreen(wxPoint()) != origin);
    return {at - origin, window->GetSize()};
}

inline std::vector<wxWindow*> ControlsOf(const wxWindow* page)
{
    std::vector<wxWindow*> controls;
    CollectControls(page, controls);
    return controls;
}

inline wxString EntriesOf(const wxItemContainerImmutable& list)
{
    return wxJoin(list.GetStrings(), '|', '\0') + wxString::Format(" #%d", list.GetSelection());
}

/// What a user meets: the kind of a control, its label, its range and what it shows.
inline wxString Description(wxWindow* window)
{
    if (const auto* label = dynamic_cast<wxStaticText*>(window))
        return "label " + label->GetLabel();
    if (const auto* list = dynamic_cast<wxRadioBox*>(window))
        return wxString::Format("radio %s: %s, %u columns", list->GetLabel(), EntriesOf(*list), list->GetColumnCount());
    if (const auto* check = dynamic_cast<wxCheckBox*>(window))
        return "check " + check->GetLabel() + (check->GetValue() ? " on" : "");
    if (const auto* number = dynamic_cast<wxSpinCtrl*>(window))
        return wxString::Format("number %d..%d%s %d", number->GetMin(), number->GetMax(),
                                number->HasFlag(wxSP_WRAP) ? " around" : "", number->GetValue());
    if (const auto* slider = dynamic_cast<wxSlider*>(window))
        return wxString::Format("slider %d..%d %d, steps %d %d", slider->GetMin(), slider->GetMax(), slider->GetValue(),
                                slider->GetLineSize(), slider->GetPageSize());
    if (const auto* list = dynamic_cast<wxChoice*>(window))
        return "list " + EntriesOf(*list);
    if (dynamic_cast<wxColourPickerCtrl*>(window))
        return "colour";
    if (dynamic_cast<wxFontPickerCtrl*>(window))
        return "font";
    if (auto* file = dynamic_cast<wxFilePickerCtrl*>(window))
        return wxString("file") + (file->HasFlag(wxFLP_SMALL) ? " small" : "") +
               (file->HasTextCtrl() ? " " + file->GetTextCtrl()->GetValue() : wxString(" without field"));
    if (auto* folder = dynamic_cast<wxDirPickerCtrl*>(window))
        return wxString("folder") +
               (folder->HasTextCtrl() ? " " + folder->GetTextCtrl()->GetValue() : wxString(" without field"));
    if (dynamic_cast<wxCalendarCtrl*>(window))
        return "calendar";
    if (const auto* link = dynamic_cast<wxHyperlinkCtrl*>(window))
        return "link " + link->GetLabel() + " " + link->GetURL();
    if (const auto* button = dynamic_cast<wxButton*>(window))
        return "button " + button->GetLabel() + (button->HasFlag(wxBU_EXACTFIT) ? " narrow" : "");
    if (const auto* text = dynamic_cast<wxTextCtrl*>(window))
    {
        const auto* filter = dynamic_cast<wxTextValidator*>(window->GetValidator());
        return (text->HasFlag(wxTE_READONLY) ? "reading " : "text ") + text->GetValue() +
               (filter ? " of " + filter->GetCharIncludes() : "");
    }
    if (const auto* picture = dynamic_cast<wxStaticBitmap*>(window))
        return wxString::Format("picture %d x %d", picture->GetBitmap().GetWidth(), picture->GetBitmap().GetHeight());
    if (dynamic_cast<wxStaticBox*>(window))
        return "group " + window->GetLabel();
    return window->GetClassInfo()->GetClassName();
}

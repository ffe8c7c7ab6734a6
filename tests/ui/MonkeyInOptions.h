#pragma once

#include "tests/support/Await.h"
#include "tests/support/Chance.h"

#include <wx/bookctrl.h>
#include <wx/button.h>
#include <wx/calctrl.h>
#include <wx/checkbox.h>
#include <wx/choice.h>
#include <wx/clrpicker.h>
#include <wx/dialog.h>
#include <wx/fontpicker.h>
#include <wx/radiobox.h>
#include <wx/slider.h>
#include <wx/spinctrl.h>
#include <wx/textctrl.h>
#include <wx/uiaction.h>

#include <vector>

/// What someone without a plan does in the options dialog.
class MonkeyInOptions
{
public:
    /// @param[in] files what may be typed where a file is asked for.
    MonkeyInOptions(wxDialog& dialog, Chance& chance, const std::vector<wxString>& files)
        : m_dialog(dialog), m_chance(chance), m_files(files)
    {
    }

    /// Turns a page, changes a control, or types.
    void Act()
    {
        std::vector<wxWindow*> controls;
        Collect(&m_dialog, controls);
        if (m_chance.OneIn(4))
            std::erase_if(controls, [](wxWindow* control) { return !dynamic_cast<wxBookCtrlBase*>(control); });
        Change(m_chance.Of(controls));
        if (m_chance.OneIn(4))
            TypeIntoFocus();
        LetEventsHappen();
    }

    /// OK or, once in a while, Cancel.
    void Leave() { Send(wxEVT_BUTTON, m_dialog.FindWindow(m_chance.OneIn(4) ? wxID_CANCEL : wxID_OK)); }

private:
    /// What can be changed on the pages that are to be seen.
    static void Collect(wxWindow* window, std::vector<wxWindow*>& controls)
    {
        for (wxWindow* child : window->GetChildren())
        {
            if (!child->IsShown() || !child->IsEnabled())
                continue;
            controls.push_back(child);
            const auto* const book = dynamic_cast<wxBookCtrlBase*>(child);
            Collect(book ? book->GetCurrentPage() : child, controls);
        }
    }

    static void Send(wxEventType type, wxWindow* control)
    {
        wxCommandEvent event(type, control->GetId());
        event.SetEventObject(control);
        control->ProcessWindowEvent(event);
    }

    /// Nothing where a window is no control.
    void Change(wxWindow* control)
    {
        ChangeIf<wxBookCtrlBase>(control) || ChangeIf<wxRadioBox>(control) || ChangeIf<wxChoice>(control) ||
            ChangeIf<wxCheckBox>(control) || ChangeIf<wxSpinCtrl>(control) || ChangeIf<wxSlider>(control) ||
            ChangeIf<wxColourPickerCtrl>(control) || ChangeIf<wxFontPickerCtrl>(control) ||
            ChangeIf<wxCalendarCtrl>(control) || ChangeIf<wxTextCtrl>(control) || ChangeIf<wxButton>(control);
    }
    template <class Control>
    bool ChangeIf(wxWindow* window)
    {
        auto* const control = dynamic_cast<Control*>(window);
        if (control)
            Set(control);
        return control;
    }

    void Set(wxBookCtrlBase* book)
    {
        book->SetSelection(static_cast<std::size_t>(m_chance.Below(static_cast<int>(book->GetPageCount()))));
    }
    void Set(wxRadioBox* box)
    {
        box->SetSelection(m_chance.Below(static_cast<int>(box->GetCount())));
        Send(wxEVT_RADIOBOX, box);
    }
    void Set(wxChoice* choice)
    {
        choice->SetSelection(m_chance.Below(static_cast<int>(choice->GetCount())));
        Send(wxEVT_CHOICE, choice);
    }
    void Set(wxCheckBox* box)
    {
        box->SetValue(!box->GetValue());
        Send(wxEVT_CHECKBOX, box);
    }
    void Set(wxSpinCtrl* spin) { spin->SetValue(m_chance.Between(spin->GetMin(), spin->GetMax())); }
    void Set(wxSlider* slider)
    {
        slider->SetValue(m_chance.Between(slider->GetMin(), slider->GetMax()));
        Send(wxEVT_SLIDER, slider);
    }
    void Set(wxColourPickerCtrl* picker)
    {
        picker->SetColour(wxColour(static_cast<unsigned long>(m_chance.Below(0x1000000))));
        Send(wxEVT_COLOURPICKER_CHANGED, picker);
    }
    void Set(wxFontPickerCtrl* picker)
    {
        picker->SetSelectedFont(wxFontInfo(m_chance.Between(5, 24)).FaceName("DejaVu Sans"));
    }
    void Set(wxCalendarCtrl* calendar)
    {
        calendar->SetDate(wxDateTime(static_cast<wxDateTime::wxDateTime_t>(m_chance.Between(1, 28)),
                                     wxDateTime::Month(m_chance.Below(12)), m_chance.Between(1970, 2100)));
    }
    void Set(wxTextCtrl* field)
    {
        if (field->IsEditable())
            field->SetValue(m_chance.OneIn(2) ? AnyText() : m_chance.Of(m_files));
    }
    /// Loads, saves or computes; the buttons of pickers open what belongs to the desktop.
    void Set(wxButton* button)
    {
        if (button->GetId() != wxID_OK && button->GetId() != wxID_CANCEL &&
            !dynamic_cast<wxPickerBase*>(button->GetParent()))
            Send(wxEVT_BUTTON, button);
    }

    wxString AnyText()
    {
        static const std::vector<wxString> kTexts{"",
                                                  "0",
                                                  "-5",
                                                  "90",
                                                  "180.5",
                                                  "-33.87",
                                                  "1e9",
                                                  "1e-9",
                                                  "nan",
                                                  "200",
                                                  "2500",
                                                  "JO65",
                                                  "x",
                                                  wxString('9', 400),
                                                  wxString::FromUTF8("å地図\xf0\x9f\x98\x80"),
                                                  "%s%n"};
        return m_chance.Of(kTexts);
    }

    void TypeIntoFocus()
    {
        static constexpr int kKeys[] = {'7', '0', '-', '.', 'j', 'o', WXK_BACK, WXK_DELETE, WXK_LEFT, WXK_HOME};
        if (!dynamic_cast<wxTextCtrl*>(wxWindow::FindFocus()))
            return;
        for (int i = 0; i < 4; ++i)
            m_keyboard.Char(m_chance.Of(kKeys));
    }

    wxDialog& m_dialog;
    Chance& m_chance;
    const std::vector<wxString>& m_files;
    wxUIActionSimulator m_keyboard;
};

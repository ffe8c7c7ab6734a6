#pragma once

#include "config/UtcTime.h"

#include <wx/calctrl.h>
#include <wx/checkbox.h>
#include <wx/choice.h>
#include <wx/clrpicker.h>
#include <wx/filepicker.h>
#include <wx/fontpicker.h>
#include <wx/radiobox.h>
#include <wx/spinctrl.h>
#include <wx/textctrl.h>

#include <functional>
#include <set>
#include <utility>
#include <vector>

namespace ui
{
/// A picked colour as a setting, R + 256 G + 65536 B. Blue 255 becomes 254.
long SettingFromPicked(const wxColour& colour);

/// A number for a text field: at most six decimals, no trailing zeros.
wxString NumberText(double value);

/// Shows a date, or the nearest of the years 1 to 9999 to one that no calendar has.
void ShowDate(wxCalendarCtrl* control, const UtcTime& date);

/**
 * Which control edits which setting: each pair is named once and serves both directions.
 *
 * The types of the pair choose the rule. A control shows the nearest value that it can hold, and that is what it gives
 * back. A text that is no number leaves its setting alone, and so does a field or a font picker that still shows what
 * it was given: what it does not show (further decimals, the wording of a font) is not lost.
 */
class ControlBindings
{
public:
    void Bind(wxCheckBox* control, bool& value);
    void Bind(wxCheckBox* control, long& flag);
    void Bind(wxSpinCtrl* control, long& value);
    void Bind(wxChoice* control, int& index);
    void Bind(wxRadioBox* control, int& index);
    void Bind(wxColourPickerCtrl* control, long& value);
    void Bind(wxFontPickerCtrl* control, wxString& description);
    void Bind(wxFileDirPickerCtrlBase* control, wxString& path);
    void Bind(wxTextCtrl* control, wxString& value);
    void Bind(wxTextCtrl* control, long& value);
    void Bind(wxTextCtrl* control, double& value);

    /// The date alone, see ShowDate().
    void Bind(wxCalendarCtrl* control, UtcTime& time);

    /// For controls with a rule of their own.
    void Add(std::initializer_list<const wxWindow*> controls, std::initializer_list<const void*> members,
             std::function<void()> toWindow, std::function<void()> fromWindow);

    /// Counts controls or members as bound by a rule that was added.
    void Claim(std::initializer_list<const wxWindow*> controls, std::initializer_list<const void*> members);

    /// For what follows from the settings shown: called whenever all of them are.
    void Then(std::function<void()> follow) { m_follow.push_back(std::move(follow)); }

    void TransferToWindow() const;
    void TransferFromWindow() const;

    bool Binds(const void* member) const { return m_members.contains(member); }
    bool Binds(const wxWindow* control) const { return m_controls.contains(control); }

private:
    void BindIndex(const wxWindow* window, wxItemContainerImmutable* list, int& index);

    struct Transfer
    {
        std::function<void()> toWindow;
        std::function<void()> fromWindow;
    };
    std::vector<Transfer> m_transfers;
    std::vector<std::function<void()>> m_follow;
    std::set<const void*> m_members;
    std::set<const wxWindow*> m_controls;
};
} // namespace ui

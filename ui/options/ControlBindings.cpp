#include "ui/options/ControlBindings.h"

#include "render/Style.h"

#include <algorithm>
#include <cmath>

namespace
{
wxDateTime NearestDate(const UtcTime& time)
{
    const int year = std::clamp(time.year, 1, 9999);
    const auto month = static_cast<wxDateTime::Month>(std::clamp(time.month, 0, 11));
    const int days = wxDateTime::GetNumberOfDays(month, year);
    // At noon: midnight does not exist everywhere on every day.
    return {static_cast<wxDateTime::wxDateTime_t>(std::clamp(time.day, 1, days)), month, year, 12};
}

wxString DescriptionOf(const wxFont& font)
{
    return font.GetNativeFontInfoUserDesc();
}
} // namespace

namespace ui
{
long SettingFromPicked(const wxColour& colour)
{
    const long blue = std::min<long>(colour.Blue(), 254);
    return colour.Red() + 256L * colour.Green() + 65536L * blue;
}

wxString NumberText(double value)
{
    wxString text = wxString::FromCDouble(value, 6);
    text.erase(text.find_last_not_of('0') + 1);
    if (text.EndsWith("."))
        text.RemoveLast();
    return text;
}

void ShowDate(wxCalendarCtrl* control, const UtcTime& date)
{
    control->SetDate(NearestDate(date));
}

void ControlBindings::Bind(wxCheckBox* control, bool& value)
{
    Add(
        {control}, {&value}, [=, &value] { control->SetValue(value); }, [=, &value] { value = control->GetValue(); });
}

void ControlBindings::Bind(wxCheckBox* control, long& flag)
{
    Add(
        {control}, {&flag}, [=, &flag] { control->SetValue(flag != 0); }, [=, &flag] { flag = control->GetValue(); });
}

void ControlBindings::Bind(wxSpinCtrl* control, long& value)
{
    Add(
        {control}, {&value},
        [=, &value]
        { control->SetValue(static_cast<int>(std::clamp<long>(value, control->GetMin(), control->GetMax()))); },
        [=, &value] { value = control->GetValue(); });
}

void ControlBindings::Bind(wxChoice* control, int& index)
{
    BindIndex(control, control, index);
}

void ControlBindings::Bind(wxRadioBox* control, int& index)
{
    BindIndex(control, control, index);
}

void ControlBindings::BindIndex(const wxWindow* window, wxItemContainerImmutable* list, int& index)
{
    Add(
        {window}, {&index},
        [=, &index] { list->SetSelection(std::clamp(index, 0, static_cast<int>(list->GetCount()) - 1)); },
        [=, &index] { index = list->GetSelection(); });
}

void ControlBindings::Bind(wxColourPickerCtrl* control, long& value)
{
    Add(
        {control}, {&value}, [=, &value] { control->SetColour(ColourFromSetting(value)); },
        [=, &value] { value = SettingFromPicked(control->GetColour()); });
}

void ControlBindings::Bind(wxFontPickerCtrl* control, wxString& description)
{
    Add(
        {control}, {&description},
        [=, &description] { control->SetSelectedFont(render::FontFromSetting(description)); },
        [=, &description]
        {
            const wxString picked = DescriptionOf(control->GetSelectedFont());
            if (picked != DescriptionOf(render::FontFromSetting(description)))
                description = picked;
        });
}

void ControlBindings::Bind(wxFileDirPickerCtrlBase* control, wxString& path)
{
    // The text field has the path as it was typed; the control itself would tidy it.
    Add(
        {control}, {&path},
        [=, &path]
        {
            control->SetPath(path);
            control->GetTextCtrl()->ChangeValue(path);
        },
        [=, &path] { path = control->GetTextCtrl()->GetValue(); });
}

void ControlBindings::Bind(wxTextCtrl* control, wxString& value)
{
    Add(
        {control}, {&value}, [=, &value] { control->ChangeValue(value); },
        [=, &value] { value = control->GetValue(); });
}

void ControlBindings::Bind(wxTextCtrl* control, long& value)
{
    Add(
        {control}, {&value}, [=, &value] { control->ChangeValue(wxString::Format("%ld", value)); },
        [=, &value]
        {
            long typed = 0;
            if (control->GetValue().ToCLong(&typed))
                value = typed;
        });
}

void ControlBindings::Bind(wxTextCtrl* control, double& value)
{
    Add(
        {control}, {&value}, [=, &value] { control->ChangeValue(NumberText(value)); },
        [=, &value]
        {
            double typed = 0.0;
            const wxString text = control->GetValue();
            if (text != NumberText(value) && text.ToCDouble(&typed) && std::isfinite(typed))
                value = typed;
        });
}

void ControlBindings::Bind(wxCalendarCtrl* control, UtcTime& time)
{
    Add(
        {control}, {&time.year, &time.month, &time.day}, [=, &time] { ShowDate(control, time); },
        [=, &time]
        {
            const wxDateTime date = control->GetDate();
            time.year = date.GetYear();
            time.month = date.GetMonth();
            time.day = date.GetDay();
        });
}

void ControlBindings::Add(std::initializer_list<const wxWindow*> controls, std::initializer_list<const void*> members,
                          std::function<void()> toWindow, std::function<void()> fromWindow)
{
    Claim(controls, members);
    m_transfers.push_back({std::move(toWindow), std::move(fromWindow)});
}

void ControlBindings::Claim(std::initializer_list<const wxWindow*> controls, std::initializer_list<const void*> members)
{
    m_controls.insert(controls);
    m_members.insert(members);
}

void ControlBindings::TransferToWindow() const
{
    for (const Transfer& transfer : m_transfers)
        transfer.toWindow();
    for (const auto& follow : m_follow)
        follow();
}

void ControlBindings::TransferFromWindow() const
{
    for (const Transfer& transfer : m_transfers)
        transfer.fromWindow();
}
} // namespace ui

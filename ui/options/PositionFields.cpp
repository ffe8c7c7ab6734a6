#include "ui/options/PositionFields.h"

#include "ui/options/Placing.h"

#include <algorithm>
#include <cmath>

namespace
{
using namespace ui;

std::optional<double> NumberIn(const wxTextCtrl* field)
{
    double number = 0.0;
    if (!field->GetValue().ToCDouble(&number) || !std::isfinite(number))
        return std::nullopt;
    return number;
}

/// The number in a field, which is brought into 0 .. max first.
std::optional<double> NumberUpTo(int max, wxTextCtrl* field)
{
    const auto typed = NumberIn(field);
    if (!typed)
        return std::nullopt;
    const double number = std::clamp(*typed, 0.0, static_cast<double>(max));
    if (number != *typed)
        field->ChangeValue(wxString::Format("%.0f", number));
    return number;
}

wxString NoNumber(const wxString& text)
{
    double number = 0.0;
    return text.ToCDouble(&number) ? "" : "no number";
}

wxTextCtrl* NewPart(const Form& form, const wxString& name)
{
    return form.Says(NewFiltered(form.Parent(), 4, "0123456789"), {.name = name});
}
} // namespace

namespace ui
{
PositionFields::PositionFields(const Form& form, wxSizer* grid, const Axis& axis, double& degrees) : m_axis(axis)
{
    wxWindow* const parent = form.Parent();
    const wxString name = axis.label;
    AddHeadings(parent, grid, {"", axis.decimalHeading, "", "Deg", "Min", "Sec", axis.hemisphereHeading});
    AddCells(
        grid,
        {form.Label(name),
         decimal = form.Edits(degrees, NewFiltered(parent, 14, "0123456789-+."),
                              {.name = name + ", decimal degrees", .note = NoNumber}),
         toDecimal = form.Says(new wxButton(parent, wxID_ANY, "<--", wxDefaultPosition, wxDefaultSize, wxBU_EXACTFIT),
                               {.name = name + ": decimal from degrees, minutes and seconds"}),
         deg = NewPart(form, name + ": Deg"), min = NewPart(form, name + ": Min"), sec = NewPart(form, name + ": Sec"),
         hemisphere = form.Says(NewChoice(parent, config::LabelsOf(axis.hemispheres)),
                                {.name = name + ": " + axis.hemisphereHeading})});
}

void PositionFields::Show(double degrees)
{
    decimal->ChangeValue(NumberText(degrees));
    FillParts();
}

std::optional<double> PositionFields::Degrees() const
{
    const auto degrees = NumberIn(decimal);
    return degrees && std::abs(*degrees) <= m_axis.limitDeg ? degrees : std::nullopt;
}

void PositionFields::FillParts()
{
    const auto typed = NumberIn(decimal);
    if (!typed)
        return;
    if (std::abs(*typed) > m_axis.limitDeg)
    {
        decimal->ChangeValue(wxString::Format("%s%d.0", *typed < 0 ? "-" : "", m_axis.limitDeg));
        decimal->SetInsertionPointEnd();
    }
    ShowParts(std::clamp<double>(*typed, -m_axis.limitDeg, m_axis.limitDeg));
}

void PositionFields::ShowParts(double degrees)
{
    const auto hasSign = [degrees](const auto& side) { return side.value * degrees > 0; };
    const auto* const side = std::ranges::find_if(m_axis.hemispheres, hasSign);
    if (side != m_axis.hemispheres.end())
        hemisphere->SetSelection(static_cast<int>(side - m_axis.hemispheres.begin()));

    // 12.2 degrees are 12 minutes, although the nearest number to 12.2 is a little less.
    static constexpr double kNoiseSeconds = 1e-6;
    const double seconds = std::abs(degrees) * 3600 + kNoiseSeconds;
    const double wholeDegrees = std::floor(seconds / 3600);
    const double wholeMinutes = std::floor((seconds - wholeDegrees * 3600) / 60);
    const double rest = std::round(seconds - wholeDegrees * 3600 - wholeMinutes * 60);
    deg->ChangeValue(wxString::Format("%.0f", wholeDegrees));
    min->ChangeValue(wxString::Format("%.0f", wholeMinutes));
    sec->ChangeValue(wxString::Format("%.0f", std::min(rest, 59.0)));
}

void PositionFields::FillDecimal()
{
    const auto degrees = NumberUpTo(m_axis.limitDeg, deg);
    const auto minutes = NumberUpTo(59, min);
    const auto seconds = NumberUpTo(59, sec);
    if (!degrees || !minutes || !seconds)
        return;
    const double sum = *degrees + *minutes / 60 + *seconds / 3600;
    const int sign = config::Chosen(m_axis.hemispheres, hemisphere->GetSelection()).value;
    decimal->ChangeValue(wxString::Format("%.4f", sign * sum));
    if (sum > m_axis.limitDeg)
        FillParts();
}
} // namespace ui

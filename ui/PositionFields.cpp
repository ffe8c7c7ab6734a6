#include "ui/PositionFields.h"

#include "ui/ControlBindings.h"

#include <algorithm>
#include <cmath>

namespace
{
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
} // namespace

namespace ui
{
void PositionFields::Show(double degrees)
{
    m_controls.decimal->ChangeValue(NumberText(degrees));
    FillParts();
}

std::optional<double> PositionFields::Degrees() const
{
    const auto degrees = NumberIn(m_controls.decimal);
    return degrees && std::abs(*degrees) <= m_limitDeg ? degrees : std::nullopt;
}

void PositionFields::FillParts()
{
    const auto typed = NumberIn(m_controls.decimal);
    if (!typed)
        return;
    if (std::abs(*typed) > m_limitDeg)
    {
        m_controls.decimal->ChangeValue(wxString::Format("%s%d.0", *typed < 0 ? "-" : "", m_limitDeg));
        m_controls.decimal->SetInsertionPointEnd();
    }
    const double degrees = std::min(std::abs(*typed), static_cast<double>(m_limitDeg));
    if (degrees > 0.0)
        m_controls.hemisphere->SetSelection(*typed < 0 ? 1 : 0);

    // 12.2 degrees are 12 minutes, although the nearest number to 12.2 is a little less.
    static constexpr double kNoiseSeconds = 1e-6;
    const double seconds = degrees * 3600 + kNoiseSeconds;
    const double wholeDegrees = std::floor(seconds / 3600);
    const double wholeMinutes = std::floor((seconds - wholeDegrees * 3600) / 60);
    const double rest = std::round(seconds - wholeDegrees * 3600 - wholeMinutes * 60);
    m_controls.deg->ChangeValue(wxString::Format("%.0f", wholeDegrees));
    m_controls.min->ChangeValue(wxString::Format("%.0f", wholeMinutes));
    m_controls.sec->ChangeValue(wxString::Format("%.0f", std::min(rest, 59.0)));
}

void PositionFields::FillDecimal()
{
    const auto deg = NumberUpTo(m_limitDeg, m_controls.deg);
    const auto min = NumberUpTo(59, m_controls.min);
    const auto sec = NumberUpTo(59, m_controls.sec);
    if (!deg || !min || !sec)
        return;
    const double degrees = *deg + *min / 60 + *sec / 3600;
    const bool negative = m_controls.hemisphere->GetSelection() == 1;
    m_controls.decimal->ChangeValue(wxString::Format("%.4f", negative ? -degrees : degrees));
    if (degrees > m_limitDeg)
        FillParts();
}
} // namespace ui

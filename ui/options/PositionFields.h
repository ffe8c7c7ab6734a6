#pragma once

#include "ui/options/Form.h"

#include <wx/button.h>

#include <array>
#include <optional>

namespace ui
{
/// What tells the fields of a latitude from those of a longitude.
struct Axis
{
    const char* label;
    const char* decimalHeading;
    const char* hemisphereHeading;
    std::array<config::Choice<int>, 2> hemispheres; ///< with the sign of degrees there
    int limitDeg;
};
inline constexpr Axis kLatitude{"Latitude", "Decimal (N+ / S-)", "N/S", {{{"N", 1}, {"S", -1}}}, 90};
inline constexpr Axis kLongitude{"Longitude", "Decimal (E+ / W-)", "E/W", {{{"E", 1}, {"W", -1}}}, 180};

/// A latitude or a longitude, as decimal degrees and as degrees, minutes and seconds.
struct PositionRow
{
    wxTextCtrl* decimal;
    wxButton* toDecimal;
    wxTextCtrl* deg;
    wxTextCtrl* min;
    wxTextCtrl* sec;
    wxChoice* hemisphere;
};

/// The row of a latitude or a longitude, and the conversions between its fields.
class PositionFields : public PositionRow
{
public:
    /// @param     grid    of seven columns.
    /// @param     degrees is what the decimal field edits.
    PositionFields(const Form& form, wxSizer* grid, const Axis& axis, double& degrees);

    /// Shows a position in all fields.
    void Show(double degrees);

    /// The decimal field in degrees; nothing if it cannot be read or lies beyond the limit.
    std::optional<double> Degrees() const;

    /**
     * Fills the other fields from the decimal one. A value beyond the limit becomes the limit, unreadable text changes
     * nothing.
     *
     * Degrees and minutes are the whole ones, seconds are rounded but never reach 60. Zero belongs to either
     * hemisphere and leaves the choice as it is.
     */
    void FillParts();

    /**
     * Fills the decimal field, with four decimals, from the others, which are brought into their ranges. If one of them
     * cannot be read, nothing is filled.
     */
    void FillDecimal();

private:
    void ShowParts(double degrees);

    const Axis& m_axis;
};
} // namespace ui

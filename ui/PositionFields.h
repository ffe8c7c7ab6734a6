#pragma once

#include "config/Choice.h"
#include "ui/OptionsPages.h"

#include <optional>

namespace ui
{
/// The hemispheres of an axis and the signs of the degrees there.
inline constexpr config::Choice<int> kNorthSouth[] = {{"N", 1}, {"S", -1}};
inline constexpr config::Choice<int> kEastWest[] = {{"E", 1}, {"W", -1}};

/// The conversions between the fields of a latitude or a longitude.
class PositionFields
{
public:
    /// @param[in] limitDeg 90 or 180.
    PositionFields(const PositionRow& controls, int limitDeg) : m_controls(controls), m_limitDeg(limitDeg) {}

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
    const PositionRow& m_controls;
    int m_limitDeg;
};
} // namespace ui

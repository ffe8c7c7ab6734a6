#pragma once

#include <wx/string.h>

#include <optional>

namespace reports
{
/// What the numbers of some keys may be, both ends included.
struct SettingRange
{
    const char* keys; ///< a pattern with * and ?
    double least;
    double most;
    const char* otherwise; ///< what becomes of any other number
};

/// The range of a key; none where any number will do or voacapl sets the limits.
const SettingRange* RangeOf(const wxString& key);
} // namespace reports

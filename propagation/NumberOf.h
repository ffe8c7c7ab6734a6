#pragma once

#include <wx/string.h>

namespace propagation
{
/// The number at the beginning of a text, as the toolkit reads it: "3.0 dB" is 3. A text that begins with none, or with
/// one that a double can't hold, is 0.
inline double NumberOf(const wxString& text)
{
    double number = 0.0;
    // What stands behind the number makes the toolkit return false, but the number is kept.
    text.ToDouble(&number);
    return number;
}
} // namespace propagation

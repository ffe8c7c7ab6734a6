#pragma once

#include <wx/arrstr.h>

namespace ui
{
/// "00", "01", ... for the lists of hours and minutes.
inline wxArrayString TwoDigitNumbers(int count)
{
    wxArrayString labels;
    for (int i = 0; i < count; ++i)
        labels.Add(wxString::Format("%02d", i));
    return labels;
}
} // namespace ui

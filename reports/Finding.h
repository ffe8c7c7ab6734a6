#pragma once

#include <wx/string.h>

#include <vector>

namespace reports
{
/// Something in the settings that will not work.
struct Finding
{
    wxString key;  ///< "Group/Key", or "line 7" of the file
    wxString text; ///< what, why, and what to do; without the end of a line
};

using Findings = std::vector<Finding>;
} // namespace reports

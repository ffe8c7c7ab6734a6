#pragma once

#include <wx/string.h>

namespace reports
{
/// What is wrong with a font as the settings describe it; empty if nothing is: its family is not installed and another
/// stands in. A description without a family is the toolkit's ordinary font.
wxString FontTrouble(const wxString& description);
} // namespace reports

#pragma once

#include <wx/string.h>

namespace ui
{
/// The address of the user guide that is installed with a program, or of the home page if it is not.
wxString GuideAddress(const wxString& program);
} // namespace ui

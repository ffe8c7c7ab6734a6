#pragma once

#include <wx/string.h>

// What is wrong with a file named in the settings, in a few words; empty if nothing is, or nothing is named.
namespace ui
{
wxString MissingFile(const wxString& name);
wxString NoPicture(const wxString& name);
wxString NoBorderFile(const wxString& name);
wxString NoLabelFile(const wxString& name);
} // namespace ui

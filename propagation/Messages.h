#pragma once

#include <wx/msgdlg.h>

#include <functional>

namespace propagation
{
/// Shows the user which step is being done.
using ShowStep = std::function<void(const wxString&)>;

inline constexpr char kFileOpenError[] = "File open error in Prop";

inline void ShowError(const wxString& text)
{
    wxMessageBox(text, "Error", wxOK | wxICON_ERROR);
}
} // namespace propagation

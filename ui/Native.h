#pragma once

#include <wx/toolbar.h>
#include <wx/window.h>

// What the toolkit leaves to the library below it. All calls to that library are in Native.cpp.
namespace ui::native
{
/// Has a window told of every motion of the pointer. By default some are left out, the last one of a quick stroke too.
/// To be called before the window is on the screen.
void ReportEveryMotion(wxWindow* window);

/// Gives a window that has not been shown its size at once. Else it and all in it are a pixel wide at first, and the
/// toolbar complains on standard error.
void AllocateSize(wxWindow* topLevel);

/// Moves the keyboard's focus through what can be pressed or typed into on a toolbar: to the next (step 1) or the one
/// before (step -1); from outside to the first or the last. @return false where there is none.
bool MoveFocusOnToolBar(wxToolBar* bar, int step);

/// Has screen readers say something now.
void Announce(wxWindow* window, const wxString& text);
} // namespace ui::native

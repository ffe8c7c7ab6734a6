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

/// Has a scrolled window show its scroll bars wherever something is out of sight, not only under a moving pointer.
void KeepScrollBarsInSight(wxWindow* scrolled);

/// Moves the keyboard's focus through what can be pressed or typed into on a toolbar: to the next (step 1) or the one
/// before (step -1); from outside to the first or the last. @return false where there is none.
bool MoveFocusOnToolBar(wxToolBar* bar, int step);

/// Has screen readers say something now.
void Announce(wxWindow* window, const wxString& text);

/// Closes the menu that is open, if one is.
void DismissMenu();

/// Names what is inside a window, for screen readers: the control itself or the parts of it that take keys.
void Name(wxWindow* window, const wxString& name);

/// Names a tool, in words of more use than its label: to screen readers, and in the menu of tools that have no room.
void NameTool(wxToolBar* bar, int id, const wxString& name);

/**
 * Has every text in a window label what it belongs to, for screen readers.
 *
 * The toolkit takes each text for the label of whatever was made after it. That is kept where the control has no name
 * yet, which it then gets, or one that begins with the text.
 */
void FinishLabels(wxWindow* window);
} // namespace ui::native

#pragma once

#include <wx/bookctrl.h>
#include <wx/checkbox.h>
#include <wx/choice.h>
#include <wx/clrpicker.h>
#include <wx/filepicker.h>
#include <wx/fontpicker.h>
#include <wx/hyperlink.h>
#include <wx/radiobox.h>
#include <wx/scrolwin.h>
#include <wx/spinctrl.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

// The controls of the options dialog as they look there.
namespace ui
{
/// A page of a notebook that scrolls where the screen is too small for it.
wxScrolledWindow* NewPage(wxBookCtrlBase* book, const wxString& title);

wxSpinCtrl* NewSpin(wxWindow* parent, int min, int max, long style = 0);
wxChoice* NewChoice(wxWindow* parent, const wxArrayString& entries);
wxRadioBox* NewRadioBox(wxWindow* parent, const wxString& label, const wxArrayString& entries, int columns);
wxFontPickerCtrl* NewFont(wxWindow* parent);

/// A text field with room for so many digits.
wxTextCtrl* NewText(wxWindow* parent, int digits, const wxString& text = "");

/// One that takes certain characters only.
wxTextCtrl* NewFiltered(wxWindow* parent, int digits, const wxString& characters);

/// A path with a button that browses. What is typed need not exist: data files are also found by their bare names.
wxFilePickerCtrl* NewFile(wxWindow* parent, const wxString& wildcard, long style = 0);
wxDirPickerCtrl* NewDirectory(wxWindow* parent);

/// Opens the address in the user's browser; says nothing if there is none.
wxHyperlinkCtrl* NewLink(wxWindow* parent, const wxString& label, const wxString& address);
} // namespace ui

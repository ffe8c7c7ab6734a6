#pragma once

#include "ui/OptionsPages.h"

#include <wx/scrolwin.h>
#include <wx/sizer.h>
#include <wx/stattext.h>

#include <initializer_list>

// What the pages of the options dialog are put together from.
namespace ui
{
inline constexpr int kGap = 6;

/// A page of a notebook that scrolls where the screen is too small for it.
wxScrolledWindow* NewPage(wxBookCtrlBase* book, const wxString& title);

/// Gives a page its content and makes it ask for the room that this needs.
void FinishPage(wxScrolledWindow* page, wxSizer* content);

wxStaticText* NewLabel(wxWindow* parent, const wxString& text);
wxCheckBox* NewCheck(wxWindow* parent, const wxString& label = "");
wxSpinCtrl* NewSpin(wxWindow* parent, int min, int max, long style = 0);
wxChoice* NewChoice(wxWindow* parent, const wxArrayString& entries);
wxRadioBox* NewRadioBox(wxWindow* parent, const wxString& label, const wxArrayString& entries, int columns);
wxColourPickerCtrl* NewColour(wxWindow* parent);
wxFontPickerCtrl* NewFont(wxWindow* parent);

/// A text field with room for so many digits.
wxTextCtrl* NewText(wxWindow* parent, int digits, const wxString& text = "");

/// A path with a button that browses. What is typed need not exist: data files are also found by their bare names.
wxFilePickerCtrl* NewFile(wxWindow* parent, const wxString& wildcard, long style = 0);
wxDirPickerCtrl* NewDirectory(wxWindow* parent);

/// Opens the address in the user's browser; says nothing if there is none.
wxHyperlinkCtrl* NewLink(wxWindow* parent, const wxString& label, const wxString& address);

/// The controls of a row are made in reading order; the page places them.
LineRow NewLineRow(wxWindow* parent);
TextStyleRow NewTextStyleRow(wxWindow* parent);

/// A grid of rows whose cells are centred vertically.
wxFlexGridSizer* NewGrid(int columns);

/// Puts controls into the next cells of a grid.
void AddCells(wxSizer* grid, std::initializer_list<wxWindow*> controls);

/// The column headings of a grid; an empty text leaves its cell free.
void AddHeadings(wxWindow* parent, wxSizer* grid, std::initializer_list<const char*> headings);

/// A label before a control, side by side.
wxSizer* Labelled(wxWindow* label, wxWindow* control, int proportion = 0);
} // namespace ui

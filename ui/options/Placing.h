#pragma once

#include <wx/sizer.h>
#include <wx/stattext.h>

#include <initializer_list>

// How the controls of a page are put together.
namespace ui
{
inline constexpr int kGap = 6;

/// A grid of rows whose cells are centred vertically.
wxFlexGridSizer* NewGrid(int columns);

/// Puts controls into the next cells of a grid.
void AddCells(wxSizer* grid, std::initializer_list<wxWindow*> controls);

/// The column headings of a grid; an empty text leaves its cell free.
void AddHeadings(wxWindow* parent, wxSizer* grid, std::initializer_list<const char*> headings);

/// A label and the control that it stands before. Written in braces, they are made in this order.
template <class Control>
struct Labelled
{
    wxStaticText* label;
    Control* control;
};
template <class Control>
Labelled(wxStaticText*, Control*) -> Labelled<Control>;

/// A label before a control, side by side.
wxSizer* SideBySide(wxWindow* label, wxWindow* control, int proportion = 0);

/// Adds a label and its control, side by side.
template <class Control>
Control* Add(wxSizer* sizer, const Labelled<Control>& pair, int flags = 0, int border = 2 * kGap)
{
    sizer->Add(SideBySide(pair.label, pair.control), 0, flags, border);
    return pair.control;
}

/// Adds a control with a gap beside or below it.
template <class Control>
Control* Add(wxSizer* sizer, Control* control, int flags, int border = 2 * kGap)
{
    sizer->Add(control, 0, flags, border);
    return control;
}

/// Puts a text at the right of a control, into the room that the control had alone.
wxStaticText* NewTextBeside(wxWindow* control, const wxString& text = "");
} // namespace ui

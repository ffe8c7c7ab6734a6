#pragma once

#include "ui/options/Form.h"

namespace ui
{
/// Controls for LineStyle.
struct LineRow
{
    wxCheckBox* show;
    wxColourPickerCtrl* colour;
    wxSpinCtrl* alpha;
    wxSpinCtrl* lineWidth;
};

/// Controls for TextStyle.
struct TextStyleRow
{
    wxCheckBox* show;
    wxColourPickerCtrl* colour;
    wxFontPickerCtrl* font;
    wxSpinCtrl* alpha;
};

/// The controls of a row, made in reading order; the page places them.
LineRow NewLineRow(const Form& form, LineStyle& lines, const wxString& layer);
TextStyleRow NewTextStyleRow(const Form& form, TextStyle& text, const wxString& layer);
} // namespace ui

#pragma once

#include "ui/options/LayerRows.h"

#include <wx/slider.h>

namespace ui
{
class SettingsPage
{
public:
    SettingsPage(wxBookCtrlBase* book, Editing& editing);
    SettingsPage(const SettingsPage&) = delete;
    SettingsPage& operator=(const SettingsPage&) = delete;

    wxSlider* zoomSlider;
    wxTextCtrl* zoom;
    wxTextCtrl* size;
    wxCheckBox* compassInside;
    LineRow meridians;
    LineRow fields;
    TextStyleRow fieldNames;
    LineRow squares;
    TextStyleRow squareNames;
    LineRow compass;
    TextStyleRow compassFigures;
    LineRow radials;
    wxChoice* radialsEvery;
    LineRow rangeCircles;
    wxTextCtrl* rangeEvery;
    wxCheckBox* rangeLegend;
    wxSpinCtrl* rangeDegs;

private:
    wxSizer* NewZoomRow(const Form& form);
    wxSizer* NewRadialExtras(const Form& form);
    wxSizer* NewRangeExtras(const Form& form);
    void ShowZoomOnSlider();
    void ShowZoomInField();
};
} // namespace ui

#pragma once

#include "ui/options/Form.h"

#include <wx/statbmp.h>

#include <array>

namespace ui
{
class PlotSquaresPage
{
public:
    PlotSquaresPage(wxBookCtrlBase* book, Editing& editing);
    PlotSquaresPage(const PlotSquaresPage&) = delete;
    PlotSquaresPage& operator=(const PlotSquaresPage&) = delete;

    struct Slot
    {
        wxCheckBox* show;
        wxFilePickerCtrl* file;
        wxChoice* stipple;
        wxSpinCtrl* alpha;
        wxColourPickerCtrl* borderColour;
        wxColourPickerCtrl* fillColour;
        wxStaticBitmap* preview;
    };
    std::array<Slot, 2> slots;

private:
    void ShowPreviews() const;
};
} // namespace ui

#pragma once

#include "ui/options/Form.h"

namespace ui
{
struct GraylinePage
{
    GraylinePage(wxBookCtrlBase* book, Editing& editing);

    wxCheckBox* show;
    wxSpinCtrl* width;
    wxCheckBox* gradient;
    wxSpinCtrl* darkeningGrey;
    wxSpinCtrl* darkeningNight;
};
} // namespace ui

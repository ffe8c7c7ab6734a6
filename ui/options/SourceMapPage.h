#pragma once

#include "ui/options/Form.h"

#include <array>

namespace ui
{
struct SourceMapPage
{
    SourceMapPage(wxBookCtrlBase* book, Editing& editing);

    struct Row
    {
        wxCheckBox* show;
        wxFilePickerCtrl* file;
    };
    std::array<Row, 2> rows;
};
} // namespace ui

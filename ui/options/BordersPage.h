#pragma once

#include "ui/options/LayerRows.h"

#include <array>

namespace ui
{
struct BordersPage
{
    BordersPage(wxBookCtrlBase* book, Editing& editing);

    struct Row
    {
        LineRow lines;
        wxFilePickerCtrl* file;
    };
    std::array<Row, 6> rows;
};
} // namespace ui

#pragma once

#include "ui/options/LayerRows.h"

#include <array>

namespace ui
{
struct TextPage
{
    TextPage(wxBookCtrlBase* book, Editing& editing);

    struct Row
    {
        TextStyleRow text;
        wxFilePickerCtrl* file;
        wxChoice* align;
        wxCheckBox* avoidCollisions;
    };
    std::array<Row, 3> rows;
};
} // namespace ui

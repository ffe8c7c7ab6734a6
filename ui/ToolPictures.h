#pragma once

#include <wx/bmpbndl.h>

namespace ui
{
/// The icon of a tool.
struct ToolPicture
{
    const char* const* pixels; ///< XPM, for screens of ordinary density
    const char* drawing;       ///< SVG, the same picture for the others
};

/// The picture for every density: its own pixels at the first, drawn anew at twice and three times as many.
wxBitmapBundle BundleOf(const ToolPicture& picture);
} // namespace ui

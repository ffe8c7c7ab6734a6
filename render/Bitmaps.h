#pragma once

#include <wx/bitmap.h>

#include <memory>

namespace render
{
/// A white bitmap of a map's side at screen depth; none when there is not enough memory for it.
std::unique_ptr<wxBitmap> NewWhiteBitmap(int side);

/// A bitmap of a map's side with opacity, its pixels still undefined; none when there is not enough memory for it.
std::unique_ptr<wxBitmap> NewOverlayBitmap(int side);
} // namespace render

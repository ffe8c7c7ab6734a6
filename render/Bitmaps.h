#pragma once

#include "render/PictureRows.h"

#include <wx/bitmap.h>
#include <wx/image.h>

#include <memory>

namespace render
{
/// An opaque bitmap as an image; an invalid image when there is not enough memory for it.
wxImage ImageOf(wxBitmap& bitmap);

/// A picture as an image; an invalid image when there is not enough memory for it.
wxImage ImageOf(const PictureRows& picture);

/// A white bitmap of a map's side at screen depth; none when there is not enough memory for it.
std::unique_ptr<wxBitmap> NewWhiteBitmap(int side);

/// A bitmap of a map's side with opacity, its pixels still undefined; none when there is not enough memory for it.
std::unique_ptr<wxBitmap> NewOverlayBitmap(int side);
} // namespace render

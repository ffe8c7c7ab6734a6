#pragma once

#include "render/PictureRows.h"

#include <wx/bitmap.h>
#include <wx/image.h>

namespace render
{
/// An opaque bitmap as an image; an invalid image when there is not enough memory for it.
wxImage ImageOf(wxBitmap& bitmap);

/// A picture as an image; an invalid image when there is not enough memory for it.
wxImage ImageOf(const PictureRows& picture);
} // namespace render

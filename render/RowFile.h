#pragma once

#include "render/PictureRows.h"

#include <wx/gdicmn.h>
#include <wx/stream.h>

namespace render
{
/// Whether WriteRows() knows a format: .bmp and .pnm, which are hardly more than the pixels.
bool HasRowFormat(wxBitmapType type);

/**
 * Writes a picture while its rows are computed, byte for byte as the toolkit would write the whole of it.
 *
 * @pre HasRowFormat(type). @return whether the stream took everything.
 */
bool WriteRows(wxOutputStream& stream, const PictureRows& picture, wxBitmapType type);
} // namespace render

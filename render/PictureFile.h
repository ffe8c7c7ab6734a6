#pragma once

#include "render/PictureRows.h"

#include <wx/gdicmn.h>
#include <wx/image.h>

#include <optional>

namespace render
{
/// The format of kPictureFormats that the last four characters of a path name, in any case; none for any other ending
/// (.jpeg and .tiff included).
std::optional<wxBitmapType> PictureTypeOf(const wxString& path);

/**
 * Writes a picture in the format that its path names, JPEG at quality 90.
 *
 * It appears whole or not at all: a file that was there is replaced only by a complete one; what is no file, as a
 * directory or a pipe, is left alone. The toolkit's log says what failed and why.
 *
 * @param[in] picture an invalid one stands for a lack of memory.
 * @pre PictureTypeOf(path) has a value.
 * @return whether it was written.
 */
bool SavePicture(wxImage picture, const wxString& path);

/// The same for a picture that is computed row by row; it is written so where the format allows it.
bool SavePicture(const PictureRows& picture, const wxString& path);
} // namespace render

#pragma once

#include "render/MapView.h"

namespace reports
{
/// The name of the world file of a picture: its ending becomes the first and the last letter of it and a "w".
wxString WorldFileName(const wxString& picture);

/// The name of the file with the projection: the picture's with the ending .prj.
wxString ProjectionFileName(const wxString& picture);

/**
 * Writes the world file and the projection of a map beside its picture. Each appears whole or not at all.
 *
 * @param[in] picture ends in a dot and three letters.
 * @return whether both were written; the toolkit's log says what failed.
 */
bool WriteGeoreference(const MapView& view, const wxString& picture);
} // namespace reports

#pragma once

#include <wx/string.h>

namespace propagation
{
/// An antenna as the area input names it, or why the path can't be named so.
struct AntennaName
{
    wxString columns; ///< 21 characters: the directory in 8, a backslash, the file in 12, both filled up with blanks
    wxString problem; ///< the message for the user; empty when all is well
};

/**
 * Takes directory and file name out of the path of an antenna file, by counting its pieces.
 *
 * Pieces are what stands between slashes; empty ones do not count. A path of 7 or 8 pieces, as voacapl installs its
 * antennas, gives its last two. Any other depth gives others, or none (-):
 *
 *     pieces      0..4   5   6   7   8   9   10   11   12
 *     directory     -    5   6   6   7   7    8    8    9
 *     file          -    -   -   7   8   8    9    9   10
 */
AntennaName AntennaNameOf(const wxString& path);
} // namespace propagation

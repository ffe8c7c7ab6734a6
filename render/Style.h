#pragma once

#include <wx/colour.h>
#include <wx/dc.h>
#include <wx/font.h>

/// The opaque colour of a stored value R + 256 G + 65536 B; higher bits do not count.
wxColour ColourFromSetting(long value);

namespace render
{
/// The font of a stored description; the toolkit's ordinary font where the description names none.
wxFont FontFromSetting(const wxString& description);

/// Prepares a drawing context for texts on a transparent ground, with a font and a colour as they are stored.
void SetTextStyle(wxDC& dc, const wxString& font, long colour);
} // namespace render

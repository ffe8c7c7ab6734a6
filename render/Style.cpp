#include "render/Style.h"

wxColour ColourFromSetting(long value)
{
    const auto byte = [value](int shift) { return static_cast<unsigned char>((value >> shift) & 255); };
    return {byte(0), byte(8), byte(16)};
}

namespace render
{
wxFont FontFromSetting(const wxString& description)
{
    wxFont font;
    return font.SetNativeFontInfoUserDesc(description) ? font : *wxNORMAL_FONT;
}

void SetTextStyle(wxDC& dc, const wxString& font, long colour)
{
    dc.SetFont(FontFromSetting(font));
    dc.SetTextForeground(ColourFromSetting(colour));
    dc.SetBackgroundMode(wxBRUSHSTYLE_TRANSPARENT);
}
} // namespace render

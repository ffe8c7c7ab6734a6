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
} // namespace render

#include "render/Style.h"

#include <gtest/gtest.h>

#include <wx/dcmemory.h>

namespace
{
TEST(ColourFromSetting, TakesRedFromTheLowByte)
{
    EXPECT_EQ(ColourFromSetting(9868950), wxColour(150, 150, 150));
    EXPECT_EQ(ColourFromSetting(255), wxColour(255, 0, 0));
    EXPECT_EQ(ColourFromSetting(16711680), wxColour(0, 0, 255));
    EXPECT_EQ(ColourFromSetting(65280).Alpha(), wxALPHA_OPAQUE);
}

TEST(ColourFromSetting, LooksAtTheLow24BitsOnly)
{
    EXPECT_EQ(ColourFromSetting(-1), wxColour(255, 255, 255));
    EXPECT_EQ(ColourFromSetting(0x12345678901234L), wxColour(0x34, 0x12, 0x90));
}

TEST(FontFromSetting, TakesABareFaceNameAtTheOrdinarySize)
{
    EXPECT_EQ(render::FontFromSetting("Verdana").GetPointSize(), wxFont("Verdana").GetPointSize());
    EXPECT_EQ(render::FontFromSetting("Verdana 17").GetPointSize(), 17);
}

TEST(FontFromSetting, FallsBackToTheOrdinaryFont)
{
    EXPECT_EQ(render::FontFromSetting(""), *wxNORMAL_FONT);
}

TEST(SetTextStyle, GivesFontAndColourOnATransparentGround)
{
    wxBitmap bitmap(8, 8);
    wxMemoryDC dc(bitmap);
    dc.SetBackgroundMode(wxBRUSHSTYLE_SOLID);
    render::SetTextStyle(dc, "Serif Bold 13", 0x123456);
    EXPECT_EQ(dc.GetFont().GetPointSize(), 13);
    EXPECT_EQ(dc.GetFont().GetWeight(), wxFONTWEIGHT_BOLD);
    EXPECT_EQ(dc.GetTextForeground(), wxColour(0x56, 0x34, 0x12));
    EXPECT_EQ(dc.GetBackgroundMode(), static_cast<int>(wxBRUSHSTYLE_TRANSPARENT));
}
} // namespace

#include "render/Style.h"

#include <gtest/gtest.h>

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
    EXPECT_TRUE(render::FontFromSetting("Verdana").IsOk());
    EXPECT_EQ(render::FontFromSetting("Verdana 17").GetPointSize(), 17);
}

TEST(FontFromSetting, FallsBackToTheOrdinaryFont)
{
    EXPECT_TRUE(render::FontFromSetting("").IsOk());
    EXPECT_TRUE(render::FontFromSetting("No such face, 12 ½").IsOk());
}
} // namespace

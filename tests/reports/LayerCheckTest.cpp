#include "reports/LayerCheck.h"

#include "reports/FontCheck.h"
#include "tests/support/TemporaryHome.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace
{
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::StartsWith;

constexpr char kNoSuchFont[] = "Kavmap No Such Font 12";

class LayerCheckTest : public testing::Test
{
protected:
    LayerCheckTest() { settings.compass.text.font = "Sans 12"; }

    std::vector<std::string> Keys()
    {
        std::vector<std::string> keys;
        for (const reports::Finding& finding : reports::CheckLayers(settings))
            keys.push_back(finding.key.utf8_string());
        return keys;
    }

    const TemporaryHome home;
    Settings settings = DefaultSettings();
};

TEST_F(LayerCheckTest, FindsNothingWithAFontThatIsAlwaysThere)
{
    EXPECT_THAT(Keys(), IsEmpty());
}

TEST_F(LayerCheckTest, FindsWhiteWhereItIsDrawn)
{
    settings.meridians.colour = settings.radials.colour = settings.rangeCircles.colour = 0xFFFFFF;
    settings.plotSquares[1].fillColour = settings.fields.text.colour = 0xFFFFFF;
    settings.radials.show = false;
    EXPECT_THAT(Keys(), ElementsAre("Meridians/Colour"));
    settings.rangeCircles.show = true;
    EXPECT_THAT(Keys(), ElementsAre("Meridians/Colour", "RangeCircles/RcColour"));
    settings.fields.show = true;
    settings.fields.text.font = "Sans 12";
    EXPECT_THAT(Keys(), ElementsAre("Meridians/Colour", "RangeCircles/RcColour"));
    settings.fields.text.show = true;
    EXPECT_THAT(Keys(), Contains("Fields/FontColour"));
    settings.meridians.colour = 0xFEFFFF;
    EXPECT_THAT(Keys(), ElementsAre("Fields/FontColour", "RangeCircles/RcColour"));
}

TEST_F(LayerCheckTest, TakesWhiteForAColourOfTheOverlay)
{
    settings.propagation.show = true;
    settings.propagation.scales[0].colours[3] = 0xFFFFFF;
    EXPECT_THAT(Keys(), IsEmpty());
}

TEST_F(LayerCheckTest, LooksAtTheFilesThatAreShown)
{
    settings.borders[5].file = settings.texts[2].file = settings.plotSquares[1].file = "gone";
    settings.sourceBitmaps[1].file = "gone";
    EXPECT_THAT(Keys(), IsEmpty());
    settings.borders[5].show = settings.texts[2].show = settings.plotSquares[1].show = true;
    settings.sourceBitmaps[1].show = true;
    settings.texts[2].font = "Sans";
    EXPECT_THAT(Keys(), ElementsAre("Borders/File6", "Text/File3", "SourceBitmap/File2", "PlotSquares/File2"));
}

TEST_F(LayerCheckTest, FindsFontsThatAreNotThere)
{
    settings.compass.text.font = settings.texts[0].font = settings.squares.text.font = kNoSuchFont;
    EXPECT_THAT(Keys(), ElementsAre("Compass/Font"));
    settings.compass.text.show = false;
    EXPECT_THAT(Keys(), IsEmpty());
    settings.rangeCircles.show = true;
    EXPECT_THAT(Keys(), ElementsAre("Compass/Font"));
    settings.rangeCircles.legendShow = false;
    EXPECT_THAT(Keys(), IsEmpty());
}

TEST(FontTrouble, NamesTheFontAndWhatStandsIn)
{
    const std::string trouble = reports::FontTrouble(kNoSuchFont).utf8_string();
    EXPECT_THAT(trouble, StartsWith("the font Kavmap No Such Font is not installed: "));
    EXPECT_THAT(trouble, testing::EndsWith(" stands in; install it or choose another"));
}

TEST(FontTrouble, IsNoneForInstalledAndGenericFonts)
{
    for (const char* const font : {"", "Sans 12", "sans-serif Bold", "Monospace", "DejaVu Sans Bold 9", "Bold 12"})
        EXPECT_EQ(reports::FontTrouble(font), "") << font;
}
} // namespace

#include "tests/support/FrameFixture.h"
#include "tests/support/ProgramUnderTest.h"

#include <cstdlib>

namespace
{
/// The window saves a map, and the program draws the same settings without a display.
class SamePictureTest : public FrameFixture
{
protected:
    void ExpectTheSame()
    {
        settings->WriteAll();
        settings->Flush();
        ClickTool(ui::kIdCreate);
        dialogs.chosenPath = home.Path("window.png");
        ClickTool(ui::kIdSave);
        EXPECT_EQ(dialogs.Texts(), "");
        ASSERT_EQ(std::system("env -u DISPLAY -u WAYLAND_DISPLAY $KAVMAP --render program.png"), 0);
        const std::string saved = home.Read("window.png");
        EXPECT_FALSE(saved.empty());
        EXPECT_TRUE(home.Read("program.png") == saved);
    }

    static constexpr const char* kLabels[] = {KAV_DATA_DIR "/cities.dat", KAV_DATA_DIR "/countries.dat",
                                              KAV_DATA_DIR "/prefixes.dat"};

    void ShowEverything() const
    {
        Settings& s = *settings;
        for (LineStyle* lines : std::initializer_list<LineStyle*>{&s.meridians, &s.fields, &s.squares, &s.compass,
                                                                  &s.radials, &s.rangeCircles})
        {
            lines->show = true;
            lines->lineWidth = 2;
        }
        for (TextStyle* text : {&s.fields.text, &s.squares.text, &s.compass.text})
            text->show = true;
        s.rangeCircles.legendShow = true;
        s.zoom = 4000; // near enough for names of squares
        s.borders[0].show = s.borders[1].show = true;
        s.borders[0].file = KAV_DATA_DIR "/mapper.pnt";
        s.borders[1].file = KAV_DATA_DIR "/states.pnt";
        for (std::size_t i = 0; i < s.texts.size(); ++i)
        {
            s.texts[i].show = true;
            s.texts[i].file = kLabels[i];
        }
        s.texts[1].font = "DejaVu Serif Italic 11";
        s.plotSquares[0].show = true;
        s.plotSquares[0].file = KAV_DATA_DIR "/sample.log";
        s.plotSquares[0].stipple = 3;
        s.greyzone.show = true;
        s.greyzone.timeMode = kOnce;
        s.greyzone.once = {2026, 2, 20, 16, 30, 0};
        s.propagation.show = s.propagation.useExternalResult = true;
        s.propagation.externalResult = KAV_TEST_DATA "/area_36x36.vg1";
        s.propagation.legend = 1;
    }
};

TEST_F(SamePictureTest, OfTheDefaultMap)
{
    ExpectTheSame();
}

TEST_F(SamePictureTest, OfEverythingAtOnce)
{
    settings->size = 700;
    ShowEverything();
    ExpectTheSame();
    EXPECT_TRUE(frame->Picture().showGreyline && frame->Picture().showPropagation);
}
} // namespace

#include "render/Blend.h"
#include "tests/support/FrameFixture.h"
#include "tests/support/LayerFixture.h"
#include "tests/support/Pictures.h"
#include "tests/support/ScarceMemory.h"

#include <gmock/gmock.h>

namespace
{
using testing::ElementsAre;
using testing::IsEmpty;

/// Layers on a map of one flat colour.
class MapLayersTest : public FrameFixture
{
protected:
    static constexpr render::Argb kWorld = render::OpaquePixel(100, 150, 200);

    void SetUp() override
    {
        FrameFixture::SetUp();
        RecordSteps();
        HideLayers();
        settings->compass.text.show = false;
        wxImage world(1, 1);
        world.SetRGB(0, 0, 100, 150, 200);
        world.SaveFile(home.Path("flat.png"), wxBITMAP_TYPE_PNG);
        settings->sourceBitmaps[0] = {true, "flat.png"};
    }

    void Create()
    {
        steps.clear();
        ASSERT_TRUE(frame->CreateMap());
    }

    /// The colours that layers left on the disc.
    std::set<render::Argb> Marks() const
    {
        std::set<render::Argb> marks;
        for (const auto& row : ColoursOf(*frame->Picture().mapBitmap))
            marks.insert(row.begin(), row.end());
        marks.erase(kWorld);
        marks.erase(render::kWhite);
        return marks;
    }

    static render::Argb Blended(const wxColour& ink, unsigned alpha, render::Argb under = kWorld)
    {
        return render::BlendPixel(under, render::OpaquePixel(ink.Red(), ink.Green(), ink.Blue()), alpha);
    }
};

TEST_F(MapLayersTest, AreDrawnInAFixedOrderAndNamed)
{
    settings->meridians.show = settings->fields.show = settings->squares.show = true;
    settings->fields.text.show = settings->squares.text.show = true;
    settings->compass.show = settings->compass.text.show = settings->radials.show = settings->rangeCircles.show = true;
    home.Write("lines.pnt", "");
    home.Write("names.dat", "");
    home.Write("worked.log", "");
    for (BorderSlot& slot : settings->borders)
    {
        slot.show = true;
        slot.file = home.Path("lines.pnt");
    }
    for (TextSlot& slot : settings->texts)
    {
        slot.show = true;
        slot.file = home.Path("names.dat");
    }
    for (PlotSquaresSlot& slot : settings->plotSquares)
    {
        slot.show = true;
        slot.file = home.Path("worked.log");
    }
    Create();
    EXPECT_THAT(steps,
                ElementsAre("Creating Map", "Drawing Lines...", "Drawing Lines...", "Drawing Field Text...",
                            "Drawing Lines...", "Drawing Square Text...", "Drawing Compass...",
                            "Drawing Compass Text...", "Plotting Lines...", "Plotting Lines...", "Plotting Lines...",
                            "Plotting Lines...", "Plotting Lines...", "Plotting Lines...", "Drawing Radials...",
                            "Plotting Text...", "Plotting Text...", "Plotting Text...", "Drawing Range Circles...",
                            "Hatching Squares...", "Hatching Squares...", "Finished..."));
}

TEST_F(MapLayersTest, ShowTheirTextsOnlyWithTheirLines)
{
    settings->fields.text.show = settings->squares.text.show = settings->compass.text.show = true;
    Create();
    EXPECT_THAT(steps, ElementsAre("Creating Map", "Finished..."));
    EXPECT_THAT(Marks(), IsEmpty());
}

TEST_F(MapLayersTest, TakeAnOpacityOfAGridBeyond255As255)
{
    settings->meridians = {true, 0x0000FF, 300, 1};
    Create();
    EXPECT_THAT(Marks(), ElementsAre(Blended(*wxRED, 255)));
    settings->meridians.alpha = -1;
    Create();
    EXPECT_THAT(Marks(), IsEmpty());
}

TEST_F(MapLayersTest, TakeTheLowEightBitsOfAnyOtherOpacity)
{
    // The disc's rim and the station are white.
    const auto low = testing::IsSubsetOf({Blended(*wxRED, 300 - 256), Blended(*wxRED, 300 - 256, render::kWhite)});
    settings->radials.show = true;
    settings->radials.colour = 0x0000FF;
    settings->radials.alpha = 300;
    Create();
    EXPECT_THAT(Marks(), testing::AllOf(low, testing::Not(IsEmpty())));

    settings->radials.show = false;
    settings->compass.show = true;
    settings->compass.colour = 0x0000FF;
    settings->compass.alpha = 300;
    Create();
    EXPECT_THAT(Marks(), testing::AllOf(low, testing::Not(IsEmpty())));

    settings->compass.show = false;
    settings->fields.show = settings->fields.text.show = true;
    settings->fields.alpha = 0;
    settings->fields.text.colour = 0x0000FF;
    settings->fields.text.alpha = 300;
    Create();
    EXPECT_THAT(Marks(), testing::AllOf(low, testing::Not(IsEmpty())));
}

TEST_F(MapLayersTest, AreDrawnInTheColourOfTheirSetting)
{
    settings->size = 400;
    settings->compass.show = settings->compass.text.show = true;
    settings->compass.alpha = 0;
    settings->compass.text = {true, "Sans 9", 0x00FF00, 255};
    Create();
    EXPECT_TRUE(Marks().contains(Blended(*wxGREEN, 255, render::kWhite)));

    settings->compass.show = false;
    home.Write("names.dat", "a;Here;x;y;40;20\n");
    settings->texts[0].show = true;
    settings->texts[0].file = home.Path("names.dat");
    settings->texts[0].colour = 0xFF0000;
    settings->texts[0].alpha = 255;
    Create();
    EXPECT_THAT(Marks(), ElementsAre(Blended(*wxBLUE, 255)));
}

TEST_F(MapLayersTest, BlendWorkedSquaresInBothTheirColours)
{
    home.Write("worked.log", "JO65 JO55");
    settings->zoom = 500;
    settings->plotSquares[0] = PlotSquaresSlot();
    PlotSquaresSlot& slot = settings->plotSquares[0];
    slot.show = true;
    slot.file = home.Path("worked.log");
    slot.alpha = 255;
    slot.stipple = 0;
    slot.borderColour = 0x0000FF;
    slot.fillColour = 0x00FF00;
    settings->compass.show = true;
    settings->compass.alpha = 0;
    Create();
    const auto marks = Marks();
    EXPECT_TRUE(marks.contains(Blended(*wxRED, 255)));
    EXPECT_TRUE(marks.contains(Blended(*wxGREEN, 255)));
    EXPECT_EQ(marks.size(), 2u);
}

TEST_F(MapLayersTest, BringTheRangeCirclesToAHundredKilometresAtLeast)
{
    settings->rangeCircles.show = true;
    settings->rangeCircles.distanceKm = 50;
    Create();
    EXPECT_EQ(settings->rangeCircles.distanceKm, 100);
}

TEST_F(MapLayersTest, ReportAFileThatIsMissingWhateverTheOpacity)
{
    for (const long alpha : {255L, 0L})
    {
        settings->borders[0].show = true;
        settings->borders[0].alpha = alpha;
        settings->borders[0].file = "no such file.pnt";
        LogLines log;
        Create();
        EXPECT_EQ(log.lines.size(), 1u) << alpha;
    }
}

TEST_F(MapLayersTest, AreLeftOutWhereThereIsNoMemoryForThem)
{
    settings->size = 6000;
    frame->Hide();
    Create();
    settings->plotSquares[0].file = home.Write("worked.log", "JO65");
    LogLines log;
    {
        const ScarceMemory memory;
        frame->DrawPlottedSquares(settings->plotSquares[0]);
    }
    ASSERT_EQ(log.lines.size(), 1u);
    EXPECT_TRUE(log.lines[0].EndsWith(": Not enough memory for a layer: Hatching Squares..."));
    EXPECT_TRUE(frame->Picture().mapBitmap);
}

TEST_F(MapLayersTest, TakeNoWiderPenThanTheLargestMap)
{
    settings->meridians = {true, 0x0000FF, 255, 5000000000};
    Create(); // all of the map is inked
    EXPECT_EQ(ColoursOf(*frame->Picture().mapBitmap)[100][130], Blended(*wxRED, 255));
}

TEST_F(MapLayersTest, ComplainOrKeepSilentWithoutAMap)
{
    settings->texts[0].file = settings->plotSquares[0].file = settings->borders[0].file = "no such file";
    LogLines log;
    frame->DrawCompass();
    EXPECT_EQ(dialogs.Texts(), "Bitmap Error in function Compass\n");
    dialogs.messages.clear();
    frame->DrawRangeCircles();
    EXPECT_EQ(dialogs.Texts(), "Bitmap Error in function RangeCircles\n");
    dialogs.messages.clear();
    frame->DrawGridLines(255, *wxRED, 1, -180, 180, 15, -75, 75, 15);
    frame->DrawFieldLabels();
    frame->DrawSquareLabels();
    frame->DrawCompassText();
    frame->DrawBorderLines(settings->borders[0]);
    frame->DrawRadials();
    frame->DrawTextLabels(settings->texts[0]);
    frame->DrawPlottedSquares(settings->plotSquares[0]);
    EXPECT_EQ(dialogs.Texts(), "");
    EXPECT_THAT(log.lines, IsEmpty());
    EXPECT_THAT(steps, IsEmpty());
    EXPECT_FALSE(frame->Picture().mapBitmap);
}

TEST_F(MapLayersTest, FitAMapOfAnotherSizeThanTheOneTheyWereLastDrawnOn)
{
    Create();
    settings->compass.colour = 0x0000FF;
    settings->compass.alpha = 255;
    frame->DrawCompass();
    settings->size = 120;
    settings->meridians = {true, 0x0000FF, 255, 1};
    Create();
    EXPECT_EQ(frame->Picture().mapBitmap->GetWidth(), 120);
    EXPECT_THAT(Marks(), ElementsAre(Blended(*wxRED, 255)));
}
} // namespace

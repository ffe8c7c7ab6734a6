#include "tests/support/FrameFixture.h"
#include "tests/support/Pictures.h"
#include "tests/support/ScarceMemory.h"

#include <gmock/gmock.h>

#include <wx/dcmemory.h>

#include <set>

namespace
{
using testing::ElementsAre;

class MapCreationTest : public FrameFixture
{
protected:
    void SetUp() override
    {
        FrameFixture::SetUp();
        RecordSteps();
        HideLayers();
    }

    void Create() { ClickTool(ui::kIdCreate); }

    void TypeLocator(const wxString& text)
    {
        LocatorField().ChangeValue(text);
        Create();
    }

    void ExpectStoppedWith(const wxString& text)
    {
        ASSERT_EQ(dialogs.messages.size(), 1u);
        EXPECT_EQ(dialogs.messages[0].caption, "Error");
        EXPECT_EQ(dialogs.messages[0].text, text);
        EXPECT_TRUE(dialogs.messages[0].style & wxICON_ERROR);
        for (const int id : {1003, 5003, 1004})
            EXPECT_FALSE(Tools().GetToolEnabled(id)) << id;
        EXPECT_NE(Status(0), "Finished...");
    }
};

TEST_F(MapCreationTest, MakesAMapOfTheSizeAndSaysWhenItIsFinished)
{
    Create();
    ASSERT_TRUE(frame->Picture().mapBitmap);
    EXPECT_EQ(frame->Picture().mapBitmap->GetSize(), wxSize(200, 200));
    EXPECT_TRUE(frame->Picture().mapReady);
    EXPECT_EQ(Status(0), "Finished...");
    EXPECT_EQ(Status(1), "");
    EXPECT_THAT(steps, ElementsAre("Creating Map", "Finished..."));
    EXPECT_TRUE(dialogs.messages.empty());
}

TEST_F(MapCreationTest, EnablesTheToolsThatNeedAMap)
{
    Create();
    for (const int id : {1003, 5003, 1004, 1017})
        EXPECT_TRUE(Tools().GetToolEnabled(id)) << id;
    EXPECT_FALSE(Tools().GetToolState(1017));
    EXPECT_FALSE(Tools().GetToolEnabled(1005));
}

TEST_F(MapCreationTest, SizesTheScrolledAreaToTheMap)
{
    settings->size = 1200;
    Create();
    EXPECT_EQ(Canvas().GetVirtualSize(), wxSize(1200, 1200));
}

TEST_F(MapCreationTest, ShowsTheMapButOffersNoToolMeanwhile)
{
    settings->meridians.show = true;
    std::vector<bool> isShown;
    frame->onStep = [&](const wxString& step)
    {
        isShown.push_back(frame->Picture().mapReady);
        for (const int id : {1003, 5003, 1004})
            EXPECT_EQ(Tools().GetToolEnabled(id), step == "Creating Map" && id != 5003) << step << id;
        EXPECT_EQ(Status(0), step);
    };
    Create();
    EXPECT_THAT(isShown, ElementsAre(false, true, true));
    EXPECT_TRUE(Tools().GetToolEnabled(5003));
}

TEST_F(MapCreationTest, ChecksTheGreylineToolWhereTheSettingsAskForIt)
{
    for (const bool show : {true, false})
    {
        settings->greyzone.show = show;
        settings->greyzone.timeMode = 2;
        Create();
        EXPECT_EQ(Tools().GetToolState(1017), show);
    }
}

TEST_F(MapCreationTest, LeavesRoomForTheFiguresOfTheCompassInTheirFont)
{
    const auto radius = [this](const wxString& font)
    {
        settings->compass.text = {true, font, 0, 0};
        settings->compass.show = true;
        settings->compass.insideMap = false;
        settings->compass.colour = 0;
        settings->compass.alpha = 255;
        settings->zoom = 5000;
        Create();
        // The first dark pixel from the left in the middle row is the ring.
        const auto row = ColoursOf(*frame->Picture().mapBitmap)[100];
        return std::ranges::find_if(row, [](render::Argb c) { return c == 0xFF000000; }) - row.begin();
    };
    for (const wxString font : {"Sans 8", "Sans 20"})
    {
        wxBitmap bitmap(50, 50);
        wxMemoryDC dc(bitmap);
        wxFont measured;
        measured.SetNativeFontInfoUserDesc(font);
        dc.SetFont(measured);
        EXPECT_NEAR(static_cast<double>(radius(font)), dc.GetTextExtent("123400").y + 200 / 100, 1) << font;
    }
}

TEST_F(MapCreationTest, ShowsTheBuiltInWorldWithoutAnotherPicture)
{
    Create();
    std::set<render::Argb> colours;
    for (const auto& row : ColoursOf(*frame->Picture().mapBitmap))
        colours.insert(row.begin(), row.end());
    EXPECT_GT(colours.size(), 1000u);
}

TEST_F(MapCreationTest, HappensOnceAClick)
{
    Create();
    EXPECT_EQ(std::ranges::count(steps, "Creating Map"), 1);
}

TEST_F(MapCreationTest, TakesSizesFrom100To8000)
{
    for (const int size : {100, 8000})
    {
        settings->size = size;
        Create();
        ASSERT_TRUE(frame->Picture().mapBitmap);
        EXPECT_EQ(frame->Picture().mapBitmap->GetWidth(), size);
    }
    EXPECT_TRUE(dialogs.messages.empty());
}

TEST_F(MapCreationTest, RefusesOtherSizesAndLeavesEverythingAsItWas)
{
    Create();
    const wxBitmap* const before = frame->Picture().mapBitmap.get();
    for (const long size : {99L, 8001L, -1L, 0L, 5000000000L})
    {
        dialogs.messages.clear();
        settings->size = size;
        Create();
        ASSERT_EQ(dialogs.messages.size(), 1u) << size;
        EXPECT_EQ(dialogs.messages[0].text,
                  "Size must be between 100 and 8000 pixels.\nIt might fail with large pixel values.");
        EXPECT_EQ(dialogs.messages[0].caption, "Error");
        EXPECT_EQ(frame->Picture().mapBitmap.get(), before);
        EXPECT_TRUE(frame->Picture().mapReady);
        for (const int id : {1003, 5003, 1004})
            EXPECT_TRUE(Tools().GetToolEnabled(id)) << id;
    }
}

TEST_F(MapCreationTest, StopsWhenThereIsNoMemoryForTheMap)
{
    settings->size = 6000;
    {
        const ScarceMemory memory;
        Create();
    }
    ExpectStoppedWith("Error creating bitmap in function OnCreateMap0");
    EXPECT_FALSE(frame->Picture().mapReady);
    EXPECT_TRUE(frame->CreateMap());
}

TEST_F(MapCreationTest, StopsWhenASourcePictureCannotBeLoaded)
{
    settings->sourceBitmaps[0] = {true, "no such picture.png"};
    Create();
    ExpectStoppedWith("Error creating bitmap in function OnCreateMap1");
}

TEST_F(MapCreationTest, StopsWhenTheSecondSourcePictureCannotBeLoaded)
{
    settings->sourceBitmaps[1] = {true, home.Path("")};
    Create();
    ExpectStoppedWith("Error creating bitmap in function OnCreateMap2");
}

TEST_F(MapCreationTest, TakesNoTextForAPicture)
{
    home.Write("text.png", "This is no picture.");
    settings->sourceBitmaps[0] = {true, "text.png"};
    Create();
    ExpectStoppedWith("Error creating bitmap in function OnCreateMap1");
}

TEST_F(MapCreationTest, TakesNoTruncatedPicture)
{
    wxImage(64, 32).SaveFile(home.Path("whole.png"), wxBITMAP_TYPE_PNG);
    home.Write("half.png", home.Read("whole.png").substr(0, 40));
    settings->sourceBitmaps[0] = {true, "half.png"};
    Create();
    ExpectStoppedWith("Error creating bitmap in function OnCreateMap1");
}

TEST_F(MapCreationTest, CanBeTriedAgainAfterAStop)
{
    settings->sourceBitmaps[0] = {true, "no such picture.png"};
    Create();
    settings->sourceBitmaps[0].show = false;
    EXPECT_TRUE(frame->CreateMap());
    EXPECT_TRUE(Tools().GetToolEnabled(1003));
}

TEST_F(MapCreationTest, EnablesTheToolsAgainAfterASizeErrorEvenIfItWasStoppedBefore)
{
    settings->sourceBitmaps[0] = {true, "no such picture.png"};
    Create();
    settings->size = 99;
    EXPECT_FALSE(frame->CreateMap());
    for (const int id : {1003, 5003, 1004})
        EXPECT_TRUE(Tools().GetToolEnabled(id)) << id;
}

TEST_F(MapCreationTest, PaintsTheSecondPictureOverTheFirst)
{
    for (const auto& [name, red] : {std::pair{"first.png", 250}, {"second.bmp", 10}})
    {
        wxImage image(4, 2);
        image.SetRGB(wxRect(0, 0, 4, 2), static_cast<unsigned char>(red), 20, 30);
        image.SaveFile(home.Path(name));
    }
    settings->sourceBitmaps[0] = {true, "first.png"};
    settings->sourceBitmaps[1] = {true, home.Path("second.bmp")};
    Create();
    EXPECT_EQ(ColoursOf(*frame->Picture().mapBitmap)[100][130], render::OpaquePixel(10, 20, 30));
    settings->sourceBitmaps[1].show = false;
    Create();
    EXPECT_EQ(ColoursOf(*frame->Picture().mapBitmap)[100][130], render::OpaquePixel(250, 20, 30));
}

TEST_F(MapCreationTest, TakesTheCentreFromTheLocatorField)
{
    TypeLocator("qf56om");
    EXPECT_EQ(LocatorField().GetValue(), "QF56OM");
    EXPECT_EQ(settings->centreLoc, "QF56OM");
    EXPECT_NEAR(settings->centreLat, -33.479, 0.001);
    EXPECT_NEAR(settings->centreLon, 151.208, 0.001);
}

TEST_F(MapCreationTest, CompletesALocatorOfFourCharacters)
{
    TypeLocator("JO65");
    EXPECT_EQ(LocatorField().GetValue(), "JO65LL");
}

TEST_F(MapCreationTest, KeepsTheCentreWhenTheFieldHoldsNoLocator)
{
    for (const wxString& text :
         {wxString("ZZ99"), wxString(""), wxString('A', 500), wxString("JO65H"), wxString::FromUTF8("ØØ99ØØ")})
    {
        TypeLocator(text);
        EXPECT_EQ(settings->centreLat, 55.6875) << text;
        EXPECT_EQ(settings->centreLon, 12.625) << text;
        EXPECT_EQ(settings->centreLoc, "JO65HQ") << text;
        EXPECT_EQ(LocatorField().GetValue(), "JO65HQ") << text;
    }
}

TEST_F(MapCreationTest, NamesNoPlaceWhereNeitherTheFieldNorTheCentreIsOne)
{
    settings->centreLat = 200;
    TypeLocator("nowhere");
    EXPECT_EQ(LocatorField().GetValue(), "AA11RR");
    EXPECT_EQ(settings->centreLoc, "AA11RR");
    EXPECT_EQ(settings->centreLat, 200);
}

TEST_F(MapCreationTest, LeavesTheStoredCentreAloneWhenTheFieldIsUntouched)
{
    settings->centreLat = 10.25;
    Create();
    EXPECT_EQ(settings->centreLat, 10.25);
    EXPECT_EQ(settings->centreLoc, "JO65HQ");
}

TEST_F(MapCreationTest, BringsAnyCentreOntoTheGlobe)
{
    settings->centreLat = 200;
    settings->centreLon = -500;
    Create();
    EXPECT_EQ(Status(0), "Finished...");
}

TEST_F(MapCreationTest, TakesAnyZoom)
{
    for (const long zoom : {-5L, 0L, 50L, 30000L, 9223372036854775807L})
    {
        settings->zoom = zoom;
        Create();
        EXPECT_EQ(Status(0), "Finished...") << zoom;
    }
}

TEST_F(MapCreationTest, ForgetsTheOverlaysOfTheMapBefore)
{
    Create();
    Canvas().greylineBitmap = std::make_unique<wxBitmap>(10, 10);
    Canvas().propagationBitmap = std::make_unique<wxBitmap>(10, 10);
    Canvas().showGreyline = Canvas().showPropagation = true;
    Create();
    EXPECT_FALSE(frame->Picture().greylineBitmap || frame->Picture().propagationBitmap);
    EXPECT_FALSE(frame->Picture().showGreyline || frame->Picture().showPropagation);
}

TEST_F(MapCreationTest, BlendsImagesOntoTheMapByTheLayerRule)
{
    Create();
    wxImage layer(200, 200);
    layer.SetRGB(wxRect(0, 0, 200, 200), 100, 0, 0);
    wxImage map(200, 200);
    map.SetRGB(wxRect(0, 0, 200, 200), 200, 40, 0);
    frame->BlendLayer(layer, map, 300);
    const Colours colours = ColoursOf(*frame->Picture().mapBitmap);
    EXPECT_EQ(colours[0][50], render::OpaquePixel(200, 40, 0));
    EXPECT_EQ(colours[1][50], render::OpaquePixel(200 * 211 / 256 + 100 * 44 / 256, 40 * 211 / 256, 0));
}
} // namespace

#include "maker/MapMaker.h"

#include "render/MapPicture.h"
#include "tests/support/ScarceMemory.h"
#include "tests/support/TemporaryHome.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <wx/utils.h>

#include <algorithm>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <functional>
#include <utility>

namespace
{
using testing::AllOf;
using testing::Contains;
using testing::ElementsAre;
using testing::Not;
using testing::StartsWith;

bool SamePicture(const wxImage& one, const wxImage& other)
{
    const auto bytes = static_cast<std::size_t>(3 * one.GetWidth() * one.GetHeight());
    return one.GetSize() == other.GetSize() && std::memcmp(one.GetData(), other.GetData(), bytes) == 0;
}

/// Makes small maps and keeps what the listener is told, one line a call. No window is there.
class MapMakerTest : public testing::Test, protected MapListener
{
protected:
    MapMakerTest()
    {
        settings.size = 200;
        settings.meridians.show = settings.compass.show = settings.radials.show = false;
        settings.greyzone.show = false;
        settings.greyzone.timeMode = kOnce;
    }

    void OnCreationBegun() override { told.emplace_back("begun"); }
    void OnNewMap(int side) override { told.push_back("map of " + std::to_string(side)); }
    void OnStep(const wxString& text) override { told.push_back("step " + text.utf8_string()); }
    void OnSun(const wxString& text) override { told.push_back("sun " + text.utf8_string()); }
    void OnError(const wxString& text) override { told.push_back("error " + text.utf8_string()); }
    void OnWarning(const wxString& text) override { told.push_back("warning " + text.utf8_string()); }
    void OnRows(int done, int all) override
    {
        told.push_back("rows " + std::to_string(done) + " of " + std::to_string(all));
    }
    void OnRowsDone() override { told.emplace_back("rows done"); }
    void OnPictureChanged() override { told.emplace_back("changed"); }
    void OnGreylineShown() override { told.emplace_back("greyline"); }
    void OnPropagationBegun() override { told.emplace_back("propagation begun"); }
    void OnPropagationEnded() override { told.emplace_back("propagation ended"); }
    bool OnWaiting(std::chrono::milliseconds) override { return whileWaiting(); }
    bool OnDrawing(double done) override
    {
        doneWhenAsked.push_back(done);
        return goOnDrawing;
    }

    /// The map with a layer that is stopped as soon as it is asked about is the map with what came before.
    void ExpectTheBeginning(wxString& file, const std::string& whole, std::size_t before)
    {
        file = home.Write("whole", whole);
        goOnDrawing = true;
        EXPECT_EQ(maker.MakeMap(), MapMaker::Creation::Finished);
        ASSERT_GT(doneWhenAsked.size(), 2u);
        EXPECT_TRUE(std::ranges::is_sorted(doneWhenAsked));
        EXPECT_NEAR(doneWhenAsked[0], static_cast<double>(before) / static_cast<double>(whole.size()), 1e-9);
        EXPECT_LE(doneWhenAsked.back(), 1.0);
        const wxImage drawn = picture.mapBitmap->ConvertToImage();

        goOnDrawing = false;
        doneWhenAsked.clear();
        told.clear();
        EXPECT_EQ(maker.MakeMap(), MapMaker::Creation::Finished);
        EXPECT_EQ(doneWhenAsked.size(), 1u);
        EXPECT_EQ(told.back(), "step Finished...");
        const wxImage stopped = picture.mapBitmap->ConvertToImage();
        file = home.Write("beginning", whole.substr(0, before));
        EXPECT_EQ(maker.MakeMap(), MapMaker::Creation::Finished);
        const wxImage beginning = picture.mapBitmap->ConvertToImage();
        EXPECT_TRUE(SamePicture(stopped, beginning));
        EXPECT_FALSE(SamePicture(stopped, drawn));
    }

    /// Makes a map with the outside program's stand-in.
    void RunStandIn(const char* behaviour)
    {
        WithStandIn(behaviour, [this] { EXPECT_EQ(maker.MakeMap(), MapMaker::Creation::Finished); });
    }

    void WithStandIn(const char* behaviour, const std::function<void()>& act)
    {
        settings.propagation.show = true;
        settings.propagation.grid = 0;
        settings.propagation.directory = home.Path("data");
        std::filesystem::create_directories(home.Path("data/areadata/default").utf8_string());
        wxString path;
        wxGetEnv("PATH", &path);
        wxSetEnv("PATH", KAV_STAND_IN ":" + path);
        wxSetEnv("KAV_STAND_IN", behaviour);
        act();
        wxSetEnv("PATH", path);
        wxUnsetEnv("KAV_STAND_IN");
    }

    /// The real result, of which only the first lines are left.
    wxString CutResult(int lines) const
    {
        std::ifstream whole(KAV_TEST_DATA "/area_36x36.vg1");
        std::string text;
        for (std::string line; lines-- > 0 && std::getline(whole, line);)
            text += line + "\n";
        return home.Write("cut.vg1", text);
    }

    const TemporaryHome home;
    Settings settings = DefaultSettings();
    MapPicture picture;
    MapMaker maker{settings, picture, *this};
    std::vector<std::string> told;
    int asked = 0;
    bool goOnDrawing = true;
    std::vector<double> doneWhenAsked;
    std::function<bool()> whileWaiting = [] { return true; };
};

TEST_F(MapMakerTest, TellsItsStepsInTheirOrder)
{
    settings.compass.show = true;
    settings.compass.text.show = false;
    EXPECT_EQ(maker.MakeMap(), MapMaker::Creation::Finished);
    EXPECT_THAT(told, ElementsAre("step Creating Map", "begun", "map of 200", "rows 0 of 200", "rows 100 of 200",
                                  "changed", "rows 200 of 200", "changed", "rows done", "step Drawing Compass...",
                                  "changed", "step Finished..."));
    EXPECT_TRUE(picture.mapReady);
}

TEST_F(MapMakerTest, LeavesEverythingAsItWasForAnImpossibleSize)
{
    ASSERT_EQ(maker.MakeMap(), MapMaker::Creation::Finished);
    const wxBitmap* const before = picture.mapBitmap.get();
    told.clear();
    for (const long size : {99L, 8001L})
    {
        settings.size = size;
        EXPECT_EQ(maker.MakeMap(), MapMaker::Creation::ImpossibleSize);
    }
    EXPECT_EQ(picture.mapBitmap.get(), before);
    EXPECT_TRUE(picture.mapReady);
    EXPECT_EQ(told.size(), 2u);
    EXPECT_THAT(told, testing::Each(StartsWith("error Size must be between 100 and 8000 pixels.")));
}

TEST_F(MapMakerTest, StopsAtABasePictureThatCannotBeLoaded)
{
    settings.sourceBitmaps[1] = {true, "gone.png"};
    EXPECT_EQ(maker.MakeMap(), MapMaker::Creation::Stopped);
    EXPECT_EQ(told.back(), "error Error creating bitmap in function OnCreateMap2");
}

TEST_F(MapMakerTest, StopsTheLinesOfAFileWhenTold)
{
    std::string points;
    for (int i = 0; i < 300; ++i) // a line that wanders round the centre
        for (const int number : {i > 0 ? 100 : 1000, 3300 + 10 * (i % 7), 800 + 10 * i})
            points += {static_cast<char>(number & 255), static_cast<char>(number >> 8)};
    settings.borders[0].show = true;
    ExpectTheBeginning(settings.borders[0].file, points, 63 * 6);
}

TEST_F(MapMakerTest, StopsTheLabelsOfAFileWhenTold)
{
    std::string lines;
    for (int i = 0; i < 300; ++i)
        lines += "id;x;City;DK;" + std::to_string(100 + i % 70).substr(1) + ";" +
                 std::to_string(100 + i % 50).substr(1) + "\n";
    settings.texts[0].show = true;
    ExpectTheBeginning(settings.texts[0].file, lines, lines.size() / 300 * 63);
}

TEST_F(MapMakerTest, StopsTheSquaresOfAFileWhenTold)
{
    std::string names;
    for (int i = 0; i < 100; ++i)
        names += std::string("JO") + static_cast<char>('0' + i / 10) + static_cast<char>('0' + i % 10) + " ";
    settings.plotSquares[0].show = true;
    ExpectTheBeginning(settings.plotSquares[0].file, names, 63);
}

TEST_F(MapMakerTest, TellsTheSunsPlaceAndThatTheGreylineIsShown)
{
    settings.greyzone.show = true;
    settings.greyzone.once = {2026, 2, 20, 12, 0, 0};
    EXPECT_EQ(maker.MakeMap(), MapMaker::Creation::Finished);
    EXPECT_THAT(told, Contains(StartsWith("sun 2026-03-20 12:00 Z | SunAz ")));
    EXPECT_THAT(told, Contains("greyline"));
    EXPECT_TRUE(picture.showGreyline);
}

TEST_F(MapMakerTest, AsksWhileVoacaplRunsAndEndsItWhenTold)
{
    whileWaiting = [this] { return ++asked < 5; };
    RunStandIn("hangs");
    EXPECT_EQ(asked, 5);
    EXPECT_THAT(told, AllOf(Contains("propagation begun"), Contains("propagation ended")));
    EXPECT_THAT(told, Not(Contains(StartsWith("error")))); // who ends it says so
    EXPECT_FALSE(picture.showPropagation);
}

TEST_F(MapMakerTest, TellsThatVoacaplFailed)
{
    RunStandIn("fails");
    EXPECT_THAT(told, Contains("error Error calling VOACAP"));
    EXPECT_FALSE(picture.showPropagation);
}

TEST_F(MapMakerTest, HidesThePreviousOverlayWhenThereIsNoOther)
{
    RunStandIn("");
    ASSERT_TRUE(picture.showPropagation);
    for (const std::string behaviour : {"fails", "no result", "hangs"})
    {
        whileWaiting = [&behaviour] { return behaviour != "hangs"; };
        const wxBitmap* const previous = picture.propagationBitmap.get();
        picture.showPropagation = true;
        WithStandIn(behaviour.c_str(), [this] { maker.DrawPropagation(true); });
        EXPECT_EQ(picture.propagationBitmap.get(), previous) << behaviour;
        EXPECT_FALSE(picture.showPropagation) << behaviour;
    }
}

TEST_F(MapMakerTest, TellsThatThereIsNoMemoryForTheOverlay)
{
    settings.size = 6000;
    ASSERT_EQ(maker.MakeMap(), MapMaker::Creation::Finished);
    settings.propagation.useExternalResult = true;
    settings.propagation.externalResult = KAV_TEST_DATA "/area_36x36.vg1";
    picture.showPropagation = true;
    told.clear();
    {
        const ScarceMemory memory;
        maker.DrawPropagation(true);
    }
    EXPECT_THAT(told, Contains("error Error creating bitmap original function Prop").Times(1));
    EXPECT_FALSE(picture.showPropagation);
}

TEST_F(MapMakerTest, TakesOverThatVoacapWasRun)
{
    settings.propagation.engine = 0;
    RunStandIn("");
    EXPECT_EQ(settings.propagation.engine, 1);
}

TEST_F(MapMakerTest, DrawsNoOverlayWhileOneIsBeingMade)
{
    settings.greyzone.show = true;
    bool isActing = false;
    whileWaiting = [this, &isActing]
    {
        if (std::exchange(isActing, true))
            return false; // asked by a second run
        told.clear();
        maker.DrawGreyline();
        maker.DrawPropagation(true);
        EXPECT_THAT(told, testing::IsEmpty());
        isActing = false;
        if (++asked == 3)
            home.Write("data/go on", "");
        return true;
    };
    RunStandIn("waits");
    EXPECT_GE(asked, 3);
    EXPECT_TRUE(picture.showPropagation);
    told.clear();
    maker.DrawGreyline();
    EXPECT_THAT(told, Contains(StartsWith("sun ")));
}

TEST_F(MapMakerTest, WarnsOfAResultThatIsNotWholeAndDrawsIt)
{
    settings.propagation.show = settings.propagation.useExternalResult = true;
    settings.propagation.externalResult = KAV_TEST_DATA "/area_36x36.vg1";
    ASSERT_EQ(maker.MakeMap(), MapMaker::Creation::Finished);
    EXPECT_TRUE(picture.showPropagation);
    EXPECT_THAT(told, Not(Contains(StartsWith("warning"))));
    settings.propagation.externalResult = CutResult(800);
    ASSERT_EQ(maker.MakeMap(), MapMaker::Creation::Finished);
    EXPECT_TRUE(picture.showPropagation);
    EXPECT_THAT(told, Contains(StartsWith("warning Result not whole: ")).Times(1));
}

TEST_F(MapMakerTest, DrawsAFileOfLabelsThatIsNotThereAsNothingButAnError)
{
    settings.texts[0].show = true;
    settings.texts[0].file = "gone.dat";
    EXPECT_EQ(maker.MakeMap(), MapMaker::Creation::Finished);
    EXPECT_THAT(told, Contains("error Error opening file gone.dat"));
    EXPECT_THAT(told, Not(Contains("step Plotting Text...")));
}
} // namespace

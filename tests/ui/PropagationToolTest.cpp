#include "tests/support/Pictures.h"
#include "tests/support/VoacapFixture.h"

#include <gmock/gmock.h>

#include <wx/utils.h>

#include <algorithm>
#include <filesystem>

namespace
{
using testing::HasSubstr;

constexpr std::time_t kTwelveThirty = 1774009800; // 2026-03-20 12:30:00 UTC

/// A main window with the stand-in of voacapl, in a minute in which a tick draws nothing anew.
class PropagationToolTest : public VoacapFixture
{
protected:
    PropagationToolTest() { clock.now = kTwelveThirty; }

    /// How often the stand-in was run.
    long Runs() const
    {
        const std::string runs = home.Read("data/runs.txt");
        return std::ranges::count(runs, '\n');
    }

    bool Shown() const { return frame->Picture().showPropagation; }
};

TEST_F(PropagationToolTest, DrawsTheOverlayWithTheMapAndEnablesItsTools)
{
    settings->propagation.frequency = 5;
    settings->propagation.parameter = 1;
    Create();
    EXPECT_EQ(dialogs.Texts(), "");
    EXPECT_EQ(Runs(), 1);
    ASSERT_TRUE(frame->Picture().propagationBitmap);
    EXPECT_TRUE(Shown());
    EXPECT_EQ(Status(0), "Finished...");
    for (const int id : {1005, 1010, 1013, 1002, 1014, 1015, 1016})
        EXPECT_TRUE(Tools().GetToolEnabled(id)) << id;
    EXPECT_TRUE(Tools().GetToolState(1010));
    EXPECT_TRUE(Tools().GetToolState(1014));
}

TEST_F(PropagationToolTest, SavesTheOverlayWithTheMap)
{
    Create();
    dialogs.chosenPath = home.Path("map.png");
    ClickTool(ui::kIdSave);
    wxBitmap saved(home.Path("map.png"), wxBITMAP_TYPE_PNG);
    ASSERT_TRUE(saved.IsOk());
    EXPECT_FALSE(SamePicture(ColoursOf(saved), ColoursOf(*frame->Picture().mapBitmap)));
    wxBitmap shown(frame->Picture().Compose());
    EXPECT_TRUE(SamePicture(ColoursOf(saved), ColoursOf(shown)));
}

TEST_F(PropagationToolTest, RunsAgainForAClickOnABand)
{
    Create();
    ClickTool(1007);
    EXPECT_EQ(Runs(), 2);
    EXPECT_EQ(settings->propagation.frequency, 2);
    EXPECT_THAT(home.Read("data/areadata/default/kavdex.voa"), HasSubstr("Freqs    : 10.100"));
    EXPECT_TRUE(Shown());
}

TEST_F(PropagationToolTest, RunsAgainForAClickOnAParameter)
{
    Create();
    wxBitmap before(*frame->Picture().propagationBitmap);
    ClickTool(1014);
    EXPECT_EQ(Runs(), 2);
    EXPECT_FALSE(SamePicture(ColoursOf(*frame->Picture().propagationBitmap), ColoursOf(before)));
}

TEST_F(PropagationToolTest, FollowsTheClockInTheMinuteAfterHalfPastOnly)
{
    Create();
    Tick();
    EXPECT_EQ(Runs(), 1);
    clock.now += 60;
    Tick();
    EXPECT_EQ(Runs(), 2);
    Tick();
    EXPECT_EQ(Runs(), 3);
    clock.now += 60;
    Tick();
    EXPECT_EQ(Runs(), 3);
}

TEST_F(PropagationToolTest, StartsNoSecondRunWhileOneIsGoingOn)
{
    Create();
    wxSetEnv("KAV_STAND_IN", "slow");
    clock.now += 60;
    int handled = 0;
    frame->CallAfter(
        [&]
        {
            ++handled;
            ClickTool(1008);
            Tick();
        });
    ClickTool(1006);
    EXPECT_EQ(handled, 1); // while it ran, events went on
    EXPECT_EQ(Runs(), 2);
    EXPECT_TRUE(Shown());
}

TEST_F(PropagationToolTest, HidesTheOverlayOfBeforeWhenARunFails)
{
    Create();
    const wxBitmap* const before = frame->Picture().propagationBitmap.get();
    wxSetEnv("KAV_STAND_IN", "fails");
    ClickTool(1006);
    EXPECT_EQ(dialogs.Texts(), "Error calling VOACAP\n");
    EXPECT_FALSE(Shown());
    EXPECT_EQ(frame->Picture().propagationBitmap.get(), before);
    EXPECT_TRUE(frame->Picture().mapReady);
}

TEST_F(PropagationToolTest, FinishesTheMapWhenVoacaplIsMissing)
{
    wxSetEnv("PATH", "/nowhere");
    Create();
    EXPECT_EQ(dialogs.Texts(), "Error calling VOACAP\n");
    EXPECT_FALSE(Shown());
    EXPECT_EQ(Status(0), "Finished...");
    EXPECT_TRUE(Tools().GetToolEnabled(ui::kIdCreate));
}

TEST_F(PropagationToolTest, NeedsNoVoacaplForAnExternalResult)
{
    Create();
    std::filesystem::rename(home.Path("data/areadata/default/kavdex.vg1").utf8_string(),
                            home.Path("mine.vg1").utf8_string());
    wxSetEnv("PATH", "/nowhere");
    settings->propagation.useExternalResult = true;
    settings->propagation.externalResult = home.Path("mine.vg1");
    Create();
    EXPECT_EQ(dialogs.Texts(), "");
    EXPECT_TRUE(Shown());
    EXPECT_EQ(Runs(), 1);
}

TEST_F(PropagationToolTest, RunsOnceForATimeChosenOnce)
{
    settings->greyzone.timeMode = kOnce;
    Create();
    EXPECT_TRUE(Shown());
    EXPECT_EQ(Runs(), 1);
}

TEST_F(PropagationToolTest, ForgetsTheOverlayWithTheNextMap)
{
    Create();
    settings->propagation.show = false;
    Create();
    EXPECT_FALSE(frame->Picture().propagationBitmap);
    EXPECT_FALSE(Tools().GetToolEnabled(1006));
}
} // namespace

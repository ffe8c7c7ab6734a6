#include "tests/support/FrameFixture.h"
#include "tests/support/HeldClock.h"
#include "tests/support/ScarceMemory.h"

#include <gmock/gmock.h>

#include <climits>
#include <cstring>

namespace
{
using testing::HasSubstr;
using testing::Not;

/// 2026-03-20 12:00:00 UTC: the hour angle at Greenwich is a little below 360 degrees.
constexpr std::time_t kEquinoxNoon = 1774008000;

class GreylineToolTest : public FrameFixture
{
protected:
    void SetUp() override
    {
        FrameFixture::SetUp();
        settings->greyzone.show = true;
    }

    void Create() { ClickTool(ui::kIdCreate); }

    /// A click on the tool, which the toolkit toggles before it tells.
    void Toggle(bool on)
    {
        Tools().ToggleTool(ui::kIdGreyline, on);
        ClickTool(ui::kIdGreyline, on);
    }

    /// The greyline timer fires.
    void Tick()
    {
        wxTimer timer(frame, ui::kIdGreylineTimer);
        wxTimerEvent event(timer);
        frame->GetEventHandler()->ProcessEvent(event);
    }

    const wxBitmap* Overlay() const { return frame->Picture().greylineBitmap.get(); }
    bool Shown() const { return frame->Picture().showGreyline; }
    bool Checked() const { return Tools().GetToolState(ui::kIdGreyline); }

    HeldClock clock{kEquinoxNoon};
};

TEST_F(GreylineToolTest, IsCheckedAndTheGreylineShownAfterCreation)
{
    Create();
    ASSERT_TRUE(Overlay());
    EXPECT_TRUE(Shown());
    EXPECT_TRUE(Checked());
    EXPECT_EQ(Overlay()->GetSize(), wxSize(200, 200));
    EXPECT_EQ(Status(0), "Finished...");
}

TEST_F(GreylineToolTest, NamesTheTimeAndTheSunWithThreeDecimals)
{
    Create();
    EXPECT_TRUE(Status(1).StartsWith("2026-03-20 12:00 Z | SunAz ")) << Status(1);
    EXPECT_THAT(Status(1).ToStdString(),
                testing::ContainsRegex("SunAz [0-9]+\\.[0-9]{3} \\| SunEl -?[0-9]+\\.[0-9]{3}$"));
}

TEST_F(GreylineToolTest, OnlyTellsTheTimeWhileTheSunStaysInItsDegree)
{
    Create();
    const wxBitmap* const drawn = Overlay();
    clock.now += 60;
    Tick();
    EXPECT_TRUE(Status(1).StartsWith("2026-03-20 12:01 Z"));
    EXPECT_EQ(Overlay(), drawn);
    EXPECT_EQ(Status(0), "Finished...");
}

TEST_F(GreylineToolTest, IsDrawnAgainWhenTheSunEntersAnotherDegree)
{
    Create();
    wxBitmap before(*Overlay());
    clock.now += 300;
    Tick();
    EXPECT_FALSE(Overlay()->IsSameAs(before));
    EXPECT_TRUE(Shown());
    EXPECT_EQ(Status(0), "");
}

TEST_F(GreylineToolTest, HidesAndShowsTheSameOverlay)
{
    Create();
    const wxBitmap* const drawn = Overlay();
    Toggle(false);
    EXPECT_FALSE(Shown());
    Toggle(true);
    EXPECT_TRUE(Shown());
    EXPECT_EQ(Overlay(), drawn);
}

TEST_F(GreylineToolTest, StaysOffWhenTheClockTicks)
{
    Create();
    Toggle(false);
    clock.now += 3600;
    Tick();
    EXPECT_FALSE(Shown());
    EXPECT_FALSE(Checked());
    EXPECT_TRUE(Status(1).StartsWith("2026-03-20 13:00 Z"));
}

TEST_F(GreylineToolTest, DrawsTheGreylineOfAMapWithoutOne)
{
    settings->greyzone.show = false;
    Create();
    EXPECT_FALSE(Overlay());
    EXPECT_FALSE(Checked());
    Toggle(true);
    EXPECT_TRUE(Overlay());
    EXPECT_TRUE(Shown());
}

TEST_F(GreylineToolTest, CanBeSwitchedFast)
{
    Create();
    for (int i = 0; i < 20; ++i)
    {
        Toggle(i % 2 == 1);
        Settle();
    }
    EXPECT_TRUE(Shown());
}

TEST_F(GreylineToolTest, DrawsANewMapsGreylineAlsoInTheSameDegree)
{
    Create();
    settings->size = 150;
    Create();
    ASSERT_TRUE(Overlay());
    EXPECT_EQ(Overlay()->GetSize(), wxSize(150, 150));
    EXPECT_TRUE(Shown());
}

TEST_F(GreylineToolTest, BelongsToTheMapEvenIfTheSettingsHaveChanged)
{
    Create();
    settings->size = 500;
    settings->centreLat = -80;
    clock.now += 3600;
    Tick();
    EXPECT_EQ(Overlay()->GetSize(), wxSize(200, 200));
}

TEST_F(GreylineToolTest, DrawsOnceForTheChosenTime)
{
    settings->greyzone.timeMode = kOnce;
    settings->greyzone.once = {2024, 5, 20, 6, 30, 0};
    Create();
    EXPECT_TRUE(Status(1).StartsWith("2024-06-20 06:30 Z | ")) << Status(1);
    EXPECT_TRUE(Shown());
}

TEST_F(GreylineToolTest, DrawsNothingInAnotherTimeMode)
{
    settings->greyzone.timeMode = 2;
    Create();
    EXPECT_FALSE(Overlay());
    EXPECT_EQ(Status(1), "");
    EXPECT_TRUE(Checked()); // as the setting says
    Toggle(true);
    EXPECT_FALSE(Overlay());
}

TEST_F(GreylineToolTest, TakesTimesThatDoNotExist)
{
    settings->greyzone.timeMode = kOnce;
    for (const UtcTime& time :
         {UtcTime{2026, 12, 1, 0, 0, 0}, UtcTime{2026, -1, 1, 0, 0, 0}, UtcTime{2026, 1, 31, 0, 0, 0},
          UtcTime{2026, 1, 0, 0, 0, 0}, UtcTime{2026, 1, 1, 99, 0, 0}, UtcTime{0, 0, 1, 0, 0, 0},
          UtcTime{9999, 11, 31, 23, 59, 0}, UtcTime{INT_MAX, INT_MAX, INT_MIN, INT_MAX, INT_MIN, 0}})
    {
        settings->greyzone.once = time;
        Create();
        EXPECT_EQ(Status(0), "Finished...");
        EXPECT_TRUE(Overlay());
    }
}

TEST_F(GreylineToolTest, IsSavedAsItIsShown)
{
    Create();
    wxImage with = frame->Picture().Compose();
    Toggle(false);
    wxImage without = frame->Picture().Compose();
    EXPECT_NE(0, std::memcmp(with.GetData(), without.GetData(), 3 * 200 * 200));
}

TEST_F(GreylineToolTest, FollowsTheClockByItself)
{
    Create();
    clock.now += 7200;
    EXPECT_TRUE(Await([this] { return Status(1).StartsWith("2026-03-20 14:00 Z"); })) << Status(1);
}

TEST_F(GreylineToolTest, NoLongerFollowsTheClockAfterAMapForOnce)
{
    Create();
    settings->greyzone.timeMode = kOnce;
    settings->greyzone.once = {2024, 5, 20, 6, 30, 0};
    Create();
    settings->greyzone.timeMode = kRealTime;
    const wxString before = Status(1);
    for (int i = 0; i < 30; ++i)
    {
        wxMilliSleep(50);
        Settle();
    }
    EXPECT_EQ(Status(1), before);
}

TEST_F(GreylineToolTest, SaysWhenThereIsNoMemoryForTheGreylineAndLeavesItHidden)
{
    settings->size = 6000;
    settings->greyzone.show = false;
    Create();
    {
        const ScarceMemory memory;
        Toggle(true);
    }
    EXPECT_EQ(dialogs.Texts(), "Error creating bitmap original function DrawSunTerm2\n");
    EXPECT_FALSE(Shown());
    EXPECT_TRUE(frame->Picture().mapReady);
}
} // namespace

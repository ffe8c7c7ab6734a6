#include "tests/support/FrameFixture.h"
#include "tests/support/HeldClock.h"
#include "ui/options/KavMapOptions.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>

namespace
{
using testing::ElementsAre;
using testing::Gt;

/// 2026-03-20 12:30:37 UTC.
constexpr std::time_t kStart = 1774009837;

/// The main window with its timers in reach.
class OpenFrame : public WxKavFrame
{
public:
    using WxKavFrame::WxKavFrame;

    using WxKavFrame::m_greylineTimer;
    using WxKavFrame::m_propagationTimer;
};

/// A main window under a clock that stands still, with the stand-in of voacapl.
class TimersTest : public FrameFixture
{
protected:
    void SetUp() override
    {
        wxGetEnv("PATH", &m_pathBefore);
        wxSetEnv("PATH", KAV_STAND_IN ":" + m_pathBefore);
        auto fresh = std::make_unique<Configuration>("Kavdex");
        settings = fresh.get();
        settings->size = 120;
        HideLayers();
        settings->propagation.grid = 0;
        settings->propagation.directory = home.Path("data");
        std::filesystem::create_directories(home.Path("data/areadata/default").utf8_string());
        frame = open = new OpenFrame(nullptr, std::move(fresh));
        frame->Show();
        Settle();
    }
    void TearDown() override
    {
        FrameFixture::TearDown();
        wxSetEnv("PATH", m_pathBefore);
        wxUnsetEnv("KAV_STAND_IN");
    }

    static int PeriodOf(const wxTimer& timer) { return timer.IsRunning() ? timer.GetInterval() : 0; }

    /// The periods of the greyline's and of the propagation's timer in milliseconds; 0 is stopped.
    std::vector<int> Periods() const { return {PeriodOf(open->m_greylineTimer), PeriodOf(open->m_propagationTimer)}; }

    void StartBoth()
    {
        settings->greyzone.show = settings->propagation.show = true;
        settings->greyzone.timeMode = kRealTime;
        ASSERT_TRUE(frame->CreateMap());
        ASSERT_THAT(Periods(), ElementsAre(1000, 60000));
    }

    void Tick(int id)
    {
        wxTimer timer(frame, id);
        wxTimerEvent event(timer);
        frame->GetEventHandler()->ProcessEvent(event);
    }

    void Toggle(bool on)
    {
        Tools().ToggleTool(1017, on);
        ClickTool(1017, on);
    }

    /// Ends the next options dialog in its place.
    void AnswerOptions(int answer, bool changesSomething)
    {
        dialogs.onOtherDialog = [this, answer, changesSomething](wxDialog&)
        {
            settings->resetOverlays = changesSomething;
            return answer;
        };
    }

    long Runs() const
    {
        const std::string runs = home.Read("data/runs.txt");
        return std::ranges::count(runs, '\n');
    }

    OpenFrame* open = nullptr;

    HeldClock clock{kStart};

private:
    wxString m_pathBefore;
};

TEST_F(TimersTest, BelongToTheWindowAndStandStillBeforeTheFirstMap)
{
    EXPECT_THAT(Periods(), ElementsAre(0, 0));
    EXPECT_EQ(open->m_greylineTimer.GetId(), 101);
    EXPECT_EQ(open->m_propagationTimer.GetId(), 102);
    for (const wxTimer* timer : {&open->m_greylineTimer, &open->m_propagationTimer})
        EXPECT_EQ(timer->GetOwner(), frame);
}

TEST_F(TimersTest, RunAfterACreationAsTheSettingsSay)
{
    struct Case
    {
        bool greyline;
        bool propagation;
        int timeMode;
        std::vector<int> periods;
    };
    const std::vector<Case> cases{{true, true, 0, {1000, 60000}}, {true, false, 0, {1000, 0}},
                                  {false, true, 0, {0, 60000}},   {false, false, 0, {0, 0}},
                                  {true, true, 1, {0, 0}},        {true, true, 2, {0, 0}}};
    // After one another, and each after a map for which both ran.
    for (const bool bothRanBefore : {false, true})
        for (const Case& one : cases)
        {
            if (bothRanBefore)
                StartBoth();
            settings->greyzone.show = one.greyline;
            settings->propagation.show = one.propagation;
            settings->greyzone.timeMode = one.timeMode;
            ASSERT_TRUE(frame->CreateMap());
            EXPECT_EQ(Periods(), one.periods) << one.greyline << one.propagation << one.timeMode << bothRanBefore;
        }
}

TEST_F(TimersTest, RepeatThemselves)
{
    StartBoth();
    EXPECT_FALSE(open->m_greylineTimer.IsOneShot() || open->m_propagationTimer.IsOneShot());
}

TEST_F(TimersTest, StandStillWhileAMapIsCreated)
{
    StartBoth();
    std::vector<std::vector<int>> periods;
    frame->onStep = [&](const wxString& step)
    {
        if (step == "Drawing Lines...")
            periods.push_back(Periods());
    };
    settings->meridians.show = true;
    ASSERT_TRUE(frame->CreateMap());
    EXPECT_THAT(periods, ElementsAre(ElementsAre(0, 0)));
}

TEST_F(TimersTest, StandStillAfterAnErrorButRunOnAfterAWrongSize)
{
    StartBoth();
    settings->size = 99;
    EXPECT_FALSE(frame->CreateMap());
    EXPECT_THAT(Periods(), ElementsAre(1000, 60000));
    settings->size = 120;
    settings->sourceBitmaps[0] = {true, "no such picture.png"};
    EXPECT_FALSE(frame->CreateMap());
    EXPECT_THAT(Periods(), ElementsAre(0, 0));
}

TEST_F(TimersTest, StartWithTheToolWhereThereIsNoGreylineYet)
{
    settings->greyzone.show = false;
    settings->greyzone.timeMode = kRealTime;
    ASSERT_TRUE(frame->CreateMap());
    Toggle(true);
    EXPECT_THAT(Periods(), ElementsAre(1000, 0));
    EXPECT_TRUE(frame->Picture().showGreyline);
    Toggle(false);
    EXPECT_THAT(Periods(), ElementsAre(1000, 0));
    open->m_greylineTimer.Stop();
    Toggle(true); // there is one already
    EXPECT_THAT(Periods(), ElementsAre(0, 0));
}

TEST_F(TimersTest, StopOrStayWithTheToolInAnotherTimeMode)
{
    settings->greyzone.show = false;
    ASSERT_TRUE(frame->CreateMap());
    open->m_greylineTimer.Start(1000);
    settings->greyzone.timeMode = 2;
    Toggle(true);
    EXPECT_THAT(Periods(), ElementsAre(1000, 0));
    EXPECT_FALSE(frame->Picture().greylineBitmap);
    settings->greyzone.timeMode = kOnce;
    Toggle(true);
    EXPECT_THAT(Periods(), ElementsAre(0, 0));
    EXPECT_TRUE(frame->Picture().greylineBitmap);
}

TEST_F(TimersTest, StopOnlyForOptionsThatHaveChanged)
{
    StartBoth();
    AnswerOptions(wxID_OK, false);
    ClickTool(1004);
    EXPECT_THAT(Periods(), ElementsAre(1000, 60000));
    AnswerOptions(wxID_CANCEL, true);
    ClickTool(1004);
    EXPECT_THAT(Periods(), ElementsAre(1000, 60000));
    EXPECT_TRUE(frame->Picture().showGreyline && frame->Picture().showPropagation);
    EXPECT_TRUE(Tools().GetToolEnabled(1005));
    AnswerOptions(wxID_OK, true);
    settings->propagation.frequency = 7;
    settings->propagation.parameter = 2;
    ClickTool(1004);
    EXPECT_THAT(Periods(), ElementsAre(0, 0));
    EXPECT_FALSE(frame->Picture().showGreyline || frame->Picture().showPropagation);
    EXPECT_EQ(Status(1), "");
    for (const int id : {1005, 1006, 1007, 1008, 1009, 1010, 1011, 1012, 1013, 1002, 1014, 1015, 1016})
    {
        EXPECT_FALSE(Tools().GetToolEnabled(id)) << id;
        EXPECT_EQ(Tools().GetToolState(id), id == 1012 || id == 1015) << id;
    }
}

TEST_F(TimersTest, TellTheTimeAndTheSunOfTheStation)
{
    settings->centreLat = 10.3125;
    settings->centreLon = -50.625;
    StartBoth();
    // At the equinox the sun is 7.4 minutes behind the clock: at 12:30:37 it stands over 5.80 W, 0.04 S, 44.8 degrees
    // east of the station; sin(el) = cos(10.3) cos(44.8), tan(az) = -tan(44.8) / sin(10.3).
    double azimuth = 0;
    double elevation = 0;
    ASSERT_EQ(std::sscanf(Status(1).utf8_str(), "2026-03-20 12:30 Z | SunAz %lf | SunEl %lf", &azimuth, &elevation), 2)
        << Status(1);
    EXPECT_NEAR(azimuth, 100.2, 0.2);
    EXPECT_NEAR(elevation, 44.2, 0.2);
}

TEST_F(TimersTest, TellEveryNumberOfATime)
{
    settings->greyzone.show = true;
    settings->greyzone.timeMode = kOnce;
    const std::vector<std::pair<UtcTime, std::string>> times{
        {{2024, 5, 20, 6, 31, 0}, "2024-06-20 06:31 Z | SunAz "},
        {{987, 10, 9, 23, 4, 0}, "0987-11-09 23:04 Z | SunAz "},
        {{2026, 2147483647, 1, 0, 0, 0}, "2026-2147483647-01 00:00 Z | SunAz "},
        {{2026, 2147483646, 1, 0, 0, 0}, "2026-2147483647-01 00:00 Z | SunAz "}};
    for (const auto& [time, text] : times)
    {
        settings->greyzone.once = time;
        ASSERT_TRUE(frame->CreateMap());
        EXPECT_THAT(Status(1).utf8_string(), testing::StartsWith(text));
    }
}

TEST_F(TimersTest, DrawNothingWithoutAMap)
{
    Tick(101);
    Tick(102);
    EXPECT_EQ(Status(0), "Kavmap By QQ0QQQ");
    EXPECT_EQ(Status(1), wxVERSION_STRING);
    EXPECT_EQ(Runs(), 0);
}

TEST_F(TimersTest, DrawNoGreylineThatWasNotAskedFor)
{
    settings->greyzone.show = false;
    ASSERT_TRUE(frame->CreateMap());
    Tick(101);
    EXPECT_FALSE(frame->Picture().greylineBitmap);
    EXPECT_FALSE(frame->Picture().showGreyline || Tools().GetToolState(1017));
    EXPECT_THAT(Status(1).utf8_string(), testing::StartsWith("2026-03-20 12:30 Z"));
}

TEST_F(TimersTest, LetVoacaplRunOnlyInTheMinuteAfterHalfPast)
{
    StartBoth();
    RecordSteps();
    for (int minute = 0; minute < 60; ++minute)
    {
        clock.now = kStart - 30 * 60 + minute * 60;
        const long before = Runs();
        Tick(102);
        EXPECT_EQ(Runs() - before, minute == 31) << minute;
    }
    EXPECT_EQ(steps.front(), "Drawing Prop...");
    EXPECT_EQ(Status(0), "");
}

TEST_F(TimersTest, DrawNothingWhileVoacaplRuns)
{
    StartBoth();
    const wxBitmap* const greyline = frame->Picture().greylineBitmap.get();
    const wxString told = Status(1);
    wxSetEnv("KAV_STAND_IN", "slow");
    int ticks = 0;
    frame->CallAfter(
        [&]
        {
            clock.now += 3600 + 60; // another degree, and minute 31
            RecordSteps();
            Tick(101);
            Tick(102);
            ++ticks;
            EXPECT_EQ(Status(1), told);
            EXPECT_EQ(frame->Picture().greylineBitmap.get(), greyline);
            EXPECT_TRUE(steps.empty());
        });
    ClickTool(1006);
    EXPECT_EQ(ticks, 1);
    EXPECT_EQ(Runs(), 2);
}

TEST_F(TimersTest, DrawTheGreylineBeforePropagationAndOfferItsToolMeanwhile)
{
    settings->greyzone.show = settings->propagation.show = true;
    RecordSteps();
    const auto record = frame->onStep;
    bool isOffered = false;
    frame->onStep = [&](const wxString& step)
    {
        record(step);
        if (step == "Drawing Prop...")
            isOffered = Tools().GetToolEnabled(1017) && Tools().GetToolState(1017) && frame->Picture().showGreyline;
    };
    ASSERT_TRUE(frame->CreateMap());
    ASSERT_THAT(steps.size(), Gt(4u));
    EXPECT_EQ(steps[0], "Creating Map");
    EXPECT_EQ(steps[1], "Drawing SunTerm...");
    EXPECT_EQ(steps[2], "Drawing Prop...");
    EXPECT_EQ(steps.back(), "Finished...");
    EXPECT_THAT(steps, testing::Contains("Reading file..."));
    EXPECT_TRUE(isOffered);
}
} // namespace

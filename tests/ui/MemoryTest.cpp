#include "tests/support/FrameFixture.h"
#include "tests/support/HeapInUse.h"
#include "tests/support/HeldClock.h"
#include "tests/support/ScarceMemory.h"

namespace
{
constexpr int kMapSize = 120;

/// What the toolkit's caches (glyphs, styles, events not yet answered) were seen to gain or lose, once and for good,
/// was 0.9 MB. A bitmap of the map, 57 KB, left behind by every map or tick makes 5 MB or 57; two KB a tick show as
/// well.
constexpr std::size_t kRoom = 1'000'000;

/// A window that is used for a long time.
class MemoryTest : public FrameFixture
{
protected:
    void SetUp() override
    {
        if (UnderAddressSanitizer())
            GTEST_SKIP() << "once is enough: the heap's use is the same under AddressSanitizer";
        FrameFixture::SetUp();
        settings->size = kMapSize;
        settings->greyzone.show = true;
        settings->greyzone.timeMode = kRealTime;
        settings->fields.show = settings->fields.text.show = true;
    }

    /// The greyline's timer fires after so many seconds.
    void TickAfter(int seconds)
    {
        m_clock.now += seconds;
        wxTimer timer(frame, ui::kIdGreylineTimer);
        wxTimerEvent event(timer);
        frame->GetEventHandler()->ProcessEvent(event);
    }

    /// Expects what is used of the heap after many times to be what it was after ten.
    template <class Act>
    static void ExpectNoGrowth(int times, Act act)
    {
        const auto repeat = [&](int count)
        {
            for (int i = 0; i < count; ++i)
                act();
            Settle();
            return HeapInUse();
        };
        const std::size_t before = repeat(10);
        const std::size_t after = repeat(times - 10);
        EXPECT_LT(after, before + kRoom);
    }

private:
    HeldClock m_clock{1774009837}; // 2026-03-20 12:30:37 UTC
};

TEST_F(MemoryTest, IsThatOfTheTenthMapAfterAHundred)
{
    ExpectNoGrowth(100,
                   [this]
                   {
                       ASSERT_TRUE(frame->CreateMap());
                       Settle();
                   });
}

TEST_F(MemoryTest, IsThatOfTheTenthTickOfTheGreylineAfterAThousand)
{
    ASSERT_TRUE(frame->CreateMap());
    int drawn = 0;
    frame->onStep = [&drawn](const wxString& step) { drawn += step == "Drawing SunTerm..."; };
    // In four minutes the sun moves on by a degree, and the greyline is drawn anew.
    ExpectNoGrowth(1000, [this] { TickAfter(240); });
    EXPECT_GE(drawn, 999);
}
} // namespace

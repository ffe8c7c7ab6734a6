#pragma once

#include "tests/support/FrameFixture.h"
#include "tests/support/HeldClock.h"

#include <wx/timer.h>

#include <algorithm>
#include <filesystem>

/// A main window with a small map, a data directory for voacapl and its stand-in on the search path.
class VoacapFixture : public FrameFixture
{
protected:
    void SetUp() override
    {
        wxGetEnv("PATH", &m_pathBefore);
        wxSetEnv("PATH", KAV_STAND_IN ":" + m_pathBefore);
        FrameFixture::SetUp();
        std::filesystem::create_directories(home.Path("data/areadata/default").utf8_string());
        settings->propagation.show = true;
        settings->propagation.grid = 0;
        settings->propagation.directory = home.Path("data");
    }
    void TearDown() override
    {
        FrameFixture::TearDown();
        wxSetEnv("PATH", m_pathBefore);
        wxUnsetEnv("KAV_STAND_IN");
    }

    void Create() { ClickTool(ui::kIdCreate); }

    /// The propagation timer fires, in a minute in which that draws the overlay anew.
    void Tick()
    {
        wxTimer timer(frame, ui::kIdPropagationTimer);
        wxTimerEvent event(timer);
        frame->GetEventHandler()->ProcessEvent(event);
    }

    /// Calls act again and again while events are handled, until it returns true.
    class Meanwhile : public wxTimer
    {
    public:
        explicit Meanwhile(std::function<bool()> act) : m_act(std::move(act)) { Start(20); }
        bool HasActed() const { return m_hasActed; }

    private:
        void Notify() override
        {
            Stop(); // acting may handle events
            m_hasActed = m_act();
            if (!m_hasActed)
                Start(20);
        }

        std::function<bool()> m_act;
        bool m_hasActed = false;
    };

    /// Whether voacapl is at work and hangs.
    bool Hangs() const { return std::filesystem::exists(home.Path("data/pids.txt").utf8_string()); }

    static constexpr std::time_t kTwelveThirtyOne = 1774009860; // 2026-03-20 12:31:00 UTC

    HeldClock clock{kTwelveThirtyOne};

private:
    wxString m_pathBefore;
};

#include "tests/support/Processes.h"
#include "tests/support/VoacapFixture.h"

#include <gmock/gmock.h>

#include <wx/uiaction.h>
#include <wx/weakref.h>

namespace
{
using testing::ElementsAre;
using testing::IsEmpty;

constexpr char kEnded[] = "voacapl was ended. The map has no propagation overlay.\n";

class VoacapWaitTest : public VoacapFixture
{
protected:
    void PressEscape() const
    {
        wxKeyEvent event(wxEVT_CHAR_HOOK);
        event.m_keyCode = WXK_ESCAPE;
        frame->GetEventHandler()->ProcessEvent(event);
    }

    /// A click on a band while voacapl hangs.
    void RunThatHangs()
    {
        wxSetEnv("KAV_STAND_IN", "hangs");
        ClickTool(1006);
        wxUnsetEnv("KAV_STAND_IN");
    }

    std::vector<bool> EnabledTools() const
    {
        std::vector<bool> enabled;
        for (int i = 0; i < static_cast<int>(Tools().GetToolsCount()); ++i)
            if (Tools().GetToolByPos(i)->IsButton())
                enabled.push_back(Tools().GetToolByPos(i)->IsEnabled());
        return enabled;
    }
    std::vector<bool> EnabledMenus() const
    {
        std::vector<bool> enabled;
        for (std::size_t i = 0; i < frame->GetMenuBar()->GetMenuCount(); ++i)
            enabled.push_back(frame->GetMenuBar()->IsEnabledTop(i));
        return enabled;
    }

    /// Closes the window while voacapl runs.
    void ExpectEndedBy(const std::function<void()>& closeWindow)
    {
        Create();
        const Meanwhile closing(
            [&]
            {
                if (!Hangs())
                    return false;
                closeWindow();
                PressEscape(); // too late
                return true;
            });
        RunThatHangs();
        EXPECT_TRUE(closing.HasActed());
        EXPECT_EQ(dialogs.Texts(), "");
        EXPECT_TRUE(HaveEnded(Processes()));
        const wxWeakRef<wxFrame> window(frame);
        EXPECT_TRUE(Await([&] { return !window; }));
        if (!window)
            frame = nullptr;
    }

    std::vector<pid_t> Processes() const { return ProcessesIn(home.Path("data/pids.txt").utf8_string()); }
};

TEST_F(VoacapWaitTest, SaysWhatItWaitsForAndEndsItByEscape)
{
    Create();
    RecordSteps();
    wxString shown;
    const Meanwhile escape(
        [&]
        {
            shown = Status(0);
            if (!shown.StartsWith("Waiting"))
                return false;
            PressEscape();
            return true;
        });
    RunThatHangs();
    EXPECT_EQ(shown, "Waiting for voacapl since 12:31:00 Z; Escape ends it");
    EXPECT_THAT(steps, ElementsAre("Drawing Prop...", "Calling VoaArea...", shown));
    EXPECT_EQ(dialogs.Texts(), kEnded);
    EXPECT_EQ(Processes().size(), 2u);
    EXPECT_TRUE(HaveEnded(Processes()));
    EXPECT_FALSE(frame->Picture().showPropagation);
    EXPECT_TRUE(frame->Picture().mapReady && frame->Picture().mapBitmap);
    EXPECT_EQ(Status(0), "");

    ClickTool(1007);
    EXPECT_TRUE(frame->Picture().showPropagation);
}

TEST_F(VoacapWaitTest, FinishesTheMapWhoseOverlayWasEnded)
{
    wxSetEnv("KAV_STAND_IN", "hangs");
    const Meanwhile escape(
        [&]
        {
            if (Hangs())
                PressEscape();
            return Hangs();
        });
    Create();
    EXPECT_EQ(dialogs.Texts(), kEnded);
    EXPECT_EQ(Status(0), "Finished...");
    EXPECT_TRUE(Tools().GetToolEnabled(ui::kIdCreate));
    EXPECT_TRUE(Tools().GetToolEnabled(1006));
}

TEST_F(VoacapWaitTest, EndsWithTheWindow)
{
    ExpectEndedBy([this] { frame->Close(); });
}

TEST_F(VoacapWaitTest, EndsWithTheProgram)
{
    ExpectEndedBy([this] { ChooseMenu(ui::kIdQuit); });
}

TEST_F(VoacapWaitTest, TakesNoCommandsMeanwhile)
{
    Create();
    Tools().EnableTool(ui::kIdHelp, false);
    const auto toolsBefore = EnabledTools();
    const auto menusBefore = EnabledMenus();
    std::vector<bool> tools;
    std::vector<bool> menus;
    bool windowEnabled = false;
    const Meanwhile look(
        [&]
        {
            if (!Hangs())
                return false;
            tools = EnabledTools();
            menus = EnabledMenus();
            windowEnabled = frame->IsEnabled() && LocatorField().IsEnabled();
            PressEscape();
            return true;
        });
    RunThatHangs();
    EXPECT_EQ(tools, std::vector<bool>(18, false));
    EXPECT_EQ(menus, std::vector<bool>(3, false));
    EXPECT_TRUE(windowEnabled);
    EXPECT_EQ(EnabledTools(), toolsBefore);
    EXPECT_EQ(EnabledMenus(), menusBefore);
}

TEST_F(VoacapWaitTest, RepaintsMeanwhileAndLeavesThePointerAlone)
{
    Create();
    int paints = 0;
    Canvas().Bind(wxEVT_PAINT,
                  [&](wxPaintEvent& event)
                  {
                      ++paints;
                      event.Skip();
                  });
    Settle();
    const int before = paints;
    wxString status;
    const Meanwhile watch(
        [&]
        {
            Canvas().Refresh();
            if (!Hangs() || paints < before + 3)
                return false;
            wxMouseEvent motion(wxEVT_MOTION);
            motion.SetPosition({100, 90});
            Canvas().GetEventHandler()->ProcessEvent(motion);
            status = Status(0);
            PressEscape();
            return true;
        });
    RunThatHangs();
    EXPECT_GE(paints, before + 3);
    EXPECT_EQ(status, "Calling VoaArea...");
}

TEST_F(VoacapWaitTest, LeavesEscapeAloneOtherwise)
{
    Create();
    wxKeyEvent event(wxEVT_CHAR_HOOK);
    event.m_keyCode = WXK_ESCAPE;
    EXPECT_FALSE(frame->GetEventHandler()->ProcessEvent(event));
}

class PartialResultTest : public VoacapFixture
{
protected:
    /// Returns what the status bar says after a run.
    wxString Run(const char* behaviour)
    {
        wxSetEnv("KAV_STAND_IN", behaviour);
        ClickTool(1006);
        return Status(0);
    }
};

TEST_F(PartialResultTest, IsDrawnWithAWarning)
{
    Create();
    EXPECT_EQ(Status(0), "Finished...");
    EXPECT_EQ(Run("truncated"), "Result not whole: 162 of 324 points lack a value and count as 0");
    EXPECT_TRUE(frame->Picture().showPropagation);
    EXPECT_EQ(Run("stars"), "Result not whole: 18 of 324 points lack a value and count as 0");
    EXPECT_TRUE(frame->Picture().showPropagation);
    EXPECT_EQ(Run(""), "");
    EXPECT_EQ(dialogs.Texts(), "");
}

TEST_F(PartialResultTest, IsToldWhenTheMapIsFinished)
{
    wxSetEnv("KAV_STAND_IN", "truncated");
    RecordSteps();
    Create();
    EXPECT_EQ(Status(0), "Result not whole: 162 of 324 points lack a value and count as 0");
    EXPECT_EQ(steps.back(), "Finished...");
    settings->propagation.show = false;
    Create();
    EXPECT_EQ(Status(0), "Finished...");
}

/// With the keyboard: what is typed and where.
class ScreenVoacapWait : public VoacapWaitTest
{
protected:
    void Type(const char* text)
    {
        keyboard.Text(text);
        Settle();
    }

    /// Types while voacapl runs for half a second.
    void TickWhileTyping(const char* text)
    {
        wxSetEnv("KAV_STAND_IN", "slow");
        const Meanwhile typing(
            [&]
            {
                Type(text);
                return true;
            });
        Tick();
        Settle();
        EXPECT_TRUE(typing.HasActed());
    }

    /// The first text field that can be seen; every dialog here has one.
    static wxTextCtrl* VisibleTextIn(wxWindow* window)
    {
        for (wxWindow* const child : window->GetChildren())
        {
            auto* const text = dynamic_cast<wxTextCtrl*>(child);
            if (text && text->IsShownOnScreen())
                return text;
            if (wxTextCtrl* const found = VisibleTextIn(child))
                return found;
        }
        return nullptr;
    }

    wxUIActionSimulator keyboard;
};

TEST_F(ScreenVoacapWait, KeepsTheFocusAndTheTextOfTheLocator)
{
    Create();
    LocatorField().SetFocus();
    ASSERT_TRUE(Await([&] { return LocatorField().HasFocus(); }));
    LocatorField().SelectAll();
    Type("KP");
    TickWhileTyping("20");
    EXPECT_TRUE(LocatorField().HasFocus());
    EXPECT_EQ(LocatorField().GetValue(), "KP20");
    EXPECT_TRUE(frame->Picture().showPropagation);
}

TEST_F(ScreenVoacapWait, KeepsTheFocusAndTheTextInTheOptions)
{
    Create();
    dialogs.onOtherDialog = [&](wxDialog& dialog)
    {
        dialog.CallAfter(
            [&]
            {
                wxTextCtrl* const field = VisibleTextIn(&dialog);
                field->SetFocus();
                EXPECT_TRUE(Await([&] { return field->HasFocus(); }));
                field->SelectAll();
                Type("12");
                TickWhileTyping("34");
                EXPECT_TRUE(field->HasFocus());
                EXPECT_EQ(field->GetValue(), "1234");
                EXPECT_TRUE(dialog.IsShown());
                dialog.EndModal(wxID_CANCEL);
            });
        return wxID_NONE;
    };
    ClickTool(ui::kIdOptions);
    EXPECT_TRUE(frame->Picture().showPropagation);
}

TEST_F(ScreenVoacapWait, ClosesTheOptionsMeanwhile)
{
    Create();
    dialogs.onOtherDialog = [&](wxDialog& dialog)
    {
        dialog.CallAfter(
            [&]
            {
                wxSetEnv("KAV_STAND_IN", "slow");
                const Meanwhile cancel(
                    [&]
                    {
                        dialog.EndModal(wxID_CANCEL);
                        return true;
                    });
                Tick();
            });
        return wxID_NONE;
    };
    ClickTool(ui::kIdOptions);
    EXPECT_TRUE(frame->Picture().showPropagation);
    EXPECT_TRUE(Tools().GetToolEnabled(ui::kIdCreate));
}

TEST_F(ScreenVoacapWait, IsEndedByTheEscapeKey)
{
    Create();
    for (wxWindow* const focus : {static_cast<wxWindow*>(&LocatorField()), static_cast<wxWindow*>(&Canvas())})
    {
        std::filesystem::remove(home.Path("data/pids.txt").utf8_string());
        focus->SetFocus();
        ASSERT_TRUE(Await([&] { return focus->HasFocus(); }));
        dialogs.messages.clear();
        const Meanwhile escape(
            [&]
            {
                if (Hangs())
                    keyboard.Char(WXK_ESCAPE);
                return Hangs();
            });
        RunThatHangs();
        EXPECT_EQ(dialogs.Texts(), kEnded);
    }
}
} // namespace

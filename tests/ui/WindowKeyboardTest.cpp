#include "tests/support/FrameFixture.h"

#include <wx/dcscreen.h>
#include <wx/uiaction.h>

#include <gtk/gtk.h>

#include <cstring>

namespace
{
/// The main window in the hands of someone who types.
class ScreenWindowKeyboard : public FrameFixture
{
protected:
    void SetUp() override
    {
        FrameFixture::SetUp();
        RecordSteps();
        ASSERT_TRUE(Await([this] { return frame->IsActive(); }));
    }

    void Press(int key, int modifiers = wxMOD_NONE)
    {
        keyboard.Char(key, modifiers);
        Settle();
    }

    /// Where the next key goes: an entry, the canvas, or the position of a tool's button.
    wxString Focus() const
    {
        GtkWidget* const focus = gtk_window_get_focus(GTK_WINDOW(frame->GetHandle()));
        if (!focus)
            return "nothing";
        if (GtkWidget* const tool = gtk_widget_get_ancestor(focus, GTK_TYPE_TOOL_BUTTON))
        {
            auto* const bar = GTK_TOOLBAR(gtk_widget_get_ancestor(tool, GTK_TYPE_TOOLBAR));
            const int position = gtk_toolbar_get_item_index(bar, GTK_TOOL_ITEM(tool));
            return wxString::Format("%d", Tools().GetToolByPos(position)->GetId());
        }
        return GTK_IS_ENTRY(focus) ? "field" : Canvas().HasFocus() ? "canvas" : "elsewhere";
    }

    /// Presses a key until the focus is somewhere.
    bool PressUntil(int key, const wxString& focus, int modifiers = wxMOD_NONE)
    {
        for (int i = 0; i < 30 && Focus() != focus; ++i)
            Press(key, modifiers);
        return Focus() == focus;
    }

    bool IsFinished() const { return !steps.empty() && steps.back() == "Finished..."; }

    void Create(int size)
    {
        settings->size = size;
        settings->compass.text.show = false;
        ClickTool(ui::kIdCreate);
        Settle();
        steps.clear();
    }

    void ClickCanvas()
    {
        keyboard.MouseMove(Canvas().ClientToScreen(wxPoint(50, 50)));
        keyboard.MouseClick();
        EXPECT_TRUE(Await([this] { return Canvas().HasFocus(); }));
    }

    wxUIActionSimulator keyboard;
    wxColour m_seen;
};

TEST_F(ScreenWindowKeyboard, EnterInTheLocatorFieldCreates)
{
    LocatorField().SetFocus();
    LocatorField().SetValue("KP20");
    Press(WXK_RETURN);
    EXPECT_TRUE(Await([this] { return IsFinished(); }));
    EXPECT_EQ(settings->centreLoc, "KP20LL");
}

TEST_F(ScreenWindowKeyboard, BeginsInTheLocatorField)
{
    EXPECT_EQ(Focus(), "field");
}

TEST_F(ScreenWindowKeyboard, WhatIsTypedFirstTakesThePlaceOfTheLocator)
{
    for (const char key : {'K', 'P', '2', '0'})
        Press(key);
    EXPECT_EQ(LocatorField().GetValue().Upper(), "KP20");
}

TEST_F(ScreenWindowKeyboard, TabGoesFromTheFieldThroughTheEnabledToolsToTheCanvas)
{
    LocatorField().SetFocus();
    Settle();
    std::vector<wxString> stops;
    for (int i = 0; i < 5; ++i, Press(WXK_TAB))
        stops.push_back(Focus());
    EXPECT_EQ(stops, (std::vector<wxString>{"field", "1003", "1004", "5009", "canvas"}));
}

TEST_F(ScreenWindowKeyboard, ShiftAndTabGoesBack)
{
    Canvas().SetFocus();
    Settle();
    std::vector<wxString> stops;
    for (int i = 0; i < 5; ++i, Press(WXK_TAB, wxMOD_SHIFT))
        stops.push_back(Focus());
    EXPECT_EQ(stops, (std::vector<wxString>{"canvas", "5009", "1004", "1003", "field"}));
}

TEST_F(ScreenWindowKeyboard, SpacePressesTheToolThatTabHasReached)
{
    LocatorField().SetFocus();
    Settle();
    ASSERT_TRUE(PressUntil(WXK_TAB, "1003"));
    Press(WXK_SPACE);
    EXPECT_TRUE(Await([this] { return IsFinished(); }));
}

TEST_F(ScreenWindowKeyboard, SpaceSwitchesTheGreylineOnAndOff)
{
    Create(200);
    LocatorField().SetFocus();
    Settle();
    ASSERT_TRUE(PressUntil(WXK_TAB, "1017"));
    Press(WXK_SPACE);
    EXPECT_TRUE(Await([this] { return Canvas().showGreyline; }));
    Press(WXK_SPACE);
    EXPECT_TRUE(Await([this] { return !Canvas().showGreyline; }));
}

TEST_F(ScreenWindowKeyboard, AClickGivesTheCanvasTheKeysThatScroll)
{
    Create(1500);
    ClickCanvas();
    const auto scrollsOn = [this](int key)
    {
        const wxPoint before = Canvas().GetViewStart();
        Press(key);
        return Await([&] { return Canvas().GetViewStart() != before; });
    };
    for (const int key : {WXK_UP, WXK_DOWN, WXK_LEFT, WXK_RIGHT, WXK_PAGEUP, WXK_PAGEDOWN, WXK_HOME, WXK_END})
        EXPECT_TRUE(scrollsOn(key)) << key;
}

TEST_F(ScreenWindowKeyboard, ACrossReadsTheMapWithoutAPointer)
{
    Create(200);
    ClickCanvas();
    Press(WXK_RIGHT, wxMOD_SHIFT); // 10 pixels of 202020 m
    EXPECT_TRUE(Await([this] { return Status(0).Contains(" / 2020.2 km / 90.0 degs"); })) << Status(0);
    Press(WXK_RIGHT, wxMOD_SHIFT | wxMOD_CONTROL);
    EXPECT_TRUE(Await([this] { return Status(0).Contains(" / 2222.2 km / 90.0 degs"); })) << Status(0);
    Press(WXK_HOME, wxMOD_SHIFT);
    EXPECT_TRUE(Await([this] { return Status(0).Contains(" /   0.0 km / 0.0 degs"); })) << Status(0);
    Press(WXK_UP, wxMOD_SHIFT);
    EXPECT_TRUE(Await([this] { return Status(0).Contains(" / 2020.2 km / 0.0 degs"); })) << Status(0);
    Press(WXK_DOWN, wxMOD_SHIFT);
    Press(WXK_LEFT, wxMOD_SHIFT);
    EXPECT_TRUE(Await([this] { return Status(0).Contains(" / 2020.2 km / 270.0 degs"); })) << Status(0);
}

TEST_F(ScreenWindowKeyboard, TheCrossDoesNothingBeforeTheFirstMap)
{
    ClickCanvas();
    Press(WXK_RIGHT, wxMOD_SHIFT);
    EXPECT_EQ(Status(0), "Kavmap By QQ0QQQ");
}

TEST_F(ScreenWindowKeyboard, TheCrossIsOnTheScreenButInNoPicture)
{
    Create(200);
    const wxImage before = Canvas().Compose();
    ClickCanvas();
    Press(WXK_RIGHT, wxMOD_SHIFT);
    EXPECT_TRUE(Await(
        [this]
        {
            const wxPoint arm = Canvas().ClientToScreen(wxPoint(110 + 5, 100));
            return wxScreenDC().GetPixel(arm.x, arm.y, &m_seen) && m_seen == *wxBLACK;
        }))
        << m_seen.GetAsString();
    const wxImage after = Canvas().Compose();
    EXPECT_EQ(std::memcmp(before.GetData(), after.GetData(), 3 * 200 * 200), 0);
}

TEST_F(ScreenWindowKeyboard, TheViewFollowsTheCross)
{
    Create(1500);
    ClickCanvas();
    const wxPoint before = Canvas().GetViewStart();
    for (int i = 0; i < 45; ++i)
        Press(WXK_RIGHT, wxMOD_SHIFT);
    EXPECT_GT(Canvas().GetViewStart().x, before.x);
}
} // namespace

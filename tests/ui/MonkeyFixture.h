#pragma once

#include "propagation/Propagation.h"
#include "tests/support/Chance.h"
#include "tests/support/RecordedLog.h"
#include "tests/support/Rotctld.h"
#include "tests/support/VoacapFixture.h"

#include <wx/uiaction.h>

#include <gtk/gtk.h>

#include <map>

/// A main window on the screen in the hands of someone who knows no plan: what can be done to it at random.
class MonkeyFixture : public VoacapFixture
{
protected:
    explicit MonkeyFixture(unsigned seed) : chance(seed), m_hasAntenna(seed % 2 == 0) {}

    void SetUp() override
    {
        VoacapFixture::SetUp();
        now = kTwelveThirtyOne;
        SetClock([] { return now; });
        home.Write("garbage.ini", std::string("[\xff\xfe=\n]Size==\n[Greyzone]\nShow=1\n\0x", 36));
        home.Write("fair.ini", "Size=150\n[Greyzone]\nShow=1\n[Propagation]\nShow=1\nDir=" +
                                   home.Path("data").utf8_string() + "\n");
        m_restless.Bind(wxEVT_TIMER, [this](wxTimerEvent&) { ActWhileVoacaplRuns(); });
        m_choosing.Bind(wxEVT_TIMER, [this](wxTimerEvent&) { ChooseFromMenu(); });
        Reopen();
        m_restless.Start(40);
    }

    /// The main window with its timers in reach.
    class Window : public WxKavFrame
    {
    public:
        using WxKavFrame::WxKavFrame;

        using WxKavFrame::m_greylineTimer;
        using WxKavFrame::m_propagationTimer;
    };

    /// Quits and starts again, with what the working file has kept or as for the first time.
    void Reopen()
    {
        ChooseMenu(ui::kIdQuit);
        Settle();
        if (chance.OneIn(2))
            wxRemoveFile(home.WorkingFile());
        auto kept = std::make_unique<Configuration>("Kavdex");
        settings = kept.get();
        settings->size = chance.Between(100, 300);
        settings->greyzone.show = chance.OneIn(2);
        settings->propagation.show = chance.OneIn(2);
        settings->propagation.directory = home.Path("data");
        if (m_hasAntenna)
            rotator = rotator::ParseAddress(m_rotctld.Address());
        frame = window = new Window(nullptr, std::move(kept), rotator);
        frame->Bind(wxEVT_MENU_OPEN, [this](wxMenuEvent& event) { OnMenuOpen(event.GetMenu()); });
        frame->Bind(wxEVT_MENU_CLOSE, [this](wxMenuEvent&) { m_menu = nullptr; });
        frame->onStep = [this](const wxString& step) { ++steps[step]; };
        frame->Show();
        Await([this] { return frame->IsActive(); });
    }

    void PressTool()
    {
        GtkToolbar* const bar = ToolBarIn(Tools().GetHandle());
        GtkWidget* const button =
            gtk_bin_get_child(GTK_BIN(gtk_toolbar_get_nth_item(bar, chance.Below(gtk_toolbar_get_n_items(bar)))));
        if (GTK_IS_BUTTON(button) && gtk_widget_is_sensitive(button))
            gtk_button_clicked(GTK_BUTTON(button));
    }

    /// Any row of the menu bar but "Quit".
    void UseMenu()
    {
        const wxMenuBar& bar = *frame->GetMenuBar();
        const std::size_t top = chance.OneIn(4) ? 2 : 1;
        if (bar.IsEnabledTop(top))
            gtk_menu_item_activate(GTK_MENU_ITEM(bar.GetMenu(top)->FindItemByPosition(0)->GetMenuItem()));
    }

    void TypeLocator()
    {
        static constexpr const char* kTexts[] = {"JO65", "JP80MM", "aa00aa", "RR99XX", "KO", "ZZ99", "1", "JO65HQ12"};
        LocatorField().SetFocus();
        if (chance.OneIn(2))
            LocatorField().SelectAll();
        for (const char* key = chance.Of(kTexts); *key; ++key)
            simulator.Char(*key);
        if (chance.OneIn(2))
            simulator.Char(WXK_RETURN);
    }

    void PressKey()
    {
        static constexpr int kKeys[] = {WXK_TAB,   WXK_LEFT,   WXK_RIGHT, WXK_UP,     WXK_DOWN,     WXK_HOME,   WXK_END,
                                        WXK_SPACE, WXK_ESCAPE, WXK_BACK,  WXK_PAGEUP, WXK_PAGEDOWN, WXK_DELETE, 'm'};
        static constexpr int kModifiers[] = {wxMOD_NONE, wxMOD_NONE, wxMOD_NONE, wxMOD_SHIFT, wxMOD_CONTROL};
        if (chance.OneIn(8))
            Canvas().SetFocus();
        const int key = chance.Of(kKeys);
        for (int i = chance.Between(1, 4); i > 0; --i)
            simulator.Char(key, key == WXK_SPACE ? wxMOD_NONE : chance.Of(kModifiers));
    }

    /// A menu of the bar, opened by its letter.
    void OpenMenuWithKeys()
    {
        static constexpr char kLetters[] = {'f', 'o', 'h'};
        simulator.Char(chance.Of(kLetters), wxMOD_ALT);
    }

    void Point()
    {
        const wxSize size = Canvas().GetClientSize();
        simulator.MouseMove(Canvas().ClientToScreen({chance.Below(size.x + 1), chance.Below(size.y + 1)}));
        if (chance.OneIn(3))
            simulator.MouseClick();
    }

    void RightClick()
    {
        Point();
        simulator.MouseClick(wxMOUSE_BTN_RIGHT);
    }
    void PressMenuKey()
    {
        Canvas().SetFocus();
        simulator.Char(WXK_F10, wxMOD_SHIFT);
    }

    void Resize()
    {
        if (chance.OneIn(4))
            frame->Maximize(!frame->IsMaximized());
        else
            frame->SetSize(chance.Between(200, 1250), chance.Between(150, 1000));
    }

    void Scroll() { Canvas().Scroll(chance.Between(-5, 100), chance.Between(-5, 100)); }

    void Tick()
    {
        wxTimer timer(frame, chance.OneIn(2) ? ui::kIdGreylineTimer : ui::kIdPropagationTimer);
        wxTimerEvent event(timer);
        frame->GetEventHandler()->ProcessEvent(event);
    }

    void MoveClock()
    {
        static constexpr std::time_t kSteps[] = {1, 60, 600, 3600, 86400, 30 * 86400, -86400, -365 * 86400};
        now += chance.Of(kSteps);
        if (chance.OneIn(2))
            now += 31 * 60 - now % 3600; // when propagation follows the clock
    }

    void ChangeVoacapl()
    {
        static constexpr const char* kBehaviours[] = {
            "", "", "", "fails", "dies", "no result", "empty result", "truncated", "stars", "hangs"};
        wxSetEnv("KAV_STAND_IN", chance.Of(kBehaviours));
    }

    /// With what the next file dialog is answered.
    wxString AnyPath()
    {
        static constexpr const char* kNames[] = {"",        "map.png",    "map.JPG",  "map.bmp",      "map.pcx",
                                                 "map.pnm", "map.tif",    "map.jpeg", "gone/map.png", "fair.ini",
                                                 "own.ini", "garbage.ini"};
        const wxString name = chance.Of(kNames);
        return name.empty() ? name : home.Path(name);
    }

    /// Leaves whatever menu keys may have opened.
    void LeaveMenus()
    {
        for (int i = 0; i < 8 && GTK_IS_MENU_SHELL(gtk_grab_get_current()); ++i, Settle())
            gtk_menu_shell_deactivate(GTK_MENU_SHELL(gtk_grab_get_current()));
    }

    std::map<wxString, int> steps; ///< how often each was told
    inline static std::time_t now = 0;
    Chance chance;
    Window* window = nullptr;
    wxUIActionSimulator simulator;

private:
    static GtkToolbar* ToolBarIn(GtkWidget* widget)
    {
        if (GTK_IS_TOOLBAR(widget))
            return GTK_TOOLBAR(widget);
        GtkToolbar* found = nullptr;
        GList* const children = GTK_IS_CONTAINER(widget) ? gtk_container_get_children(GTK_CONTAINER(widget)) : nullptr;
        for (const GList* child = children; child && !found; child = child->next)
            found = ToolBarIn(GTK_WIDGET(child->data));
        g_list_free(children);
        return found;
    }

    void OnMenuOpen(wxMenu* menu)
    {
        if (menu->IsAttached())
            return;
        m_menu = menu;
        m_choosing.Start(60);
    }

    /// A row of the context menu, or none.
    void ChooseFromMenu()
    {
        if (!m_menu)
            return m_choosing.Stop();
        auto* const shell = GTK_MENU_SHELL(m_menu->m_menu);
        const auto row = static_cast<std::size_t>(chance.Below(static_cast<int>(m_menu->GetMenuItemCount())));
        const wxMenuItem* const item = m_menu->FindItemByPosition(row);
        if (item->IsEnabled() && !item->IsSeparator())
            gtk_menu_shell_activate_item(shell, item->GetMenuItem(), TRUE);
        else
            gtk_menu_shell_deactivate(shell);
    }

    /// The commands are off meanwhile. (Between two windows there is none.)
    bool IsOverlayBeingMade() const
    {
        if (!wxTopLevelWindows.Find(frame))
            return false;
        const wxMenuBar* const bar = frame->GetMenuBar();
        return bar && !bar->IsEnabledTop(0);
    }

    /// Some actions more, and then Escape.
    void ActWhileVoacaplRuns()
    {
        if (!IsOverlayBeingMade() || m_isActing)
            return;
        m_isActing = true;
        if (chance.OneIn(3))
            EndVoacapl();
        else
            (this->*chance.Of(kMeanwhile))();
        Settle();
        m_isActing = false;
    }
    void EndVoacapl()
    {
        wxKeyEvent escape(wxEVT_CHAR_HOOK);
        escape.m_keyCode = WXK_ESCAPE;
        frame->GetEventHandler()->ProcessEvent(escape);
    }

    static constexpr void (MonkeyFixture::*kMeanwhile[])() = {&MonkeyFixture::PressTool, &MonkeyFixture::UseMenu,
                                                              &MonkeyFixture::Point,     &MonkeyFixture::Resize,
                                                              &MonkeyFixture::Scroll,    &MonkeyFixture::Tick};

    const bool m_hasAntenna;
    FakeRotctld m_rotctld;
    RecordedLog m_log; // nobody reads the terminal
    wxTimer m_restless;
    wxTimer m_choosing;
    wxMenu* m_menu = nullptr; ///< the context menu, while it is open
    bool m_isActing = false;
};

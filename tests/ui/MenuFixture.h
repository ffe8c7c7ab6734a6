#pragma once

#include "tests/support/FrameFixture.h"

#include <wx/clipbrd.h>
#include <wx/menu.h>
#include <wx/timer.h>
#include <wx/uiaction.h>

/// A main window on the screen whose context menu is opened, read and used with pointer and keys.
class MenuFixture : public FrameFixture
{
protected:
    void SetUp() override
    {
        FrameFixture::SetUp();
        RecordSteps();
        frame->Bind(wxEVT_MENU_OPEN, [this](wxMenuEvent& event) { OnOpen(*event.GetMenu()); });
        frame->Bind(wxEVT_MENU_CLOSE, [this](wxMenuEvent&) { m_isOpen = false; });
        m_keys.Bind(wxEVT_TIMER, [this](wxTimerEvent&) { Use(); });
        ASSERT_TRUE(Await([this] { return frame->IsActive() && Canvas().GetClientSize().x > 700; }));
    }

    /// A map whose disc has a radius of 99 pixels of 202020 m around (100, 100).
    void Create(long size = 200)
    {
        settings->size = size;
        settings->compass.text.show = false;
        ClickTool(ui::kIdCreate);
        Settle();
        steps.clear();
    }

    void PointAt(wxPoint place)
    {
        simulator.MouseMove(Canvas().ClientToScreen(place));
        Settle();
    }

    /// Opens the menu at a place and chooses a row; none closes it again. Its rows are in rows afterwards. Once in a
    /// test: a second click might be a double click.
    void RightClick(wxPoint place, const wxString& choice = "")
    {
        PointAt(place);
        m_choice = choice;
        simulator.MouseClick(wxMOUSE_BTN_RIGHT);
        EXPECT_TRUE(Await([this] { return m_wasOpen && !m_isOpen; }));
        m_wasOpen = false;
    }

    /// Shift and F10 are the Menu key of keyboards that have none.
    void PressMenuKey()
    {
        m_choice = "";
        simulator.Char(WXK_F10, wxMOD_SHIFT);
    }

    bool HasOpened()
    {
        return Await([this] { return m_wasOpen && !m_isOpen; });
    }
    bool HasBeenOpen() const { return m_wasOpen; }
    bool IsOpen() const { return m_isOpen; }

    static wxString Clipboard()
    {
        const wxClipboardLocker lock;
        wxTextDataObject text;
        return wxTheClipboard->GetData(text) ? text.GetText() : "nothing";
    }

    std::vector<wxString> rows;       ///< in brackets where they can't be chosen, empty for separators
    std::function<void()> onMenuOpen; ///< called while the menu is there, before a row is chosen
    wxUIActionSimulator simulator;

private:
    void OnOpen(const wxMenu& menu)
    {
        m_isOpen = m_wasOpen = true;
        rows.clear();
        for (const wxMenuItem* item : menu.GetMenuItems())
        {
            const wxString label = item->IsSeparator() ? wxString() : item->GetItemLabelText();
            rows.push_back(item->IsEnabled() || item->IsSeparator() ? label : "(" + label + ")");
        }
        m_keys.StartOnce(200); // it takes keys a little later
    }

    /// The keys that choose the row.
    void Use()
    {
        if (onMenuOpen)
            onMenuOpen();
        if (!m_isOpen)
            return;
        if (m_choice.empty())
            return static_cast<void>(simulator.Char(WXK_ESCAPE));
        for (const wxString& row : rows)
        {
            if (row.empty() || row.StartsWith("("))
                continue;
            simulator.Char(WXK_DOWN);
            if (row == m_choice)
                return static_cast<void>(simulator.Char(WXK_RETURN));
        }
        ADD_FAILURE() << "no row " << m_choice;
        simulator.Char(WXK_ESCAPE);
    }

    wxTimer m_keys;
    wxString m_choice;
    bool m_isOpen = false;
    bool m_wasOpen = false;
};

#include "tests/support/OptionsFixture.h"

#include <wx/uiaction.h>

#include <gtk/gtk.h>

#include <string>
#include <vector>

namespace
{
class ScreenOptionsKeyboard : public OptionsFixture
{
protected:
    void Press(int key, int modifiers = wxMOD_NONE)
    {
        keyboard.Char(key, modifiers);
        Settle();
    }

    /// What the dialog ends with when a key is pressed in a control.
    int PressIn(wxWindow* control, int key)
    {
        return RunModal(
            [=, this]
            {
                // The window manager gives the keys to the dialog a little later.
                AwaitEvents([this] { return dialog->IsActive(); });
                control->SetFocus();
                Settle();
                Press(key);
                // The default button shows for a moment that it is pressed.
                for (int i = 0; i < 600 && dialog->IsModal(); ++i)
                {
                    wxMilliSleep(50);
                    Settle();
                }
                if (dialog->IsModal())
                    dialog->EndModal(wxID_NONE);
            });
    }

    /// The controls of a page that take keys, in the order in which they were made. Lists keep the focus to
    /// themselves: nothing stands for them.
    static std::vector<wxWindow*> ControlsOn(wxWindow* page)
    {
        std::vector<wxWindow*> controls;
        ForEachWindow(page,
                      [&](wxWindow* window)
                      {
                          if (dynamic_cast<wxChoice*>(window))
                              controls.push_back(nullptr);
                          else if (window->GetChildren().empty() && window->AcceptsFocusFromKeyboard())
                              controls.push_back(window);
                      });
        return controls;
    }

    /// Lists too have one, of which the toolkit knows nothing.
    const GtkWidget* FocusedWidget() const { return gtk_window_get_focus(GTK_WINDOW(dialog->GetHandle())); }

    /// What Tab reaches from the tabs of a notebook on, up to the buttons below it.
    std::vector<wxWindow*> TabThrough(wxWindow* book)
    {
        std::vector<wxWindow*> reached;
        AwaitEvents([this] { return dialog->IsActive(); });
        book->SetFocus();
        Settle();
        for (int i = 0; i < 100; ++i)
        {
            const GtkWidget* const before = FocusedWidget();
            Press(WXK_TAB);
            AwaitEvents([&] { return FocusedWidget() != before; });
            wxWindow* const focus = wxWindow::FindFocus();
            if (focus == dialog->m_loadConfig)
                return reached;
            reached.push_back(focus);
        }
        return reached;
    }

    static std::vector<std::string> NamesOf(const std::vector<wxWindow*>& windows)
    {
        std::vector<std::string> names;
        for (const wxWindow* const window : windows)
        {
            const wxPoint where = window ? window->GetScreenPosition() : wxPoint();
            const wxString name = window ? wxString(window->GetClassInfo()->GetClassName()) : wxString("list");
            names.push_back(wxString::Format("%s at %d, %d", name, where.x, where.y).utf8_string());
        }
        return names;
    }

    wxUIActionSimulator keyboard;
};

TEST_F(ScreenOptionsKeyboard, EnterIsOkFromAField)
{
    EXPECT_EQ(PressIn(dialog->m_settingsPage.size, WXK_RETURN), wxID_OK);
}

TEST_F(ScreenOptionsKeyboard, EnterIsOkFromANumber)
{
    EXPECT_EQ(PressIn(dialog->m_settingsPage.meridians.alpha, WXK_RETURN), wxID_OK);
}

TEST_F(ScreenOptionsKeyboard, EnterIsOkFromTheExplanation)
{
    dialog->m_book->SetSelection(6);
    dialog->m_voacapPage.book->SetSelection(1);
    EXPECT_EQ(PressIn(dialog->m_voacapPage.appearance.explanation, WXK_RETURN), wxID_OK);
}

TEST_F(ScreenOptionsKeyboard, EnterOfTheNumberPadIsOkFromTheExplanation)
{
    dialog->m_book->SetSelection(6);
    dialog->m_voacapPage.book->SetSelection(1);
    EXPECT_EQ(PressIn(dialog->m_voacapPage.appearance.explanation, WXK_NUMPAD_ENTER), wxID_OK);
}

TEST_F(ScreenOptionsKeyboard, EscapeIsCancelFromTheExplanation)
{
    dialog->m_book->SetSelection(6);
    dialog->m_voacapPage.book->SetSelection(1);
    EXPECT_EQ(PressIn(dialog->m_voacapPage.appearance.explanation, WXK_ESCAPE), wxID_CANCEL);
}

TEST_F(ScreenOptionsKeyboard, EscapeIsCancel)
{
    Type(dialog->m_settingsPage.size, "123");
    EXPECT_EQ(PressIn(dialog->m_settingsPage.size, WXK_ESCAPE), wxID_CANCEL);
    EXPECT_EQ(settings.size, 900);
}

TEST_F(ScreenOptionsKeyboard, TabReachesEveryControlInReadingOrder)
{
    dialog->Show();
    Choose(dialog->m_timePage.mode, 1); // in real time most of its page is grey
    for (std::size_t i = 0; i < dialog->m_book->GetPageCount(); ++i)
    {
        dialog->m_book->SetSelection(i);
        wxBookCtrlBase* const inner = dialog->m_voacapPage.book;
        const bool hasInner = dialog->m_book->GetPage(i) == inner->GetParent();
        for (std::size_t j = 0; j < (hasInner ? inner->GetPageCount() : 1); ++j)
        {
            if (hasInner)
                inner->SetSelection(j);
            Settle();
            wxBookCtrlBase* const book = hasInner ? inner : dialog->m_book;
            const auto reached = TabThrough(book);
            // Named only now: the window manager may have moved the dialog meanwhile.
            EXPECT_EQ(NamesOf(reached), NamesOf(ControlsOn(book->GetCurrentPage())))
                << book->GetPageText(book->FindPage(book->GetCurrentPage()));
        }
    }
}
} // namespace

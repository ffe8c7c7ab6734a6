#include "tests/support/Await.h"
#include "tests/support/OptionsFixture.h"

#include <wx/uiaction.h>

namespace
{
/// The dialog as it comes up: the keys go wherever it has put the focus itself.
class ScreenOptionsFirstKey : public OptionsFixture
{
protected:
    /// Presses a key in the dialog that has just come up and tells whether something became true by it.
    template <class Condition>
    bool HappensOn(int key, int modifiers, Condition condition)
    {
        bool happened = false;
        m_result = RunModal(
            [&, this]
            {
                AwaitEvents([this] { return dialog->IsActive(); });
                wxUIActionSimulator().Char(key, modifiers);
                happened = AwaitEvents(condition);
                if (dialog->IsModal())
                    dialog->EndModal(wxID_NONE);
            });
        return happened;
    }

    bool Ends(int key)
    {
        return HappensOn(key, wxMOD_NONE, [this] { return !dialog->IsModal(); });
    }

    int m_result = wxID_NONE;
};

TEST_F(ScreenOptionsFirstKey, EscapeIsCancel)
{
    EXPECT_TRUE(Ends(WXK_ESCAPE));
    EXPECT_EQ(m_result, wxID_CANCEL);
}

TEST_F(ScreenOptionsFirstKey, EnterIsOk)
{
    EXPECT_TRUE(Ends(WXK_RETURN));
    EXPECT_EQ(m_result, wxID_OK);
}

TEST_F(ScreenOptionsFirstKey, TabGoesToTheFirstControl)
{
    EXPECT_TRUE(HappensOn(WXK_TAB, wxMOD_NONE, [this] { return dialog->m_settingsPage.zoomSlider->HasFocus(); }));
}

TEST_F(ScreenOptionsFirstKey, ControlAndPageDownTurnsThePage)
{
    EXPECT_TRUE(HappensOn(WXK_PAGEDOWN, wxMOD_CONTROL, [this] { return dialog->m_book->GetSelection() == 1; }));
}

TEST_F(ScreenOptionsFirstKey, AnArrowTurnsThePage)
{
    EXPECT_TRUE(HappensOn(WXK_RIGHT, wxMOD_NONE, [this] { return dialog->m_book->GetSelection() == 1; }));
}
} // namespace

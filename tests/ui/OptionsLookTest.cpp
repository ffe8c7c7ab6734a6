#include "tests/support/DesktopFont.h"
#include "tests/support/FrameFixture.h"
#include "tests/support/OptionsFixture.h"

#include <cstdlib>

namespace
{
class OptionsInLargeFontTest : public OptionsFixture
{
protected:
    void SetUp() override
    {
        OptionsFixture::SetUp();
        dialog->Show();
        Settle();
    }

    const DesktopFont font{18};
};

TEST_F(OptionsInLargeFontTest, FontButtonsHaveRoomForFaceAndSize)
{
    const wxWindow* const button = dialog->m_settingsPage.fieldNames.font;
    ASSERT_EQ(button->GetFont().GetPointSize(), 18);
    EXPECT_GE(button->GetSize().x, button->GetTextExtent("Sans Regular 18").x + 20);
}

TEST_F(OptionsInLargeFontTest, FieldsAreAsHighAsTheirText)
{
    for (const wxWindow* const field :
         {static_cast<wxWindow*>(dialog->m_settingsPage.size), static_cast<wxWindow*>(dialog->m_homePage.locator),
          static_cast<wxWindow*>(dialog->m_bordersPage.rows[0].file->GetTextCtrl()),
          static_cast<wxWindow*>(dialog->m_plotSquaresPage.slots[0].file->GetTextCtrl())})
        EXPECT_GE(field->GetSize().y, field->GetCharHeight() + 4);
}

using ScreenOptionsLook = FrameFixture;

TEST_F(ScreenOptionsLook, TheDialogStandsOnTheMiddleOfItsWindow)
{
    frame->Move(400, 350);
    ASSERT_TRUE(Await([this] { return std::abs(frame->GetPosition().x - 400) < 40; }));
    wxRect place;
    dialogs.onOtherDialog = [&place](wxDialog& dialog)
    {
        place = dialog.GetRect();
        return wxID_CANCEL;
    };
    ChooseMenu(ui::kIdProperties);
    const wxRect window = frame->GetRect();
    const wxPoint offset = wxPoint(place.x + place.width / 2, place.y + place.height / 2) -
                           wxPoint(window.x + window.width / 2, window.y + window.height / 2);
    EXPECT_LE(std::abs(offset.x), 40);
    EXPECT_LE(std::abs(offset.y), 40);
}
} // namespace

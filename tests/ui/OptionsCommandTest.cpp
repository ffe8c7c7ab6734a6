#include "tests/support/FrameFixture.h"
#include "ui/options/KavMapOptions.h"

namespace
{
class OptionsCommandTest : public FrameFixture
{
protected:
    void SetUp() override
    {
        FrameFixture::SetUp();
        dialogs.onOtherDialog = [this](wxDialog& dialog)
        {
            EXPECT_TRUE(dynamic_cast<KavMapOptions*>(&dialog));
            ++opened;
            settings->resetOverlays = changesSomething;
            return answer;
        };
        settings->greyzone.show = true;
    }

    int opened = 0;
    int answer = wxID_OK;
    bool changesSomething = false;
};

TEST_F(OptionsCommandTest, OpensOneDialogFromTheToolAndOneFromTheMenu)
{
    ClickTool(ui::kIdOptions);
    EXPECT_EQ(opened, 1);
    ChooseMenu(ui::kIdProperties);
    EXPECT_EQ(opened, 2);
}

TEST_F(OptionsCommandTest, HidesTheOverlaysWhenSettingsHaveChanged)
{
    ClickTool(ui::kIdCreate);
    Canvas().showPropagation = true;
    frame->SetPropagationTools(true, 1, 1);
    changesSomething = true;
    ClickTool(ui::kIdOptions);
    EXPECT_FALSE(Canvas().showGreyline || Canvas().showPropagation);
    EXPECT_EQ(Status(1), "");
    EXPECT_FALSE(Tools().GetToolEnabled(1006));
    EXPECT_TRUE(frame->Picture().mapBitmap); // the map stays until the next creation
    for (int i = 0; i < 25; ++i)             // and the clock is no longer followed
    {
        wxMilliSleep(50);
        Settle();
    }
    EXPECT_EQ(Status(1), "");
}

TEST_F(OptionsCommandTest, LeavesOverlaysAloneWhenNothingHasChanged)
{
    ClickTool(ui::kIdCreate);
    ClickTool(ui::kIdOptions);
    EXPECT_TRUE(Canvas().showGreyline);
    EXPECT_NE(Status(1), "");
}

TEST_F(OptionsCommandTest, LeavesOverlaysAloneOnCancel)
{
    ClickTool(ui::kIdCreate);
    answer = wxID_CANCEL;
    changesSomething = true;
    ClickTool(ui::kIdOptions);
    EXPECT_TRUE(Canvas().showGreyline);
    EXPECT_NE(Status(1), "");
}

TEST_F(OptionsCommandTest, ShowsALocatorThatTheDialogHasStoredHoweverItEnds)
{
    for (const int end : {wxID_OK, wxID_CANCEL})
    {
        settings->centreLoc = "JO65HQ";
        LocatorField().ChangeValue("AA00AA");
        dialogs.onOtherDialog = [this, end](wxDialog&)
        {
            settings->centreLoc = "QF56OM";
            return end;
        };
        ClickTool(ui::kIdOptions);
        EXPECT_EQ(LocatorField().GetValue(), "QF56OM");
    }
}

TEST_F(OptionsCommandTest, KeepsALocatorThatWasTypedAndNotYetUsed)
{
    for (const int end : {wxID_OK, wxID_CANCEL})
    {
        answer = end;
        LocatorField().ChangeValue("AA00");
        ClickTool(ui::kIdOptions);
        EXPECT_EQ(LocatorField().GetValue(), "AA00");
    }
}
} // namespace

#include "tests/support/FrameFixture.h"

#include <gmock/gmock.h>

#include <wx/menu.h>
#include <wx/uiaction.h>
#include <wx/weakref.h>

namespace
{
using FrameTest = FrameFixture;
using ScreenFrameTest = FrameFixture;

TEST_F(FrameTest, GreetsWithItsNameAndTheToolkitsVersion)
{
    EXPECT_EQ(frame->GetTitle(), "Kavmap V3.1.9 QQ0QQQ");
    EXPECT_EQ(Status(0), "Kavmap By QQ0QQQ");
    EXPECT_EQ(Status(1), wxVERSION_STRING);
    EXPECT_EQ(LocatorField().GetValue(), "JO65HQ");
}

TEST_F(FrameTest, KeepsTheStatusWhereThePointerIsOverAToolWithoutHelp)
{
    frame->SetStatusText("Finished...");
    frame->DoGiveHelp("", true);
    EXPECT_EQ(Status(0), "Finished...");
    frame->DoGiveHelp("Quit the application", true);
    EXPECT_EQ(Status(0), "Quit the application");
    frame->DoGiveHelp("", true);
    EXPECT_EQ(Status(0), "Finished...");
    frame->DoGiveHelp("", false);
    EXPECT_EQ(Status(0), "Finished...");
}

TEST_F(FrameTest, MakesNoMapAtStart)
{
    EXPECT_FALSE(frame->Picture().mapBitmap);
    EXPECT_FALSE(frame->Picture().showGreyline || frame->Picture().showPropagation);
}

TEST_F(FrameTest, HasItsMenusInOrder)
{
    const wxMenuBar* bar = frame->GetMenuBar();
    ASSERT_EQ(bar->GetMenuCount(), 3u);
    EXPECT_EQ(bar->GetMenuLabel(0), "&File");
    EXPECT_EQ(bar->GetMenuLabel(1), "&Options");
    EXPECT_EQ(bar->GetMenuLabel(2), "&Help");
    EXPECT_EQ(bar->FindItem(1000)->GetItemLabel(), "&Quit\tAlt+F4");
    EXPECT_EQ(bar->FindItem(1000)->GetHelp(), "Quit the application");
    EXPECT_EQ(bar->FindItem(5041)->GetItemLabel(), "&Properties");
    EXPECT_EQ(bar->FindItem(1001)->GetItemLabel(), "&About");
    EXPECT_EQ(bar->FindItem(1001)->GetHelp(), "Show info about this application");
}

TEST_F(FrameTest, HasItsToolsInOrderAfterTheLocatorField)
{
    std::vector<int> ids;
    for (std::size_t i = 0; i < Tools().GetToolsCount(); ++i)
    {
        const wxToolBarToolBase* tool = Tools().GetToolByPos(static_cast<int>(i));
        if (tool->IsButton())
            ids.push_back(tool->GetId());
    }
    EXPECT_TRUE(Tools().GetToolByPos(0)->IsControl());
    EXPECT_EQ(ids, (std::vector<int>{1003, 5003, 1004, 5009, 1005, 1006, 1007, 1008, 1009, 1010, 1011, 1012, 1013, 1002,
                                     1014, 1015, 1016, 1017}));
    EXPECT_EQ(Tools().FindById(1003)->GetLabel(), "Create");
    EXPECT_EQ(Tools().FindById(1017)->GetKind(), wxITEM_CHECK);
    EXPECT_EQ(Tools().FindById(1009)->GetKind(), wxITEM_RADIO);
    EXPECT_EQ(Tools().GetToolBitmapSize(), wxSize(16, 15));
}

TEST_F(FrameTest, EnablesOnlyWhatWorksWithoutAMap)
{
    for (const int id : {1003, 1004, 5009})
        EXPECT_TRUE(Tools().GetToolEnabled(id)) << id;
    for (const int id : {5003, 1017, 1005, 1013, 1002, 1014, 1015, 1016})
        EXPECT_FALSE(Tools().GetToolEnabled(id)) << id;
}

TEST_F(FrameTest, ShowsTheChosenBandAndTheChosenParameterAtOnce)
{
    frame->SetPropagationTools(true, 5, 2);
    EXPECT_TRUE(Tools().GetToolState(1010));
    EXPECT_TRUE(Tools().GetToolState(1015));
    for (const int id : {1005, 1006, 1007, 1008, 1009, 1011, 1012, 1013, 1002, 1014, 1016})
        EXPECT_FALSE(Tools().GetToolState(id)) << id;
    EXPECT_TRUE(Tools().GetToolEnabled(1010));
    EXPECT_TRUE(Tools().GetToolEnabled(1002));
}

TEST_F(FrameTest, ChoosesNoToolForAnotherIndex)
{
    frame->SetPropagationTools(true, 0, 0);
    frame->SetPropagationTools(true, 9, -1);
    EXPECT_TRUE(Tools().GetToolState(1005));
    EXPECT_TRUE(Tools().GetToolState(1002));
}

TEST_F(FrameTest, KeepsTheClickedBandAndParameterInTheSettings)
{
    settings->propagation.useExternalResult = true;
    for (int id = 1005; id <= 1013; ++id)
    {
        ClickTool(id);
        EXPECT_EQ(settings->propagation.frequency, id - 1005);
    }
    const std::map<int, int> parameters{{1002, 0}, {1014, 1}, {1015, 2}, {1016, 3}};
    for (const auto& [id, parameter] : parameters)
    {
        ClickTool(id);
        EXPECT_EQ(settings->propagation.parameter, parameter);
    }
}

TEST_F(FrameTest, TellsAboutItself)
{
    ChooseMenu(1001);
    ClickTool(5009);
    ASSERT_EQ(dialogs.messages.size(), 2u);
    for (const Dialogs::Message& message : dialogs.messages)
    {
        EXPECT_EQ(message.caption, "Welcome to...");
        EXPECT_EQ(message.style & (wxOK | wxCANCEL | wxYES_NO | wxCENTRE), wxOK | wxCENTRE);
        EXPECT_EQ(message.text, "Kavmap by QQ0QQQ\n" wxVERSION_STRING "-Linux-Unicode build");
    }
}

TEST_F(FrameTest, ClosesAtOnceOnQuit)
{
    const wxWeakRef<wxWindow> window(frame);
    ChooseMenu(1000);
    frame = nullptr;
    Settle();
    EXPECT_FALSE(window);
}

TEST_F(FrameTest, ClosesAtOnceOnClose)
{
    const wxWeakRef<wxWindow> window(frame);
    frame->Close();
    frame = nullptr;
    Settle();
    EXPECT_FALSE(window);
    EXPECT_TRUE(dialogs.messages.empty());
}

TEST_F(ScreenFrameTest, QuitsByItsAccelerator)
{
    const wxWeakRef<wxWindow> window(frame);
    frame->Raise();
    frame->SetFocus();
    Settle();
    wxUIActionSimulator keyboard;
    for (int attempt = 0; attempt < 20 && window; ++attempt)
    {
        keyboard.Char(WXK_F4, wxMOD_ALT);
        wxMilliSleep(50);
        Settle();
    }
    EXPECT_FALSE(window);
    if (!window)
        frame = nullptr;
}
} // namespace

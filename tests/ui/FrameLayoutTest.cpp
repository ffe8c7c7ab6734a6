#include "resources/icons/create.xpm"
#include "resources/icons/fq_10_1.xpm"
#include "resources/icons/fq_14_0.xpm"
#include "resources/icons/fq_18_1.xpm"
#include "resources/icons/fq_21_0.xpm"
#include "resources/icons/fq_24_9.xpm"
#include "resources/icons/fq_28_0.xpm"
#include "resources/icons/fq_3_5.xpm"
#include "resources/icons/fq_7_0.xpm"
#include "resources/icons/fq_user.xpm"
#include "resources/icons/greyline.xpm"
#include "resources/icons/help.xpm"
#include "resources/icons/muf.xpm"
#include "resources/icons/options.xpm"
#include "resources/icons/rel.xpm"
#include "resources/icons/save.xpm"
#include "resources/icons/signal.xpm"
#include "resources/icons/snr.xpm"
#include "tests/support/FrameFixture.h"
#include "tests/support/Pictures.h"

#include <gmock/gmock.h>

#include <wx/menu.h>
#include <wx/sizer.h>
#include <wx/weakref.h>

namespace
{
using testing::ElementsAre;
using testing::IsEmpty;

using FrameLayoutTest = FrameFixture;
using ScreenFrameLayoutTest = FrameFixture;

struct ExpectedTool
{
    int id; ///< 0 is a separator
    const char* label;
    wxItemKind kind;
    const char* const* icon;
};

const ExpectedTool kExpectedTools[] = {
    {1003, "Create", wxITEM_NORMAL, icon_create},   {5003, "Save", wxITEM_NORMAL, icon_save},
    {1004, "Options", wxITEM_NORMAL, icon_options}, {5009, "Help", wxITEM_NORMAL, icon_help},
    {1005, "tool", wxITEM_RADIO, icon_fq_3_5},      {1006, "tool", wxITEM_RADIO, icon_fq_7_0},
    {1007, "tool", wxITEM_RADIO, icon_fq_10_1},     {1008, "tool", wxITEM_RADIO, icon_fq_14_0},
    {1009, "tool", wxITEM_RADIO, icon_fq_18_1},     {1010, "tool", wxITEM_RADIO, icon_fq_21_0},
    {1011, "tool", wxITEM_RADIO, icon_fq_24_9},     {1012, "tool", wxITEM_RADIO, icon_fq_28_0},
    {1013, "tool", wxITEM_RADIO, icon_fq_user},     {0, "", wxITEM_SEPARATOR, nullptr},
    {1002, "tool", wxITEM_RADIO, icon_signal},      {1014, "tool", wxITEM_RADIO, icon_snr},
    {1015, "tool", wxITEM_RADIO, icon_muf},         {1016, "tool", wxITEM_RADIO, icon_rel},
    {1017, "tool", wxITEM_CHECK, icon_greyline}};

TEST_F(FrameLayoutTest, HasEachToolWithItsLabelItsKindAndItsIcon)
{
    ASSERT_EQ(Tools().GetToolsCount(), 1 + std::size(kExpectedTools)); // the locator field is the first
    int position = 1;
    for (const ExpectedTool& expected : kExpectedTools)
    {
        const wxToolBarToolBase& tool = *Tools().GetToolByPos(position++);
        ASSERT_EQ(tool.IsSeparator(), expected.kind == wxITEM_SEPARATOR) << expected.id;
        if (tool.IsSeparator())
            continue;
        EXPECT_EQ(tool.GetKind(), expected.kind) << expected.id;
        EXPECT_EQ(tool.GetId(), expected.id);
        EXPECT_EQ(tool.GetLabel(), expected.label) << expected.id;
        EXPECT_EQ(tool.GetShortHelp() + tool.GetLongHelp(), "") << expected.id;
        wxBitmap icon = tool.GetNormalBitmap();
        wxBitmap drawn(expected.icon);
        ASSERT_EQ(icon.GetSize(), wxSize(16, 15)) << expected.id;
        EXPECT_TRUE(SamePicture(ColoursOf(icon), ColoursOf(drawn))) << expected.id;
    }
}

TEST_F(FrameLayoutTest, TellsEveryToolByItsIcon)
{
    std::set<Colours> pictures;
    for (const ExpectedTool& tool : kExpectedTools)
        if (tool.icon)
        {
            wxBitmap icon(tool.icon);
            pictures.insert(ColoursOf(icon));
        }
    EXPECT_EQ(pictures.size(), 18u);
}

TEST_F(FrameLayoutTest, HasOneEntryInEachMenu)
{
    const std::vector<std::tuple<int, wxString, wxString>> entries{
        {1000, "&Quit\tAlt+F4", "Quit the application"},
        {5041, "&Properties", ""},
        {1001, "&About", "Show info about this application"}};
    ASSERT_EQ(frame->GetMenuBar()->GetMenuCount(), entries.size());
    for (std::size_t i = 0; i < entries.size(); ++i)
    {
        const wxMenuItemList& items = frame->GetMenuBar()->GetMenu(i)->GetMenuItems();
        ASSERT_EQ(items.size(), 1u);
        const auto& [id, label, help] = entries[i];
        EXPECT_EQ(items[0]->GetId(), id);
        EXPECT_EQ(items[0]->GetItemLabel(), label);
        EXPECT_EQ(items[0]->GetHelp(), help);
        EXPECT_EQ(items[0]->GetKind(), wxITEM_NORMAL);
    }
}

TEST_F(FrameLayoutTest, HasATitleBarAndLetsTheTabulatorGoRound)
{
    EXPECT_EQ(frame->GetWindowStyle() & wxDEFAULT_FRAME_STYLE, wxDEFAULT_FRAME_STYLE);
    EXPECT_TRUE(frame->HasFlag(wxTAB_TRAVERSAL));
    EXPECT_TRUE(Canvas().HasFlag(wxTAB_TRAVERSAL));
}

TEST_F(FrameLayoutTest, HasTwoStatusFieldsAndASizeGrip)
{
    EXPECT_EQ(frame->GetStatusBar()->GetFieldsCount(), 2);
    EXPECT_TRUE(frame->GetStatusBar()->HasFlag(wxSTB_SIZEGRIP));
}

TEST_F(FrameLayoutTest, HasALocatorFieldAlignedRightALittleWiderThanALocator)
{
    EXPECT_TRUE(LocatorField().HasFlag(wxTE_RIGHT));
    EXPECT_EQ(Tools().GetToolByPos(0)->GetControl(), &LocatorField());
    const wxTextCtrl other(&Tools(), wxID_ANY);
    EXPECT_EQ(LocatorField().GetMinSize().x, other.GetSizeFromText("JO65HQ0").x);
    EXPECT_TRUE(Await([this] { return LocatorField().GetSize().x == LocatorField().GetMinSize().x; }));
}

TEST_F(FrameLayoutTest, HasAHorizontalToolBarNumberedAsTheFirstParameter)
{
    EXPECT_FALSE(Tools().IsVertical());
    EXPECT_EQ(Tools().GetId(), 1002);
}

TEST_F(FrameLayoutTest, ScrollsTheCanvasByFivePixels)
{
    int x = 0;
    int y = 0;
    Canvas().GetScrollPixelsPerUnit(&x, &y);
    EXPECT_EQ(wxSize(x, y), wxSize(5, 5));
}

TEST_F(FrameLayoutTest, FillsTheWindowWithTheCanvasWhateverItsSize)
{
    ASSERT_TRUE(frame->GetSizer());
    const auto* const item = frame->GetSizer()->GetItem(&Canvas());
    ASSERT_TRUE(item);
    EXPECT_EQ(item->GetProportion(), 1);
    EXPECT_EQ(item->GetFlag(), wxEXPAND);
    for (const wxSize& size : {wxSize(900, 700), wxSize(640, 420)})
    {
        frame->SetSize(size);
        EXPECT_TRUE(Await([&] { return frame->GetSize() == size && Canvas().GetSize() == frame->GetClientSize(); }))
            << Canvas().GetSize().x << " x " << Canvas().GetSize().y;
        EXPECT_GT(Canvas().GetSize().x, size.x - 20);
        EXPECT_GT(Canvas().GetSize().y, size.y / 2);
        EXPECT_EQ(Canvas().GetPosition(), wxPoint(0, 0));
    }
}

TEST_F(FrameLayoutTest, PaintsTheCanvasItself)
{
    EXPECT_EQ(Canvas().GetBackgroundStyle(), wxBG_STYLE_PAINT);
    EXPECT_TRUE(Canvas().UseBackgroundColour());
    EXPECT_EQ(Canvas().GetBackgroundColour(), wxSystemSettings::GetColour(wxSYS_COLOUR_WINDOW));
}

TEST_F(ScreenFrameLayoutTest, Is765By550PixelsLargeWithAllToolsInIt)
{
    EXPECT_TRUE(Await([this] { return frame->GetSize() == wxSize(765, 550); }))
        << frame->GetSize().x << " x " << frame->GetSize().y;
    EXPECT_LE(Tools().GetBestSize().x, 765);
}

TEST_F(FrameLayoutTest, ShowsTheSettingsItBeginsWith)
{
    auto other = std::make_unique<Configuration>("Kavdex");
    other->centreLoc = "QF56OM";
    other->greyzone.show = true;
    other->propagation.frequency = 4;
    other->propagation.parameter = 3;
    auto* const another = new WxKavFrame(nullptr, std::move(other));
    const wxToolBar& tools = *another->GetToolBar();
    for (const int id : {1005, 1006, 1007, 1008, 1009, 1010, 1011, 1012, 1013, 1002, 1014, 1015, 1016, 1017})
    {
        EXPECT_FALSE(tools.GetToolEnabled(id)) << id;
        EXPECT_EQ(tools.GetToolState(id), id == 1009 || id == 1016 || id == 1017) << id;
    }
    EXPECT_TRUE(another->Picture().mapReady);
    another->Destroy();
}

TEST_F(FrameLayoutTest, ReadsTheWorkingFileUnlessToldOtherwise)
{
    home.Write(".Kavdex", "Size=123\n");
    auto* const another = new WxKavFrame(nullptr);
    EXPECT_TRUE(another->CreateMap());
    EXPECT_EQ(another->Picture().mapBitmap->GetWidth(), 123);
    another->Destroy();
}

/// The layout alone: tells which of its handlers are called.
class RecordingFrame : public GUIFrame
{
public:
    RecordingFrame() : GUIFrame(nullptr) {}

    std::vector<std::string> calls;
    bool handsOn = false; ///< calls the layout's own handler too

    using GUIFrame::m_canvas;

protected:
    void OnActivate(wxActivateEvent& event) override
    {
        Record("OnActivate", [&] { GUIFrame::OnActivate(event); });
    }
    void OnClose(wxCloseEvent& event) override
    {
        Record("OnClose", [&] { GUIFrame::OnClose(event); });
    }
    void OnQuit(wxCommandEvent& event) override
    {
        Record("OnQuit", [&] { GUIFrame::OnQuit(event); });
    }
    void OnProperties(wxCommandEvent& event) override
    {
        Record("OnProperties", [&] { GUIFrame::OnProperties(event); });
    }
    void OnAbout(wxCommandEvent& event) override
    {
        Record("OnAbout", [&] { GUIFrame::OnAbout(event); });
    }
    void OnCanvasLeftDown(wxMouseEvent& event) override
    {
        Record("OnCanvasLeftDown", [&] { GUIFrame::OnCanvasLeftDown(event); });
    }
    void OnCanvasMotion(wxMouseEvent& event) override
    {
        Record("OnCanvasMotion", [&] { GUIFrame::OnCanvasMotion(event); });
    }
    void OnCreateMap(wxCommandEvent& event) override
    {
        Record("OnCreateMap", [&] { GUIFrame::OnCreateMap(event); });
    }
    void OnSaveImage(wxCommandEvent& event) override
    {
        Record("OnSaveImage", [&] { GUIFrame::OnSaveImage(event); });
    }
    void OnOptionsTool(wxCommandEvent& event) override
    {
        Record("OnOptionsTool", [&] { GUIFrame::OnOptionsTool(event); });
    }
    void OnFrequencyTool(wxCommandEvent& event) override
    {
        Record("OnFrequencyTool", [&] { GUIFrame::OnFrequencyTool(event); });
    }
    void OnParameterTool(wxCommandEvent& event) override
    {
        Record("OnParameterTool", [&] { GUIFrame::OnParameterTool(event); });
    }
    void OnGreylineTool(wxCommandEvent& event) override
    {
        Record("OnGreylineTool", [&] { GUIFrame::OnGreylineTool(event); });
    }

private:
    template <class Call>
    void Record(const char* name, Call layoutsOwn)
    {
        calls.emplace_back(name);
        if (handsOn)
            layoutsOwn();
    }
};

class FrameBindingsTest : public testing::Test
{
protected:
    void TearDown() override { bare->Destroy(); }

    /// The handlers that a command reaches.
    std::vector<std::string> Reached(wxEventType type, int id)
    {
        wxCommandEvent event(type, id);
        bare->calls.clear();
        wasTaken = bare->ProcessWindowEvent(event);
        return bare->calls;
    }

    std::vector<std::string> Pointed(wxEventType type)
    {
        wxMouseEvent event(type);
        bare->calls.clear();
        wasTaken = bare->m_canvas->ProcessWindowEvent(event);
        return bare->calls;
    }

    RecordingFrame* bare = new RecordingFrame;
    bool wasTaken = false;
};

TEST_F(FrameBindingsTest, LeadEveryCommandToItsHandler)
{
    std::map<int, const char*> tools{{1003, "OnCreateMap"},     {5003, "OnSaveImage"},     {1004, "OnOptionsTool"},
                                     {5009, "OnAbout"},         {1002, "OnParameterTool"}, {1014, "OnParameterTool"},
                                     {1015, "OnParameterTool"}, {1016, "OnParameterTool"}, {1017, "OnGreylineTool"}};
    for (int id = 1005; id <= 1013; ++id)
        tools[id] = "OnFrequencyTool";
    const std::map<int, const char*> entries{{1000, "OnQuit"}, {5041, "OnProperties"}, {1001, "OnAbout"}};
    for (const auto& commands : {tools, entries})
        for (const auto& [id, handler] : commands)
        {
            EXPECT_THAT(Reached(wxEVT_MENU, id), ElementsAre(handler)) << id;
            EXPECT_TRUE(wasTaken) << id;
        }
    EXPECT_THAT(Reached(wxEVT_MENU, 1018), IsEmpty());
}

TEST_F(FrameBindingsTest, LeadWhatHappensToTheWindowAndTheCanvasToItsHandler)
{
    EXPECT_THAT(Pointed(wxEVT_MOTION), ElementsAre("OnCanvasMotion"));
    EXPECT_THAT(Pointed(wxEVT_LEFT_DOWN), ElementsAre("OnCanvasLeftDown"));
    bare->calls.clear();
    wxActivateEvent activation(wxEVT_ACTIVATE, true, bare->GetId());
    bare->ProcessWindowEvent(activation);
    EXPECT_THAT(bare->calls, ElementsAre("OnActivate"));
    bare->calls.clear();
    bare->Close();
    EXPECT_THAT(bare->calls, ElementsAre("OnClose"));
}

TEST_F(FrameBindingsTest, LetEveryEventGoOnByThemselves)
{
    bare->handsOn = true;
    for (const int id : {1000, 5041, 1001, 1003, 5003, 5009, 1005, 1013, 1002, 1014, 1015, 1016, 1017})
    {
        EXPECT_EQ(Reached(wxEVT_MENU, id).size(), 1u) << id;
        EXPECT_FALSE(wasTaken) << id;
    }
    EXPECT_THAT(Reached(wxEVT_MENU, 1004), ElementsAre("OnOptionsTool", "OnProperties"));
    EXPECT_FALSE(wasTaken);
    for (const auto type : {static_cast<wxEventType>(wxEVT_MOTION), static_cast<wxEventType>(wxEVT_LEFT_DOWN)})
    {
        Pointed(type);
        EXPECT_FALSE(wasTaken) << type;
    }
    wxActivateEvent activation(wxEVT_ACTIVATE, true, bare->GetId());
    EXPECT_FALSE(bare->GetEventHandler()->ProcessEvent(activation) && !activation.GetSkipped());
}

TEST_F(FrameBindingsTest, LetTheWindowCloseByItself)
{
    auto* const other = new RecordingFrame;
    other->handsOn = true;
    const wxWeakRef<wxWindow> window(other);
    other->Close();
    for (int i = 0; i < 5; ++i)
    {
        wxTheApp->Yield(true);
        wxTheApp->ProcessIdle();
    }
    EXPECT_FALSE(window);
}
} // namespace

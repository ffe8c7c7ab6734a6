#include "tests/support/FrameFixture.h"
#include "tests/support/OnScreen.h"
#include "tests/support/Pictures.h"

#include <gmock/gmock.h>

#include <wx/eventfilter.h>
#include <wx/progdlg.h>

namespace
{
using testing::ElementsAre;

/// A part of a picture.
Colours Part(const Colours& whole, wxPoint place, wxSize size)
{
    Colours part;
    for (int y = place.y; y < place.y + size.y; ++y)
    {
        const auto from = whole[static_cast<std::size_t>(y)].begin() + place.x;
        part.emplace_back(from, from + size.x);
    }
    return part;
}

class ScreenMapTest : public FrameFixture
{
protected:
    void SetUp() override
    {
        FrameFixture::SetUp();
        // The window has come up.
        ASSERT_TRUE(Await([this] { return Canvas().GetClientSize().x > 700 && Canvas().GetClientSize().y > 300; }));
    }

    void Create()
    {
        settings->greyzone.show = true;
        settings->greyzone.timeMode = kOnce;
        settings->greyzone.once = {2026, 5, 20, 6, 30, 0};
        ASSERT_TRUE(frame->CreateMap());
    }

    /// What is to be seen: the map under its greyline.
    Colours Seen() const
    {
        wxBitmap seen(frame->Picture().Compose());
        return ColoursOf(seen);
    }

    /// The screen may take a moment to follow.
    testing::AssertionResult AwaitOnScreen(wxPoint place, const Colours& expected)
    {
        const wxSize size(static_cast<int>(expected.front().size()), static_cast<int>(expected.size()));
        testing::AssertionResult result = testing::AssertionSuccess();
        Await([&] { return static_cast<bool>(result = SamePicture(OnScreen(Canvas(), place, size), expected)); });
        return result;
    }
};

TEST_F(ScreenMapTest, IsShownInTheCornerWithWhiteBesideIt)
{
    Canvas().SetBackgroundColour(*wxRED); // is not to be seen
    Create();
    EXPECT_TRUE(AwaitOnScreen({0, 0}, Seen()));
    const wxSize room = Canvas().GetClientSize(); // the window manager has its say before
    const auto white = [](wxSize size)
    {
        return Colours(static_cast<std::size_t>(size.y),
                       std::vector<render::Argb>(static_cast<std::size_t>(size.x), render::kWhite));
    };
    EXPECT_TRUE(AwaitOnScreen({200, 0}, white({room.x - 200, room.y})));
    EXPECT_TRUE(AwaitOnScreen({0, 200}, white({room.x, room.y - 200})));
}

TEST_F(ScreenMapTest, IsShownScrolled)
{
    settings->size = 1500;
    Create();
    Settle(); // a new map is shown around its station
    const Colours seen = Seen();
    for (const wxPoint& scrolled : {wxPoint(0, 0), wxPoint(60, 33), wxPoint(100, 111)})
    {
        Canvas().Scroll(scrolled);
        EXPECT_TRUE(AwaitOnScreen({0, 0}, Part(seen, scrolled * 5, {400, 300}))) << scrolled.x;
    }
}

TEST_F(ScreenMapTest, IsHiddenWhileItIsNotReady)
{
    Create();
    Canvas().mapReady = Canvas().showGreyline = false;
    Canvas().ShowPicture();
    EXPECT_TRUE(AwaitOnScreen({0, 0}, Colours(200, std::vector<render::Argb>(200, render::kWhite))));
}

/// Keeps what has been shown of the progress of a creation.
class Progress : public wxEventFilter
{
public:
    Progress() { wxEvtHandler::AddFilter(this); }
    ~Progress() override { wxEvtHandler::RemoveFilter(this); }

    int FilterEvent(wxEvent& event) override
    {
        auto* const dialog = dynamic_cast<wxGenericProgressDialog*>(event.GetEventObject());
        if (dialog && event.GetEventType() == wxEVT_SHOW)
        {
            if (dynamic_cast<wxShowEvent&>(event).IsShown())
            {
                shown = dialog;
                if (onShown)
                    onShown(*dialog);
            }
            else
                ++hidden;
        }
        return Event_Skip;
    }

    wxGenericProgressDialog* shown = nullptr;
    std::function<void(wxGenericProgressDialog&)> onShown;
    int hidden = 0;
};

/// Watches the canvas being painted while a map is created.
class ScreenMapGrowthTest : public FrameFixture
{
protected:
    void SetUp() override
    {
        FrameFixture::SetUp();
        HideLayers();
        settings->compass.text.show = false;
        settings->zoom = 5000; // the picture is full of the earth
        settings->size = 250;
        // Painting asks this first.
        Canvas().Bind(wxEVT_PAINT,
                      [this](wxPaintEvent& event)
                      {
                          if (onPaint)
                              onPaint();
                          event.Skip();
                      });
        CountPaintings();
        Canvas().Refresh();
        ASSERT_TRUE(Await([this] { return paintings > 0; })); // the window has come up
        onPaint = nullptr;
    }
    void TearDown() override
    {
        onPaint = nullptr;
        FrameFixture::TearDown();
    }

    /// How many rows of the map are painted, from the top.
    int RowsPainted() const
    {
        if (!frame->Picture().mapBitmap)
            return -1;
        const Colours colours = ColoursOf(*frame->Picture().mapBitmap);
        const auto isBlank = [](const auto& row)
        { return std::ranges::all_of(row, [](render::Argb colour) { return colour == render::kWhite; }); };
        return static_cast<int>(std::ranges::find_if(colours, isBlank) - colours.begin());
    }

    /// Counts paintings from now on.
    void CountPaintings()
    {
        Settle();
        paintings = 0;
        onPaint = [this] { ++paintings; };
    }

    std::function<void()> onPaint;
    int paintings = 0;
};

TEST_F(ScreenMapGrowthTest, ShowsEveryHundredRows)
{
    std::vector<int> rows{0};
    onPaint = [&]
    {
        if (rows.back() != RowsPainted())
            rows.push_back(RowsPainted());
        EXPECT_TRUE(frame->Picture().mapReady);
    };
    ASSERT_TRUE(frame->CreateMap());
    EXPECT_THAT(rows, ElementsAre(0, 100, 200, 250));
}

TEST_F(ScreenMapGrowthTest, TellsItsProgressInADialogOfItsOwn)
{
    Progress progress;
    auto* const other = new wxFrame(nullptr, wxID_ANY, "another window");
    other->Show();
    Settle();
    std::vector<int> values{0};
    onPaint = [&]
    {
        ASSERT_TRUE(progress.shown);
        wxGenericProgressDialog& dialog = *progress.shown;
        EXPECT_EQ(dialog.GetTitle(), "Kavdex");
        EXPECT_EQ(dialog.GetMessage(), "                            Creating Map                            ");
        EXPECT_EQ(dialog.GetRange(), 250);
        EXPECT_EQ(dialog.GetParent(), frame);
        EXPECT_EQ(dialog.IsShown(), dialog.GetValue() < 250); // it hides itself
        EXPECT_EQ(other->IsThisEnabled(), !dialog.IsShown());
        EXPECT_EQ(frame->IsThisEnabled(), !dialog.IsShown());
        if (values.back() != dialog.GetValue())
            values.push_back(dialog.GetValue());
    };
    ASSERT_TRUE(frame->CreateMap());
    EXPECT_THAT(values, ElementsAre(0, 100, 200, 250));
    onPaint = nullptr;
    EXPECT_EQ(progress.hidden, 1);
    EXPECT_TRUE(frame->IsThisEnabled() && other->IsThisEnabled());
    other->Destroy();
}

TEST_F(ScreenMapGrowthTest, TellsNothingWhereTheWindowIsNotShown)
{
    frame->Hide();
    Settle();
    const Progress progress;
    ASSERT_TRUE(frame->CreateMap());
    EXPECT_FALSE(progress.shown);
}

/// A layer with more points than anyone wants to wait for, for a user without patience.
class ScreenLongLayerTest : public ScreenMapGrowthTest
{
protected:
    void SetUp() override
    {
        ScreenMapGrowthTest::SetUp();
        settings->borders[0].show = true;
        settings->borders[0].file = home.Write("long.pnt", "");
        std::filesystem::resize_file(home.Path("long.pnt").utf8_string(), 60'000'000);
        frame->patience = std::chrono::milliseconds(0);
        progress.onShown = [this](wxGenericProgressDialog& dialog)
        {
            if (dialog.GetMessage() == "Plotting Lines...")
                Look(dialog);
        };
    }

    /// Looks at the dialog and presses its button.
    void Look(wxGenericProgressDialog& dialog)
    {
        ++looks;
        EXPECT_EQ(dialog.GetTitle(), "Kavdex");
        EXPECT_EQ(dialog.GetParent(), frame);
        EXPECT_EQ(dialog.GetRange(), 1000);
        EXPECT_LT(dialog.GetValue(), 1000);
        auto* const cancel = dialog.FindWindow(wxID_CANCEL);
        ASSERT_TRUE(cancel);
        wxCommandEvent click(wxEVT_BUTTON, wxID_CANCEL);
        click.SetEventObject(cancel);
        cancel->GetEventHandler()->ProcessEvent(click);
    }

    Progress progress;
    int looks = 0;
};

TEST_F(ScreenLongLayerTest, IsStoppedByTheButtonOfItsDialog)
{
    RecordSteps();
    ASSERT_TRUE(frame->CreateMap());
    EXPECT_EQ(looks, 1);
    EXPECT_EQ(steps.back(), "Finished...");
    EXPECT_EQ(Status(0), "Plotting Lines... stopped: the map lacks the rest");
    EXPECT_TRUE(frame->IsThisEnabled());
    EXPECT_TRUE(Tools().GetToolEnabled(ui::kIdCreate));

    settings->borders[0].show = false;
    ASSERT_TRUE(frame->CreateMap());
    EXPECT_EQ(Status(0), "Finished...");
}

TEST_F(ScreenLongLayerTest, IsNotSpokenOfWhileItIsShort)
{
    std::filesystem::resize_file(home.Path("long.pnt").utf8_string(), 600'000);
    frame->patience = std::chrono::hours(1);
    ASSERT_TRUE(frame->CreateMap());
    EXPECT_EQ(looks, 0);
    EXPECT_EQ(Status(0), "Finished...");
}

TEST_F(ScreenMapGrowthTest, ShowsEachLayerAsSoonAsItIsDrawn)
{
    settings->meridians.show = settings->radials.show = true;
    settings->greyzone.show = true;
    settings->greyzone.timeMode = kOnce;
    std::vector<std::pair<wxString, int>> before;
    frame->onStep = [&](const wxString& step) { before.emplace_back(step, std::exchange(paintings, 0)); };
    CountPaintings();
    ASSERT_TRUE(frame->CreateMap());
    ASSERT_EQ(before.size(), 5u);
    EXPECT_EQ(before[1].first, "Drawing Lines...");
    EXPECT_GE(before[1].second, 3); // the base map
    for (std::size_t i = 2; i < before.size(); ++i)
        EXPECT_GE(before[i].second, 1) << before[i].first;
    EXPECT_EQ(before[4].first, "Finished...");
}

TEST_F(ScreenMapGrowthTest, ShowsAtOnceWhatCommandsChange)
{
    settings->greyzone.show = true;
    ASSERT_TRUE(frame->CreateMap());
    CountPaintings();
    ClickTool(1017, false);
    EXPECT_EQ(std::exchange(paintings, 0), 1);

    wxTimer timer(frame, 101);
    wxTimerEvent tick(timer);
    Tools().ToggleTool(1017, true);
    Canvas().greylineBitmap.reset();
    settings->greyzone.timeMode = kOnce;
    frame->GetEventHandler()->ProcessEvent(tick);
    EXPECT_EQ(std::exchange(paintings, 0), 1);

    dialogs.onOtherDialog = [](wxDialog&) { return wxID_CANCEL; };
    ClickTool(1004);
    EXPECT_EQ(std::exchange(paintings, 0), 1);

    settings->propagation.useExternalResult = true;
    settings->propagation.externalResult = home.Path("no such result.vg1");
    ClickTool(1006);
    EXPECT_EQ(std::exchange(paintings, 0), 1);

    frame->BlendLayer(wxImage(250, 250), frame->Picture().mapBitmap->ConvertToImage(), 255);
    EXPECT_EQ(std::exchange(paintings, 0), 1);
}
} // namespace

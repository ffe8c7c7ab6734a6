#include "tests/ui/MenuFixture.h"

#include <gmock/gmock.h>

namespace
{
using testing::ElementsAre;

/// The context menu of the map where there is no rotator.
class ScreenMapMenu : public MenuFixture
{
protected:
    /// What the read-out says of a place: latitude, longitude, locator.
    std::vector<wxString> ReadAt(wxPoint place)
    {
        for (const wxPoint at : {place + wxPoint(1, 1), place})
        {
            frame->SetStatusText("", 0);
            PointAt(at);
            EXPECT_TRUE(Await([this] { return Status(0).StartsWith("lat"); }));
        }
        return {Status(0).Mid(6).BeforeFirst(' '), Status(0).AfterFirst('/').Mid(8).BeforeFirst(' '),
                Status(0).AfterFirst('/').AfterFirst('/').Mid(1, 6)};
    }
};

TEST_F(ScreenMapMenu, OffersWhatCanBeDoneWithAPlace)
{
    Create();
    const wxString locator = ReadAt({120, 100})[2];
    RightClick({120, 100});
    EXPECT_THAT(rows, ElementsAre(wxString::Format(L"(%s, 4040.4 km, 90.0\u00b0)", locator), "", "Copy locator",
                                  "Copy position", "Copy bearing", "Centre here"));
}

TEST_F(ScreenMapMenu, CopiesTheLocator)
{
    Create();
    const wxString locator = ReadAt({120, 130})[2];
    RightClick({120, 130}, "Copy locator");
    EXPECT_EQ(Clipboard(), locator);
}

TEST_F(ScreenMapMenu, CopiesThePosition)
{
    Create();
    const std::vector<wxString> read = ReadAt({120, 130});
    RightClick({120, 130}, "Copy position");
    double lat = 0;
    double lon = 0;
    ASSERT_EQ(wxSscanf(Clipboard(), "%lf,%lf", &lat, &lon), 2) << Clipboard();
    EXPECT_EQ(wxString::Format("%.1f", lat), read[0]);
    EXPECT_EQ(wxString::Format("%.1f", lon), read[1]);
}

TEST_F(ScreenMapMenu, CopiesTheBearing)
{
    Create();
    RightClick({120, 130}, "Copy bearing");
    EXPECT_EQ(Clipboard(), "146.3"); // 180 - atan(20 / 30)
}

TEST_F(ScreenMapMenu, TakesThePlaceForTheNextMap)
{
    Create();
    const wxString locator = ReadAt({120, 130})[2];
    RightClick({120, 130}, "Centre here");
    EXPECT_EQ(LocatorField().GetValue(), locator);
    EXPECT_TRUE(steps.empty());
    EXPECT_EQ(settings->centreLoc, "JO65HQ");
}

TEST_F(ScreenMapMenu, OffTheDiscThereIsOnlyABearing)
{
    Create();
    RightClick({10, 10});
    EXPECT_THAT(rows, ElementsAre(L"(315.0\u00b0)", "", "Copy bearing"));
}

TEST_F(ScreenMapMenu, TheStationHasNoBearing)
{
    Create();
    RightClick({100, 100});
    EXPECT_THAT(rows, ElementsAre("(JO65HQ, 0.0 km)", "", "Copy locator", "Copy position", "Centre here"));
}

TEST_F(ScreenMapMenu, ABearingIsLessThanAWholeTurn)
{
    Create(4001); // 1 pixel to the left of 1998 is 359.97 degrees
    Canvas().Scroll(380, 0);
    Settle();
    const wxPoint place = Canvas().CalcScrolledPosition(wxPoint(1999, 60));
    RightClick(place);
    EXPECT_TRUE(rows[0].EndsWith(L", 0.0\u00b0)")) << rows[0];
}

TEST_F(ScreenMapMenu, FollowsTheScrolling)
{
    Create(1500);
    Canvas().Scroll(100, 111);
    Settle();
    const wxString locator = ReadAt({120, 130})[2];
    RightClick({120, 130});
    EXPECT_TRUE(rows[0].StartsWith("(" + locator)) << rows[0] << locator;
}

TEST_F(ScreenMapMenu, IsNotThereBeforeTheFirstMap)
{
    PointAt({50, 50});
    simulator.MouseClick(wxMOUSE_BTN_RIGHT);
    // The left click is handled after the right one.
    simulator.MouseClick();
    EXPECT_TRUE(Await([this] { return Canvas().HasFocus(); }));
    EXPECT_FALSE(HasBeenOpen());
}

TEST_F(ScreenMapMenu, ComesAtTheCrossByTheMenuKey)
{
    Create();
    PointAt({40, 40});
    simulator.MouseClick();
    ASSERT_TRUE(Await([this] { return Canvas().HasFocus(); }));
    EXPECT_FALSE(HasBeenOpen()); // a left click opens nothing
    simulator.Char(WXK_RIGHT, wxMOD_SHIFT);
    ASSERT_TRUE(Await([this] { return Canvas().Cross().has_value(); }));
    PressMenuKey();
    ASSERT_TRUE(HasOpened());
    EXPECT_TRUE(rows[0].EndsWith(L", 2020.2 km, 90.0\u00b0)")) << rows[0];
}

TEST_F(ScreenMapMenu, WithoutACrossTheMenuKeyDoesNothing)
{
    Create();
    PointAt({40, 40});
    simulator.MouseClick();
    ASSERT_TRUE(Await([this] { return Canvas().HasFocus(); }));
    PressMenuKey();
    simulator.Char(WXK_RIGHT, wxMOD_SHIFT);
    EXPECT_TRUE(Await([this] { return Canvas().Cross().has_value(); }));
    EXPECT_FALSE(HasBeenOpen());
}

TEST_F(ScreenMapMenu, TheWindowMayBeClosedUnderIt)
{
    Create();
    bool isGone = false;
    frame->Bind(wxEVT_DESTROY, [&](wxWindowDestroyEvent&) { isGone = true; });
    onMenuOpen = [this]
    {
        std::exchange(frame, nullptr)->Close();
        EXPECT_FALSE(IsOpen());
    };
    RightClick({120, 100});
    EXPECT_TRUE(Await([&] { return isGone; }));
}
} // namespace

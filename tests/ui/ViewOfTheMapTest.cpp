#include "tests/support/FrameFixture.h"

#include <cstdlib>

namespace
{
/// Which part of a map is seen that is larger than the window.
class ViewOfTheMapTest : public FrameFixture
{
protected:
    void Create(int size)
    {
        settings->size = size;
        ClickTool(ui::kIdCreate);
    }

    /// Whether the centre of the map stands in the middle of the canvas, to a step of scrolling.
    bool ShowsTheStation(int size) const
    {
        const wxPoint station = Canvas().CalcScrolledPosition(wxPoint(size / 2, size / 2));
        const wxSize view = Canvas().GetClientSize();
        return std::abs(station.x - view.x / 2) <= 5 && std::abs(station.y - view.y / 2) <= 5;
    }
};

TEST_F(ViewOfTheMapTest, BeginsWithTheStation)
{
    Create(900);
    EXPECT_TRUE(Await([this] { return ShowsTheStation(900); }));
}

TEST_F(ViewOfTheMapTest, GoesBackToTheStationWhenTheSizeChanges)
{
    Create(900);
    Settle();
    Canvas().Scroll(0, 0);
    Create(1300);
    EXPECT_TRUE(Await([this] { return ShowsTheStation(1300); }));
}

TEST_F(ViewOfTheMapTest, StaysWhereItIsForAMapOfTheSameSize)
{
    Create(1300);
    Settle();
    Canvas().Scroll(20, 7);
    const wxPoint view = Canvas().GetViewStart();
    Create(1300);
    Settle();
    EXPECT_EQ(Canvas().GetViewStart(), view);
    EXPECT_EQ(view, wxPoint(20, 7));
}

TEST_F(ViewOfTheMapTest, HoldsASmallMapWhole)
{
    Create(200);
    Settle();
    EXPECT_EQ(Canvas().GetViewStart(), wxPoint(0, 0));
}
} // namespace

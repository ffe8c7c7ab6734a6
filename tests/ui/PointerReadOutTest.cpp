#include "tests/support/FrameFixture.h"

namespace
{
class PointerReadOutTest : public FrameFixture
{
protected:
    void PointAt(int x, int y)
    {
        wxMouseEvent event(wxEVT_MOTION);
        event.SetPosition(wxPoint(x, y));
        event.SetEventObject(&Canvas());
        Canvas().GetEventHandler()->ProcessEvent(event);
    }

    void Create(long size = 200)
    {
        settings->size = size;
        settings->compass.text.show = false;
        ClickTool(ui::kIdCreate);
    }
};

TEST_F(PointerReadOutTest, IsSilentBeforeTheFirstMap)
{
    PointAt(50, 60);
    EXPECT_EQ(Status(0), "Kavmap By QQ0QQQ");
}

TEST_F(PointerReadOutTest, ReadsTheStationAtTheCentre)
{
    Create();
    PointAt(100, 100);
    EXPECT_EQ(Status(0), "lat = 55.7 / long = 12.6 / JO65HQ /   0.0 km / 0.0 degs");
}

TEST_F(PointerReadOutTest, ReadsBearingsClockwiseFromNorth)
{
    Create();
    PointAt(60, 100);
    EXPECT_TRUE(Status(0).EndsWith(" km / 270.0 degs")) << Status(0);
    PointAt(100, 140);
    EXPECT_TRUE(Status(0).EndsWith(" km / 180.0 degs")) << Status(0);
    PointAt(100, 60);
    EXPECT_TRUE(Status(0).EndsWith(" km / 0.0 degs")) << Status(0);
    PointAt(140, 100);
    EXPECT_TRUE(Status(0).EndsWith(" km / 90.0 degs")) << Status(0);
}

TEST_F(PointerReadOutTest, ReadsTheDistanceInKilometres)
{
    Create(); // 20000 km over 99 pixels are 202020 m a pixel
    PointAt(110, 100);
    EXPECT_TRUE(Status(0).Contains(" / 2020.2 km / ")) << Status(0);
}

TEST_F(PointerReadOutTest, IsEmptyFromTheRimOn)
{
    settings->zoom = 100;
    Create(); // 1010 m a pixel
    PointAt(100 + 98, 100);
    EXPECT_TRUE(Status(0).Contains(" /  99.0 km / ")) << Status(0);
    PointAt(100 + 99, 100); // 99.99 km
    EXPECT_TRUE(Status(0).Contains(" / 100.0 km / ")) << Status(0);
    PointAt(100, 100 + 100); // 101 km
    EXPECT_EQ(Status(0), "");
}

TEST_F(PointerReadOutTest, IsEmptyAtExactlyTheRim)
{
    settings->zoom = 100;
    Create(202); // 1000 m a pixel
    PointAt(101 + 99, 101);
    EXPECT_TRUE(Status(0).Contains(" /  99.0 km / ")) << Status(0);
    PointAt(101 + 100, 101);
    EXPECT_EQ(Status(0), "");
}

TEST_F(PointerReadOutTest, IsTheSameWhereverTheCanvasIsScrolled)
{
    Create(1500);
    PointAt(600, 300);
    const wxString unscrolled = Status(0);
    Canvas().Scroll(80, 40); // by 5 pixels each
    Settle();
    ASSERT_EQ(Canvas().CalcUnscrolledPosition(wxPoint(0, 0)), wxPoint(400, 200));
    PointAt(200, 100);
    EXPECT_EQ(Status(0), unscrolled);
    EXPECT_TRUE(unscrolled.StartsWith("lat = "));
}

TEST_F(PointerReadOutTest, KeepsWorkingOnTheMapShownAfterASizeError)
{
    Create();
    settings->size = 99;
    ClickTool(ui::kIdCreate);
    PointAt(100, 100);
    EXPECT_EQ(Status(0), "lat = 55.7 / long = 12.6 / JO65HQ /   0.0 km / 0.0 degs");
}

TEST_F(PointerReadOutTest, BelongsToTheMapThatWasCreated)
{
    Create();
    settings->centreLat = -20;
    settings->zoom = 100;
    settings->size = 900;
    PointAt(100, 100);
    EXPECT_EQ(Status(0), "lat = 55.7 / long = 12.6 / JO65HQ /   0.0 km / 0.0 degs");
}
} // namespace

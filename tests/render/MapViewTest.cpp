#include "render/MapView.h"

#include "tests/support/TemporaryHome.h"

#include <gtest/gtest.h>

#include <limits>

namespace
{
class MapViewTest : public testing::Test
{
protected:
    const TemporaryHome home;
    Configuration settings{"Kavdex"};
};

TEST_F(MapViewTest, RadiusStaysBetween100And20000Km)
{
    EXPECT_EQ(render::MapRadius(50), 100000);
    EXPECT_EQ(render::MapRadius(99), 100000);
    EXPECT_EQ(render::MapRadius(101), 101000);
    EXPECT_EQ(render::MapRadius(20001), 20000000);
    EXPECT_EQ(render::MapRadius(30000), 20000000);
    EXPECT_EQ(render::MapRadius(std::numeric_limits<long>::min()), 100000);
}

TEST_F(MapViewTest, ReachesTheWholeEarthUnlessTheCompassIsShown)
{
    settings.zoom = 5000;
    EXPECT_EQ(render::VisibleLimit(settings), 5000000);
    settings.compass.show = false;
    EXPECT_EQ(render::VisibleLimit(settings), 20000000);
}

TEST_F(MapViewTest, TakesTheZoomAsItStandsForTheLimit)
{
    settings.zoom = 50;
    EXPECT_EQ(render::VisibleLimit(settings), 50000);
    settings.zoom = std::numeric_limits<long>::max();
    EXPECT_GT(render::VisibleLimit(settings), 20015077);
    settings.zoom = std::numeric_limits<long>::min();
    EXPECT_LT(render::VisibleLimit(settings), 0);
}

TEST_F(MapViewTest, ShowsNeitherTheCentreNorTheLimit)
{
    const MapView view = render::MakeMapView(settings, 1);
    EXPECT_FALSE(view.IsVisible(0));
    EXPECT_TRUE(view.IsVisible(1));
    EXPECT_TRUE(view.IsVisible(19999999));
    EXPECT_FALSE(view.IsVisible(20000000));
    EXPECT_FALSE(view.IsVisible(-1));
}

TEST_F(MapViewTest, LeavesAMarginForTheCompassFigures)
{
    const MapView view = render::MakeMapView(settings, 17);
    EXPECT_EQ(view.compassTextHeight, 17);
    EXPECT_EQ(view.frame.mapMargin, 17);
    EXPECT_EQ(view.frame.metresPerPixel, 20000000 / 433);
}

TEST_F(MapViewTest, LeavesAMarginForTheRingOutsideTheDisc)
{
    settings.compass.text.show = false;
    settings.compass.insideMap = false;
    const MapView view = render::MakeMapView(settings, 17);
    EXPECT_EQ(view.compassTextHeight, 1);
    EXPECT_EQ(view.frame.mapMargin, 10);
    EXPECT_EQ(view.frame.metresPerPixel, 45454.0);
}

TEST_F(MapViewTest, KeepsTheScaleWhenTheMarginTakesTheWholePicture)
{
    settings.size = 100;
    EXPECT_EQ(render::MakeMapView(settings, 155207).frame.metresPerPixel, 20000000.0);
}

TEST_F(MapViewTest, BringsTheCentreOntoTheGlobe)
{
    settings.centreLat = 200;
    settings.centreLon = -500;
    const MapView view = render::MakeMapView(settings, 1);
    EXPECT_EQ(view.projection.centreLatDeg, 90.0);
    EXPECT_EQ(view.projection.centreLonDeg, -180.0);
}
} // namespace

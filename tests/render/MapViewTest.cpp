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
    Settings settings = DefaultSettings();
};

TEST_F(MapViewTest, RadiusStaysBetween100And20000Km)
{
    EXPECT_EQ(render::MapRadius(50), 100000);
    EXPECT_EQ(render::MapRadius(99), 100000);
    EXPECT_EQ(render::MapRadius(19999), 19999000);
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
    EXPECT_EQ(render::VisibleLimit(settings), 9223372036854775000);
    settings.zoom = std::numeric_limits<long>::min();
    EXPECT_EQ(render::VisibleLimit(settings), -9223372036854775000);
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

TEST_F(MapViewTest, HoldsTheSettingsOfTheMap)
{
    for (const double lat : {-90.0, -33.25, 0.0, 89.5, 90.0})
        for (const double lon : {-180.0, -12.5, 180.0})
        {
            settings.size = 777;
            settings.zoom = 1234;
            settings.centreLat = lat;
            settings.centreLon = lon;
            const MapView view = render::MakeMapView(settings, 5);
            EXPECT_EQ(view.projection.centreLatDeg, lat);
            EXPECT_EQ(view.projection.centreLonDeg, lon);
            EXPECT_EQ(view.projection.falseEasting, 0);
            EXPECT_EQ(view.projection.falseNorthing, 0);
            EXPECT_EQ(view.frame.mapSize, 777);
            EXPECT_EQ(view.frame.mapRadius, 1234000);
            EXPECT_EQ(view.visibleLimit, 1234000);
            EXPECT_EQ(view.Disc().limitMetres, 1234000);
        }
}

TEST_F(MapViewTest, PutsNoPlaceFartherAwayThanTwoToTheTwentiethPixel)
{
    settings.centreLat = 0;
    settings.centreLon = 0;
    settings.zoom = 20000;
    MapView view = render::MakeMapView(settings, 1);
    constexpr double kThousandKm = 1e6 / 6370997.0;
    const auto pixelAt = [&](double east, double north, double pixels)
    {
        view.frame.metresPerPixel = 1e6 / pixels;
        return view.VisiblePixel({north * kThousandKm, east * kThousandKm});
    };
    const int half = view.frame.half;
    constexpr int kFarthest = 1048576;
    const auto expectAt = [](std::optional<geo::Pixel> got, int x, int y)
    {
        ASSERT_TRUE(got);
        EXPECT_EQ(*got, (geo::Pixel{x, y}));
    };
    expectAt(pixelAt(1, 0, kFarthest - half + 0.5), kFarthest, half);
    expectAt(pixelAt(0, -1, kFarthest - half + 0.5), half, kFarthest);
    expectAt(pixelAt(-1, 0, kFarthest + half + 0.5), -kFarthest, half);
    expectAt(pixelAt(0, 1, kFarthest + half + 0.5), half, -kFarthest);
    EXPECT_FALSE(pixelAt(1, 0, kFarthest - half + 1.5));
    EXPECT_FALSE(pixelAt(0, -1, kFarthest - half + 1.5));
    EXPECT_FALSE(pixelAt(-1, 0, kFarthest + half + 1.5));
    EXPECT_FALSE(pixelAt(0, 1, kFarthest + half + 1.5));
}

TEST_F(MapViewTest, BringsTheCentreOntoTheGlobe)
{
    settings.centreLat = 200;
    settings.centreLon = -500;
    const MapView view = render::MakeMapView(settings, 1);
    EXPECT_EQ(view.projection.centreLatDeg, 90.0);
    EXPECT_EQ(view.projection.centreLonDeg, -180.0);
    settings.centreLat = -90.01;
    settings.centreLon = 180.01;
    const MapView other = render::MakeMapView(settings, 17);
    EXPECT_EQ(other.projection.centreLatDeg, -90.0);
    EXPECT_EQ(other.projection.centreLonDeg, 180.0);
}
} // namespace

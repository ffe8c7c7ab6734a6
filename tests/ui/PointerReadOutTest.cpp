#include "tests/support/FrameFixture.h"

#include <cmath>
#include <numbers>
#include <random>

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
        // A new map is shown around its station; here points are counted from its corner.
        Settle();
        Canvas().Scroll(0, 0);
        Settle();
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
    Canvas().Scroll(0, 0);
    PointAt(600, 300);
    const wxString unscrolled = Status(0);
    Canvas().Scroll(80, 40); // by 5 pixels each
    Settle();
    ASSERT_EQ(Canvas().CalcUnscrolledPosition(wxPoint(0, 0)), wxPoint(400, 200));
    PointAt(200, 100);
    EXPECT_EQ(Status(0), unscrolled);
    EXPECT_TRUE(unscrolled.StartsWith("lat = "));
}

/// What is to be read at a place east and north of the station, in metres; worked out with vectors.
wxString ReadOutAt(double latDeg, double lonDeg, double east, double north)
{
    constexpr double kDeg = 180 / std::numbers::pi;
    const double metres = std::hypot(east, north);
    const double angle = metres / 6370997.0;
    const double up = std::cos(angle);
    const double towardsNorth = std::sin(angle) * north / metres;
    const double towardsEast = std::sin(angle) * east / metres;
    const double lat0 = latDeg / kDeg;
    const double lat = kDeg * std::asin(up * std::sin(lat0) + towardsNorth * std::cos(lat0));
    double lon = lonDeg + kDeg * std::atan2(towardsEast, up * std::cos(lat0) - towardsNorth * std::sin(lat0));
    lon -= 360 * std::floor((lon + 180) / 360);
    const auto letter = [](char first, double index) { return static_cast<char>(first + static_cast<int>(index)); };
    const double x = lon + 180;
    const double y = lat + 90;
    const std::string locator{letter('A', x / 20),
                              letter('A', y / 10),
                              letter('0', std::fmod(x, 20) / 2),
                              letter('0', std::fmod(y, 10)),
                              letter('A', std::fmod(x, 2) * 12),
                              letter('A', std::fmod(y, 1) * 24)};
    double bearing = kDeg * std::atan2(east, north);
    bearing += bearing < 0 ? 360 : 0;
    return wxString::Format("lat = %3.1f / long = %3.1f / %s / %5.1f km / %3.1f degs", lat, lon, locator, metres / 1000,
                            bearing);
}

TEST_F(PointerReadOutTest, TellsEveryPlaceOfAnyMap)
{
    std::mt19937 random(5);
    const auto between = [&](int low, int high) { return std::uniform_int_distribution(low, high)(random); };
    int outside = 0;
    for (int map = 0; map < 8; ++map)
    {
        settings->zoom = map == 0 ? 20000 : between(100, 19999);
        settings->centreLat = between(-890, 890) / 10.0 + 0.03;
        settings->centreLon = between(-1799, 1799) / 10.0 + 0.03;
        const int size = between(200, 301);
        Create(size);
        const double scale = static_cast<double>(settings->zoom * 1000 / ((size - 2) / 2));
        for (int i = 0; i < 200; ++i)
        {
            const int x = between(0, size - 1);
            const int y = between(0, size - 1);
            const double east = (x - size / 2) * scale;
            const double north = (size / 2 - y) * scale;
            if (east == 0 && north == 0)
                continue;
            const bool isOutside = std::hypot(east, north) >= 1000.0 * static_cast<double>(settings->zoom);
            outside += isOutside;
            PointAt(x, y);
            EXPECT_EQ(Status(0),
                      isOutside ? wxString() : ReadOutAt(settings->centreLat, settings->centreLon, east, north))
                << map << ": " << x << ", " << y;
        }
    }
    EXPECT_GT(outside, 100);
}

TEST_F(PointerReadOutTest, EndsAtTheRadiusOfLargeMapsToo)
{
    settings->zoom = 19998;
    Create(300); // 134214 m a pixel
    PointAt(150 + 149, 150);
    EXPECT_TRUE(Status(0).Contains(" / 19997.9 km / ")) << Status(0);
    PointAt(150 + 149, 151); // 19998.3 km
    EXPECT_EQ(Status(0), "");
    settings->zoom = 5000;
    Create(1000);            // 10020 m a pixel
    PointAt(500, 500 + 499); // 4999.98 km
    EXPECT_TRUE(Status(0).Contains(" / 5000.0 km / ")) << Status(0);
    PointAt(500 + 2, 500 + 499); // 5000.02 km
    EXPECT_EQ(Status(0), "");
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

#include "render/BaseMap.h"

#include "tests/support/Pictures.h"
#include "tests/support/TemporaryHome.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

namespace
{
using render::Argb;

/// A world in which every pixel has a colour of its own: red and green are its column, blue its row.
wxImage NumberedWorld(int width, int height)
{
    wxImage image(width, height);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            image.SetRGB(x, y, static_cast<unsigned char>(x % 256), static_cast<unsigned char>(x / 256),
                         static_cast<unsigned char>(y % 256));
    return image;
}

class BaseMapTest : public testing::Test
{
protected:
    const TemporaryHome home;
    Settings settings = DefaultSettings();

    Colours Paint(const render::WorldPicture& world, const MapView& view) const
    {
        const geo::RowSampler sampler = render::BaseMapRows(view, world);
        Colours rows(static_cast<std::size_t>(view.frame.mapSize));
        for (std::size_t y = 0; y < rows.size(); ++y)
        {
            rows[y].resize(rows.size());
            sampler.Row(static_cast<int>(y), rows[y]);
        }
        return rows;
    }
};

/// The position under a pixel by rotating unit vectors: another way than the program's. None outside the disc.
struct Expected
{
    bool inside;
    double column;
    double row;
};

Expected ExpectedCell(const MapView& view, int x, int y, int width, int height)
{
    const double east = (x - view.frame.half) * view.frame.metresPerPixel;
    const double north = (view.frame.half - y) * view.frame.metresPerPixel;
    const double range = std::hypot(east, north);
    if (range < 1 || range >= static_cast<double>(view.visibleLimit) || range > 20015077.37)
        return {false, 0, 0};
    const double z = range / 6370997.0;
    const double lat0 = view.projection.centreLatDeg * std::numbers::pi / 180;
    const double up = std::cos(z);
    const double n = std::sin(z) * north / range;
    const double e = std::sin(z) * east / range;
    const double lat =
        std::atan2(up * std::sin(lat0) + n * std::cos(lat0), std::hypot(up * std::cos(lat0) - n * std::sin(lat0), e));
    double lon =
        view.projection.centreLonDeg + std::atan2(e, up * std::cos(lat0) - n * std::sin(lat0)) * 180 / std::numbers::pi;
    lon = std::remainder(lon, 360.0);
    return {true, (lon + 180) * width / 360.0, (90 - lat * 180 / std::numbers::pi) * height / 180.0};
}

/// Every pixel must show the cell that the other way gives; within 1e-4 of a cell's edge the neighbour will do too.
void ExpectEveryPixelShowsItsCell(const Colours& painted, const MapView& view, int width, int height)
{
    std::size_t wrong = 0;
    for (int y = 0; y < view.frame.mapSize; ++y)
        for (int x = 0; x < view.frame.mapSize; ++x)
        {
            const Argb got = painted[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)];
            const Expected cell = ExpectedCell(view, x, y, width, height);
            bool good = !cell.inside && got == render::kWhite;
            for (const double dx : {-1e-4, 1e-4})
                for (const double dy : {-1e-4, 1e-4})
                {
                    const int column = ((static_cast<int>(std::floor(cell.column + dx)) % width) + width) % width;
                    const int row = std::min(static_cast<int>(cell.row + dy), height - 1);
                    good = good || (cell.inside && got == render::OpaquePixel(static_cast<unsigned>(column % 256),
                                                                              static_cast<unsigned>(column / 256),
                                                                              static_cast<unsigned>(row % 256)));
                }
            // Longitude +180 lies one past the last column and comes out black.
            good = good || (cell.inside && std::remainder(cell.column, width) < 1e-4 &&
                            std::remainder(cell.column, width) > -1e-4 && got == render::OpaquePixel(0, 0, 0));
            // The column is anybody's guess at a pole.
            const bool hard = cell.inside && (cell.row < 0.01 || cell.row > height - 0.01);
            wrong += !good && !hard;
        }
    EXPECT_EQ(wrong, 0u);
}

TEST_F(BaseMapTest, ShowsEachPlaceOfTheWorldWhereItBelongs)
{
    const render::WorldPicture world(NumberedWorld(720, 360));
    settings.compass.text.show = false;
    struct Case
    {
        double lat, lon;
        long size;
    };
    for (const Case& c : {Case{55.6875, 12.625, 300}, Case{90, 0, 201}, Case{-90, 30, 200}, Case{0, 180, 251},
                          Case{-33.5, -70.25, 300}, Case{10, -179.9, 199}})
    {
        SCOPED_TRACE(testing::Message() << c.lat << '/' << c.lon << " at " << c.size);
        settings.centreLat = c.lat;
        settings.centreLon = c.lon;
        settings.size = c.size;
        const MapView view = render::MakeMapView(settings, 1);
        ExpectEveryPixelShowsItsCell(Paint(world, view), view, 720, 360);
    }
}

TEST_F(BaseMapTest, FillsTheSquareUpTo20000KmWithoutTheCompass)
{
    settings.compass.show = false;
    settings.zoom = 10000;
    settings.size = 200;
    const MapView view = render::MakeMapView(settings, 1);
    const Colours map = Paint(render::WorldPicture(wxImage(8, 4)), view);
    EXPECT_EQ(map[0][100], render::OpaquePixel(0, 0, 0));
    EXPECT_EQ(map[0][0], render::OpaquePixel(0, 0, 0)); // about 14 300 km away
    settings.zoom = 20000;
    EXPECT_EQ(Paint(render::WorldPicture(wxImage(8, 4)), render::MakeMapView(settings, 1))[0][0], render::kWhite);
}

TEST_F(BaseMapTest, IsWhiteBeyondTheZoomWithTheCompass)
{
    settings.zoom = 5000;
    settings.size = 300;
    const MapView view = render::MakeMapView(settings, 17);
    const Colours map = Paint(render::WorldPicture(wxImage(8, 4)), view);
    for (int y = 0; y < 300; ++y)
        for (int x = 0; x < 300; ++x)
        {
            const double range = std::hypot(x - 150, y - 150) * view.frame.metresPerPixel;
            const bool white = map[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)] == render::kWhite;
            ASSERT_EQ(white, range >= 5000000 || range < 1) << x << ", " << y;
        }
}

TEST_F(BaseMapTest, HasAWhiteCentre)
{
    for (const long size : {200L, 201L})
    {
        settings.size = size;
        const Colours map = Paint(render::WorldPicture(wxImage(1, 1)), render::MakeMapView(settings, 1));
        EXPECT_EQ(map[100][100], render::kWhite);
        EXPECT_EQ(map[100][101], render::OpaquePixel(0, 0, 0));
    }
}

TEST_F(BaseMapTest, TakesPicturesOfAnySize)
{
    for (const wxSize size : {wxSize(1, 1), wxSize(1440, 720), wxSize(7, 3), wxSize(1000, 500)})
    {
        SCOPED_TRACE(testing::Message() << size.x << " x " << size.y);
        settings.size = 150;
        const MapView view = render::MakeMapView(settings, 1);
        ExpectEveryPixelShowsItsCell(Paint(render::WorldPicture(NumberedWorld(size.x, size.y)), view), view, size.x,
                                     size.y);
    }
}

TEST(WorldPicture, DoesNotLookAtOpacity)
{
    wxImage image = NumberedWorld(4, 2);
    image.InitAlpha();
    image.SetAlpha(3, 1, 0);
    EXPECT_EQ(render::WorldPicture(image).Cells().Pixels()[7], render::OpaquePixel(3, 0, 1));
}

TEST(WorldPicture, IsBlackJustBeyondItsEdges)
{
    wxImage image(4, 2);
    image.Clear(255);
    const render::WorldPicture world(image);
    const auto at = [&](double lat, double lon) {
        return world.Cells().At({lat * std::numbers::pi / 180, lon * std::numbers::pi / 180});
    };
    EXPECT_EQ(at(0, 179.9), 0xFFFFFFFF);
    EXPECT_EQ(at(-89.9, 0), 0xFFFFFFFF);
    EXPECT_EQ(at(0, 180), 0xFF000000);
    EXPECT_EQ(at(-90, 0), 0xFF000000);
}

TEST(BuiltInWorld, IsTheRightWayRound)
{
    const render::WorldPicture world = render::WorldPicture::BuiltIn();
    const auto isSea = [&](double lat, double lon)
    {
        const Argb pixel = world.Cells().At({lat / 57.2957795131, lon / 57.2957795131});
        return (pixel & 255) > ((pixel >> 16) & 255);
    };
    EXPECT_TRUE(isSea(0, -1));     // Gulf of Guinea
    EXPECT_TRUE(isSea(0, -150));   // Pacific
    EXPECT_TRUE(isSea(-40, 90));   // Indian Ocean
    EXPECT_FALSE(isSea(40, -90));  // North America
    EXPECT_FALSE(isSea(-25, 135)); // Australia
    EXPECT_FALSE(isSea(25, 10));   // Sahara
    EXPECT_FALSE(isSea(-10, -55)); // Brazil
}
} // namespace

#include "propagation/Overlay.h"

#include "geo/RowSampler.h"
#include "propagation/WorldGrid.h"
#include "render/BitmapPixels.h"
#include "tests/propagation/PlaceAt.h"
#include "tests/support/Pictures.h"
#include "tests/support/TemporaryHome.h"

#include <gtest/gtest.h>

#include <wx/image.h>

#include <cmath>
#include <numbers>

namespace
{
using namespace propagation;
using render::Argb;

using Pixels = std::vector<std::vector<Argb>>;

Pixels PixelsOf(wxBitmap& bitmap)
{
    const render::BitmapPixels pixels(bitmap);
    Pixels copy;
    for (int y = 0; y < pixels.Height(); ++y)
        copy.emplace_back(pixels.Row(y).begin(), pixels.Row(y).end());
    return copy;
}

class OverlayTest : public testing::Test
{
protected:
    OverlayTest()
    {
        settings.size = 240;
        LineReader file(KAV_TEST_DATA "/area_36x36.vg1");
        result = *ReadResult(file, Parameter::Sdbw);
        values = WorldValues(result);
    }

    MapView View() const { return render::MakeMapView(settings, 17); }
    ClassScale Scale() const { return ScaleOf(settings.propagation, result); }

    Pixels Draw(std::uint8_t alpha = 120) const
    {
        const auto overlay = BitmapOf(Overlay(View(), WorldClasses(values, Scale()), Scale(), alpha));
        return PixelsOf(*overlay);
    }

    const TemporaryHome home;
    Settings settings = DefaultSettings();
    ResultGrid result;
    std::vector<double> values;
};

/// The overlay drawn pixel by pixel into an image that is given an opacity at the end, and made a bitmap by the
/// toolkit.
Pixels PlainOverlay(const MapView& view, const std::vector<double>& values, const ClassScale& scale,
                    unsigned char alpha)
{
    const int side = view.frame.mapSize;
    wxImage image(side, side);
    image.SetRGB(wxRect(0, 0, side, side), 255, 255, 255);
    for (int y = 0; y < side; ++y)
        for (int x = 0; x < side; ++x)
        {
            double lonRad = 0;
            double latRad = 0;
            const auto distance = view.projection.Inverse(lonRad, latRad, (x - side / 2) * view.frame.metresPerPixel,
                                                          (side / 2 - y) * view.frame.metresPerPixel);
            if (distance >= view.visibleLimit || distance < 1)
                continue;
            const auto i = static_cast<int>((lonRad * 57.2957795131 + 180.0) * 5.0);
            const int j = 900 - static_cast<int>(5.0 * (90.0 - latRad * 57.2957795131));
            const double value = values[static_cast<std::size_t>(j * 1801 + i)];
            std::size_t k = 9;
            while (k > 0 && !(value > scale.thresholds[k]))
                --k;
            image.SetRGB(x, y, scale.colours[k].Red(), scale.colours[k].Green(), scale.colours[k].Blue());
        }
    image.InitAlpha();
    for (int y = 1; y < side - 1; ++y)
        for (int x = 1; x < side - 1; ++x)
            image.SetAlpha(x, y, alpha);
    wxBitmap bitmap(image);
    return PixelsOf(bitmap);
}

testing::AssertionResult Same(const Pixels& got, const Pixels& expected)
{
    if (got.size() != expected.size())
        return testing::AssertionFailure() << got.size() << " rows instead of " << expected.size();
    for (std::size_t y = 0; y < expected.size(); ++y)
        for (std::size_t x = 0; x < expected.size(); ++x)
            if (got[y][x] != expected[y][x])
                return testing::AssertionFailure() << "pixel " << x << ", " << y << " is " << std::hex << got[y][x]
                                                   << " instead of " << expected[y][x];
    return testing::AssertionSuccess();
}

TEST_F(OverlayTest, IsWhatTheToolkitMakesOfAnImageWithOpacity)
{
    struct Case
    {
        double lat, lon;
        long size, zoom;
    };
    for (const Case& c :
         {Case{55.6875, 12.625, 240, 20000}, Case{90, 0, 201, 20000}, Case{-90, 30, 200, 9000},
          Case{0, 180, 251, 20000}, Case{-33.5, -70.25, 300, 30000}, Case{0, 0, 100, 100}, Case{10, -180, 199, 15000}})
        for (const bool compass : {true, false})
        {
            SCOPED_TRACE(testing::Message() << c.lat << '/' << c.lon << " at " << c.size << ", compass " << compass);
            settings.centreLat = c.lat;
            settings.centreLon = c.lon;
            settings.size = c.size;
            settings.zoom = c.zoom;
            settings.compass.show = compass;
            EXPECT_TRUE(Same(Draw(), PlainOverlay(View(), values, Scale(), 120)));
        }
}

TEST_F(OverlayTest, HasTheSamePixelsAtOtherOpacities)
{
    settings.size = 100;
    for (unsigned alpha = 0; alpha < 256; alpha += 15)
        ASSERT_TRUE(Same(Draw(static_cast<std::uint8_t>(alpha)),
                         PlainOverlay(View(), values, Scale(), static_cast<unsigned char>(alpha))))
            << alpha;
}

TEST_F(OverlayTest, ShowsTheClassOfThePlaceUnderEachPixel)
{
    const MapView view = View();
    const ClassScale scale = Scale();
    const Pixels drawn = Draw(255);
    int checked = 0;
    for (int y = 0; y < 240; ++y)
        for (int x = 0; x < 240; ++x)
        {
            const double east = (x - 120) * view.frame.metresPerPixel;
            const double north = (120 - y) * view.frame.metresPerPixel;
            const double range = std::hypot(east, north);
            const Argb got = drawn[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)];
            if (range < 1 || range >= 20000000)
            {
                ASSERT_EQ(got, render::kWhite) << x << ", " << y;
                continue;
            }
            const Position place = PlaceAt(view, east, north);
            const double i = (place.lon + 180) * 5;
            const double j = (place.lat + 90) * 5;
            if (std::abs(std::remainder(i, 1.0)) < 1e-5 || std::abs(std::remainder(j, 1.0)) < 1e-5)
                continue; // on the edge of a cell
            const double value = values[static_cast<std::size_t>(std::ceil(j) * 1801 + std::floor(i))];
            const wxColour& colour = scale.colours[ClassOf(value, scale.thresholds)];
            ASSERT_EQ(got, render::OpaquePixel(colour.Red(), colour.Green(), colour.Blue())) << x << ", " << y;
            ++checked;
        }
    EXPECT_GT(checked, 30000);
}

TEST_F(OverlayTest, ReachesTheEndsOfTheGrid)
{
    // A centre on the date line and the south pole in sight: column 1800 and row 0 both come into play.
    settings.centreLat = -45;
    settings.centreLon = 180;
    settings.size = 201;
    settings.compass.show = false;
    std::ranges::fill(values, -1000.0);
    for (std::size_t i = 0; i < 1801; ++i)
        values[i] = 1000; // latitude -90
    for (std::size_t j = 0; j < 901; ++j)
        values[j * 1801 + 1800] = 1000; // longitude +180
    EXPECT_TRUE(Same(Draw(), PlainOverlay(View(), values, Scale(), 120)));
    EXPECT_EQ(
        geo::WorldCells::Lattice(WorldClasses(values, Scale()).data(), 5).At({-std::numbers::pi / 2, std::numbers::pi}),
        9u);
}

TEST_F(OverlayTest, EndsAtTheCompassRing)
{
    settings.zoom = 10000;
    std::ranges::fill(values, -90.0);
    const MapView view = View();
    const Pixels drawn = Draw(255);
    for (int y = 0; y < 240; ++y)
        for (int x = 0; x < 240; ++x)
        {
            const double range = std::hypot(x - 120, y - 120) * view.frame.metresPerPixel;
            const bool white = drawn[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)] == render::kWhite;
            ASSERT_EQ(white, range < 1 || range >= 10000000) << x << ", " << y;
        }
}

TEST_F(OverlayTest, KeepsTheOutermostFrameOpaque)
{
    settings.compass.show = false;
    settings.zoom = 10000; // the classes reach the edges
    const Pixels drawn = Draw(77);
    for (std::size_t y = 0; y < 240; ++y)
        for (std::size_t x = 0; x < 240; ++x)
        {
            const bool frame = x == 0 || y == 0 || x == 239 || y == 239;
            ASSERT_EQ(drawn[y][x] >> 24, frame ? 255u : 77u) << x << ", " << y;
        }
}

TEST_F(OverlayTest, IsWhiteWithTheSameOpacityWhereNothingIsDrawn)
{
    const Pixels drawn = Draw(120);
    EXPECT_EQ(drawn[120][120], render::PremultipliedPixel(255, 255, 255, 120)); // the station
    EXPECT_EQ(drawn[1][1], render::PremultipliedPixel(255, 255, 255, 120));
    EXPECT_EQ(drawn[0][0], render::kWhite);
}
} // namespace

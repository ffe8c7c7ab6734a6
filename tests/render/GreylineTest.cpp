#include "render/Greyline.h"

#include "render/BitmapPixels.h"
#include "render/Bitmaps.h"
#include "tests/support/LiteralMap.h"
#include "tests/support/Pictures.h"

#include <algorithm>

#include <cmath>
#include <cstdlib>
#include <numbers>
#include <random>

namespace
{
using render::Argb;

constexpr double kDegrees = 180.0 / std::numbers::pi;

/// A pixel as the picture of an overlay has it: colour and opacity.
Argb OverlayPixel(unsigned grey, unsigned alpha)
{
    return render::PremultipliedPixel(grey, grey, grey, alpha);
}

class GreylineTest : public testing::Test
{
protected:
    GreylineTest()
    {
        settings.size = 161;
        settings.compass.text.show = false;
        settings.greyzone.show = true;
    }

    MapView View() const { return render::MakeMapView(settings, 1); }

    std::unique_ptr<wxBitmap> Draw(geo::LatLon sun) const
    {
        return BitmapOf(render::GreylineOverlay(View(), settings.greyzone, sun));
    }

    /// Degrees from the sub-solar point to the place under a pixel, by unit vectors; negative outside the disc.
    static double SunDistance(const MapView& view, int x, int y, geo::LatLon sun)
    {
        const double east = (x - view.frame.half) * view.frame.metresPerPixel;
        const double north = (view.frame.half - y) * view.frame.metresPerPixel;
        const double range = std::hypot(east, north);
        if (range < 1 || range >= static_cast<double>(view.visibleLimit) || range > 20015077.37)
            return -1;
        const double lat0 = view.projection.centreLatDeg / kDegrees;
        const double z = range / 6370997.0;
        const double n = std::sin(z) * north / range;
        const double e = std::sin(z) * east / range;
        const double px = std::cos(z) * std::cos(lat0) - n * std::sin(lat0);
        const double pz = std::cos(z) * std::sin(lat0) + n * std::cos(lat0);
        const double dlon = (sun.lon - view.projection.centreLonDeg) / kDegrees;
        const double cosine = std::cos(sun.lat / kDegrees) * (std::cos(dlon) * px + std::sin(dlon) * e) +
                              std::sin(sun.lat / kDegrees) * pz;
        return std::acos(std::clamp(cosine, -1.0, 1.0)) * kDegrees;
    }

    double ExpectedLevel(double z) const
    {
        const auto width = static_cast<double>(settings.greyzone.widthDeg);
        const double grey = static_cast<double>(settings.greyzone.darkeningGrey) * 2.55;
        const double night = static_cast<double>(settings.greyzone.darkeningNight) * 2.55;
        if (z < 90 - width / 2)
            return 255;
        if (z > 90 + width / 2)
            return night;
        return settings.greyzone.gradient ? night + std::fabs(grey - night) * (90 + width / 2 - z) / width : grey;
    }

    /// Compares every pixel but those under the sun with the level of its distance from the sun.
    void ExpectEveryPixelsShade(const wxBitmap& drawn, geo::LatLon sun) const
    {
        wxBitmap overlay(drawn);
        const render::BitmapPixels pixels(overlay);
        const MapView view = View();
        const auto sunPixel = view.VisiblePixel({sun.lat / kDegrees, sun.lon / kDegrees});
        int wrong = 0;
        for (int y = 0; y < pixels.Height(); ++y)
            for (int x = 0; x < pixels.Width(); ++x)
            {
                if (sunPixel && std::abs(x - sunPixel->x) <= 11 && std::abs(y - sunPixel->y) <= 11)
                    continue;
                const double z = SunDistance(view, x, y, sun);
                const bool frame = x == 0 || y == 0 || x == pixels.Width() - 1 || y == pixels.Height() - 1;
                bool good = false;
                for (const double nearby : {z - 1e-5, z + 1e-5}) // beside a step either side will do
                {
                    const auto level = static_cast<unsigned>(z < 0 ? 255 : ExpectedLevel(nearby));
                    good = good ||
                           pixels.Row(y)[static_cast<std::size_t>(x)] == OverlayPixel(level, frame ? 255 : 255 - level);
                }
                wrong += !good;
            }
        EXPECT_EQ(wrong, 0);
    }

    /// Compares an overlay with one made in a few lines: the level of each pixel, over them the sun by plain calls.
    void ExpectTheLiteralDrawing(geo::LatLon sun) const
    {
        const auto overlay = Draw(sun);
        const auto expected = render::NewOverlayBitmap(static_cast<int>(settings.size));
        {
            const geo::GreylineShade shade{{sun.lat * 0.01745329251994328, sun.lon * 0.01745329251994328},
                                           static_cast<double>(settings.greyzone.widthDeg),
                                           settings.greyzone.gradient,
                                           static_cast<double>(settings.greyzone.darkeningGrey),
                                           static_cast<double>(settings.greyzone.darkeningNight)};
            const geo::GreylineRows rows(View().Disc(), shade);
            const render::BitmapPixels pixels(*expected);
            const int last = pixels.Height() - 1;
            for (int y = 0; y <= last; ++y)
                for (int x = 0; x <= last; ++x)
                {
                    const unsigned level = rows.Pixel(x, y);
                    const bool frame = x == 0 || y == 0 || x == last || y == last;
                    pixels.Row(y)[static_cast<std::size_t>(x)] = OverlayPixel(level, frame ? 255 : 255 - level);
                }
        }
        if (const auto at = LiteralMap(settings, 1).At(sun.lat, sun.lon))
        {
            wxMemoryDC dc(*expected);
            dc.GetGraphicsContext()->SetAntialiasMode(wxANTIALIAS_NONE);
            dc.SetPen(*wxYELLOW_PEN);
            dc.SetBrush(*wxYELLOW_BRUSH);
            const std::array<wxPoint, 8> rays{
                {{0, -10}, {7, -7}, {10, 0}, {7, 7}, {0, 10}, {-7, 7}, {-10, 0}, {-7, -7}}};
            for (const wxPoint& ray : rays)
                dc.DrawLine(*at, *at + ray);
            dc.DrawEllipse(at->x - 4, at->y - 4, 8, 8);
        }
        const render::BitmapPixels got(*overlay);
        const render::BitmapPixels wanted(*expected);
        for (int y = 0; y < got.Height(); ++y)
            ASSERT_TRUE(std::ranges::equal(got.Row(y), wanted.Row(y))) << "row " << y;
    }

    const TemporaryHome home;
    Settings settings = DefaultSettings();
};

constexpr geo::LatLon kMarchNoon{0.0, 2.0};
constexpr geo::LatLon kJuneMorning{23.44, 95.0};
constexpr geo::LatLon kDecemberEvening{-23.44, -170.0};

TEST_F(GreylineTest, ShadesEveryPixelByItsDistanceFromTheSun)
{
    struct Centre
    {
        double lat, lon;
    };
    for (const Centre& centre :
         {Centre{55.6875, 12.625}, Centre{90, 0}, Centre{-90, 0}, Centre{0, 180}, Centre{-33.5, -70.25}})
        for (const geo::LatLon& sun : {kMarchNoon, kJuneMorning, kDecemberEvening})
        {
            SCOPED_TRACE(testing::Message() << centre.lat << '/' << centre.lon << ", sun " << sun.lat);
            settings.centreLat = centre.lat;
            settings.centreLon = centre.lon;
            ExpectEveryPixelsShade(*Draw(sun), sun);
        }
}

TEST_F(GreylineTest, ShadesTheWholeGreyzoneAlikeWithoutGradient)
{
    settings.greyzone.gradient = false;
    ExpectEveryPixelsShade(*Draw(kJuneMorning), kJuneMorning);
}

TEST_F(GreylineTest, IsClearWhereTheMapShowsNothing)
{
    settings.zoom = 5000;
    const auto overlay = Draw(kDecemberEvening);
    ExpectEveryPixelsShade(*overlay, kDecemberEvening);
    const render::BitmapPixels pixels(*overlay);
    EXPECT_EQ(pixels.Row(3)[3], 0u);
    EXPECT_EQ(pixels.Row(0)[3], render::kWhite); // the frame is opaque
}

TEST_F(GreylineTest, IsBlackAndOpaqueAtNightWithoutAnyLight)
{
    settings.greyzone.darkeningNight = 0;
    settings.centreLat = -kJuneMorning.lat;
    settings.centreLon = kJuneMorning.lon - 180; // midnight
    const auto overlay = Draw(kJuneMorning);
    const render::BitmapPixels pixels(*overlay);
    EXPECT_EQ(pixels.Row(80)[85], render::OpaquePixel(0, 0, 0));
}

TEST_F(GreylineTest, HasASunOverItsSubSolarPoint)
{
    const auto overlay = Draw(kMarchNoon);
    const render::BitmapPixels pixels(*overlay);
    const auto sun = View().VisiblePixel({kMarchNoon.lat / kDegrees, kMarchNoon.lon / kDegrees});
    ASSERT_TRUE(sun);
    constexpr Argb kYellow = render::OpaquePixel(255, 255, 0);
    const auto at = [&](int dx, int dy) { return pixels.Row(sun->y + dy)[static_cast<std::size_t>(sun->x + dx)]; };
    for (const auto& [dx, dy] : {std::pair{0, 0}, {0, -9}, {9, 0}, {0, 8}, {-8, 0}, {6, -6}, {-6, 6}, {3, 0}})
        EXPECT_EQ(at(dx, dy), kYellow) << dx << ", " << dy;
    // Between the rays the day is clear; nothing in between is half yellow.
    for (int dy = -14; dy <= 14; ++dy)
        for (int dx = -14; dx <= 14; ++dx)
            EXPECT_TRUE(at(dx, dy) == kYellow || at(dx, dy) == 0) << dx << ", " << dy;
    EXPECT_EQ(at(8, -3), 0u);
}

TEST_F(GreylineTest, IsTheShadeOfEveryPixelUnderTheSun)
{
    std::mt19937 random(4);
    const auto between = [&](double lowest, double highest)
    { return std::uniform_real_distribution(lowest, highest)(random); };
    for (int round = 0; round < 12; ++round)
    {
        settings.size = 100 + static_cast<long>(random() % 120);
        settings.compass.show = round % 3 > 0;
        settings.zoom = round % 2 ? 20000 : 6000;
        settings.centreLat = between(-80, 80);
        settings.centreLon = between(-179, 179);
        settings.greyzone.widthDeg = static_cast<long>(random() % 30);
        settings.greyzone.gradient = round % 4 > 0;
        settings.greyzone.darkeningGrey = static_cast<long>(random() % 101);
        settings.greyzone.darkeningNight = static_cast<long>(random() % 101);
        const geo::LatLon sun{between(-23, 23), settings.centreLon + between(-60, 60)};
        SCOPED_TRACE(round);
        ExpectTheLiteralDrawing(sun);
    }
}

TEST_F(GreylineTest, CutsTheSunOffAtTheEdges)
{
    settings.size = 100;
    settings.zoom = 1000;
    settings.centreLat = 0;
    settings.centreLon = 20;
    settings.compass.show = false;
    const MapView view = View();
    // Well within a pixel.
    const auto inDegrees = [&](int pixels) { return (pixels + 0.3) * view.frame.metresPerPixel / 111195.0; };
    for (int fromMiddle = 36; fromMiddle <= 64; ++fromMiddle)
        for (const auto& [east, north] : {std::pair{1, 0}, {-1, 0}, {0, 1}, {0, -1}, {1, -1}})
        {
            SCOPED_TRACE(testing::Message() << fromMiddle << ": " << east << ", " << north);
            ExpectTheLiteralDrawing({inDegrees(north * fromMiddle), 20 + inDegrees(east * fromMiddle)});
        }
}

TEST_F(GreylineTest, HasNoSunBeyondTheMap)
{
    settings.zoom = 1000;
    const auto overlay = Draw({-50.0, -170.0});
    const render::BitmapPixels pixels(*overlay);
    for (int y = 0; y < pixels.Height(); ++y)
        for (const Argb pixel : pixels.Row(y))
            ASSERT_NE(pixel, render::OpaquePixel(255, 255, 0));
}

TEST_F(GreylineTest, TakesAnyWidthAndDarkening)
{
    for (const long width : {0L, 15L, -6L, 1000L, 9223372036854775807L})
        for (const long darkening : {-50L, 0L, 100L, 1000L, -9223372036854775807L})
        {
            settings.greyzone.widthDeg = width;
            settings.greyzone.darkeningGrey = darkening;
            SCOPED_TRACE(testing::Message() << width << ", " << darkening);
            ExpectTheLiteralDrawing(kJuneMorning);
        }
}

TEST_F(GreylineTest, OfNoWidthIsASharpEdge)
{
    settings.greyzone.widthDeg = 0;
    const auto overlay = Draw(kJuneMorning);
    const render::BitmapPixels pixels(*overlay);
    const MapView view = View();
    for (int y = 1; y < 160; ++y)
        for (int x = 1; x < 160; ++x)
        {
            const double z = SunDistance(view, x, y, kJuneMorning);
            if (z > 95 || (z > 35 && z < 85))
            {
                ASSERT_EQ(pixels.Row(y)[static_cast<std::size_t>(x)], z > 90 ? OverlayPixel(76, 179) : 0u);
            }
        }
}

TEST(GreylineShade, FollowsTheExamplesOfTheDefaultSettings)
{
    // The place under the sun lies on the equator at longitude 0; z is the longitude.
    const geo::GreylineShade shade{{0.0, 0.0}, 6.0, true, 60.0, 30.0};
    const auto at = [&](double z) { return shade.At({0.0, z / kDegrees}); };
    EXPECT_EQ(at(86.9), 255);
    EXPECT_NE(at(89), 255);
    EXPECT_EQ(at(87.0000001), 152); // 153 at 87 itself
    EXPECT_EQ(at(92.9999999), 76);
    EXPECT_EQ(at(120), 76);
}

TEST(GreylineShade, TruncatesTheDarkeningWithoutGradient)
{
    const geo::GreylineShade shade{{0.0, 0.0}, 6.0, false, 61.0, 30.0};
    for (const double z : {87.1, 90.0, 92.9})
        EXPECT_EQ(shade.At({0.0, z / kDegrees}), 155); // 61 * 2.55 = 155.55
}
} // namespace

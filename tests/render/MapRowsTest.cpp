#include "render/MapRows.h"

#include "render/Blend.h"
#include "render/Images.h"
#include "render/Layer.h"
#include "render/MapPicture.h"
#include "tests/render/RandomRows.h"
#include "tests/support/Pictures.h"

#include <gtest/gtest.h>

#include <wx/dcmemory.h>

#include <cstring>
#include <random>

namespace
{
using render::Argb;

TEST(PixelOver, IsWhatTheToolkitDraws)
{
    // Every opacity over every level; the overlay's own levels vary with both.
    MapPicture picture;
    ASSERT_TRUE(picture.NewMap(256));
    picture.greylineBitmap = render::NewOverlayBitmap(256);
    {
        const render::BitmapPixels map(*picture.mapBitmap);
        const render::BitmapPixels over(*picture.greylineBitmap);
        for (unsigned y = 0; y < 256; ++y)
            for (unsigned x = 0; x < 256; ++x)
            {
                map.Row(static_cast<int>(y))[x] = render::OpaquePixel(y, 255 - y, y ^ 85U);
                over.Row(static_cast<int>(y))[x] = render::PremultipliedPixel(x * y % 256, x, (x + y) % 256, x);
            }
    }
    const Colours map = ColoursOf(*picture.mapBitmap);
    picture.mapReady = picture.showGreyline = true;
    const wxImage shown = picture.Compose();
    const render::BitmapPixels over(*picture.greylineBitmap);
    int wrong = 0;
    for (int y = 0; y < 256; ++y)
        for (int x = 0; x < 256; ++x)
        {
            const auto column = static_cast<std::size_t>(x);
            wrong += render::PixelOver(map[static_cast<std::size_t>(y)][column], over.Row(y)[column]) !=
                     render::OpaquePixel(shown.GetRed(x, y), shown.GetGreen(x, y), shown.GetBlue(x, y));
        }
    EXPECT_EQ(wrong, 0);
}

/// The same things put on a map in rows and on one of bitmaps.
class MapRowsTest : public testing::Test
{
protected:
    void Begin(int side)
    {
        for (MapSurface* const map : Both())
        {
            ASSERT_TRUE(map->NewMap(side));
            map->mapReady = true;
        }
    }

    void PutBase(unsigned seed)
    {
        for (MapSurface* const map : Both())
            map->PutBase(std::make_unique<RandomRows>(rows.Side(), seed, true), [](int) {});
    }

    /// Lines, circles and texts that reach beyond the picture.
    void PutLayer(unsigned seed, std::uint8_t alpha, render::Inks inks)
    {
        for (MapSurface* const map : Both())
        {
            std::mt19937 random(seed);
            const int side = rows.Side();
            const auto place = [&] { return std::uniform_int_distribution(-20, side + 20)(random); };
            render::Layer layer(side, inks);
            wxDC& dc = layer.Begin(wxColour(seed % 256, 99, 7), 1 + static_cast<int>(seed % 7));
            dc.SetFont(*wxNORMAL_FONT);
            for (int i = 0; i < 5; ++i)
            {
                if (inks == render::Inks::Many)
                    dc.SetPen(wxPen(wxColour(static_cast<unsigned>(random() & 0xFFFFFF)), 3));
                dc.DrawLine(place(), place(), place(), place());
                dc.DrawEllipse(place(), place(), 40, 40);
                dc.DrawText("JO65", place(), place());
            }
            map->PutLayer(layer, alpha);
        }
    }

    void ExpectSame()
    {
        const wxImage shown = picture.Compose();
        const wxImage image = render::ImageOf(rows);
        ASSERT_EQ(image.GetSize(), shown.GetSize());
        const auto bytes = 3 * static_cast<std::size_t>(rows.Side()) * static_cast<std::size_t>(rows.Side());
        EXPECT_EQ(0, std::memcmp(image.GetData(), shown.GetData(), bytes));
    }

    std::array<MapSurface*, 2> Both() { return {&rows, &picture}; }

    MapRows rows;
    MapPicture picture;
};

TEST_F(MapRowsTest, BeginWhite)
{
    EXPECT_FALSE(rows.HasMap());
    Begin(101);
    EXPECT_TRUE(rows.HasMap());
    ExpectSame();
    EXPECT_EQ(ColoursOf(*BitmapOf(rows))[50][50], render::kWhite);
}

TEST_F(MapRowsTest, HaveThePixelsOfTheBitmaps)
{
    std::mt19937 random(11);
    for (unsigned round = 0; round < 30; ++round)
    {
        SCOPED_TRACE(round);
        Begin(1 + static_cast<int>(random() % 200));
        PutBase(round);
        for (unsigned layer = 0; layer < round % 5; ++layer)
            PutLayer(static_cast<unsigned>(random()), static_cast<std::uint8_t>(layer == 2 ? 0 : random() % 256),
                     random() % 2 == 0 ? render::Inks::One : render::Inks::Many);
        for (MapSurface* const map : Both())
        {
            if (round % 3 > 0)
                map->PutGreyline(std::make_unique<RandomRows>(rows.Side(), round + 100, false));
            if (round % 4 > 0)
                map->PutPropagation(std::make_unique<RandomRows>(rows.Side(), round + 200, false));
        }
        for (const bool shown : {true, false})
        {
            for (MapSurface* const map : Both())
            {
                EXPECT_EQ(map->showGreyline, round % 3 > 0);
                map->showPropagation = map->showPropagation && shown;
            }
            ExpectSame();
        }
    }
}

TEST_F(MapRowsTest, ArePaintedAnewByAnotherBase)
{
    Begin(60);
    PutBase(1);
    PutLayer(5, 200, render::Inks::One);
    PutBase(2);
    ExpectSame();
}

TEST_F(MapRowsTest, ForgetTheMapBeforeThem)
{
    Begin(60);
    PutBase(1);
    PutLayer(5, 200, render::Inks::One);
    for (MapSurface* const map : Both())
    {
        map->PutGreyline(std::make_unique<RandomRows>(60, 3, false));
        map->PutPropagation(std::make_unique<RandomRows>(60, 4, false));
    }
    Begin(70);
    for (MapSurface* const map : Both())
        EXPECT_FALSE(map->showGreyline || map->showPropagation);
    ExpectSame();
}
} // namespace

#include "render/Layer.h"

#include "render/BitmapPixels.h"
#include "render/Bitmaps.h"
#include "render/Blend.h"
#include "render/DiscDrawing.h"
#include "render/Hatch.h"
#include "tests/support/Pictures.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <wx/dcmemory.h>

#include <random>
#include <set>

namespace
{
std::set<render::Argb> DistinctColours(const Colours& colours)
{
    std::set<render::Argb> distinct;
    for (const auto& row : colours)
        distinct.insert(row.begin(), row.end());
    return distinct;
}

TEST(Layer, DrawsShapesInExactlyTheirColour)
{
    const auto map = render::NewWhiteBitmap(60);
    render::Layer layer(60);
    wxDC& dc = layer.Begin(wxColour(10, 20, 30), 1);
    dc.DrawLine(3, 5, 50, 33);
    dc.DrawEllipse(10, 10, 31, 31);
    layer.BlendOnto(*map, 255);
    const render::Argb blended = render::OpaquePixel(9, 19, 29); // 10 * 255 / 256 and so on
    EXPECT_EQ(DistinctColours(ColoursOf(*map)), (std::set<render::Argb>{render::kWhite, blended}));
}

TEST(Layer, DrawsTextsInExactlyTheirColour)
{
    const auto map = render::NewWhiteBitmap(120);
    render::Layer layer(120);
    const wxColour ink(10, 20, 30);
    wxDC& dc = layer.Begin(ink, 1);
    dc.SetFont(*wxNORMAL_FONT);
    dc.SetTextForeground(ink);
    dc.DrawText("JO65", 5, 5);
    dc.DrawRotatedText("12500", 30, 90, 33);
    layer.BlendOnto(*map, 255);
    const render::Argb blended = render::OpaquePixel(9, 19, 29);
    EXPECT_EQ(DistinctColours(ColoursOf(*map)), (std::set<render::Argb>{render::kWhite, blended}));
}

TEST(Layer, LeavesCirclesUnfilled)
{
    const auto map = render::NewWhiteBitmap(60);
    render::Layer layer(60);
    layer.Begin(*wxBLACK, 1).DrawEllipse(10, 10, 40, 40);
    layer.BlendOnto(*map, 255);
    EXPECT_EQ(ColoursOf(*map)[30][30], render::kWhite);
}

TEST(Layer, BeginsWithTheStyleOfALayer)
{
    render::Layer layer(60, render::Inks::Many);
    EXPECT_EQ(layer.Kind(), render::Inks::Many);
    EXPECT_EQ(render::Layer(60).Kind(), render::Inks::One);
    const wxDC& dc = layer.Begin(wxColour(1, 2, 3), 7);
    EXPECT_EQ(dc.GetPen().GetColour(), wxColour(1, 2, 3));
    EXPECT_EQ(dc.GetPen().GetWidth(), 7);
    EXPECT_TRUE(dc.GetBrush().IsTransparent());
    EXPECT_EQ(dc.GetBackgroundMode(), static_cast<int>(wxBRUSHSTYLE_TRANSPARENT));
    EXPECT_EQ(render::DrawableArea(dc), wxRect(0, 0, 60, 60));
}

TEST(Layer, StartsBlankAgainForTheNextLayer)
{
    const auto map = render::NewWhiteBitmap(40);
    render::Layer layer(40);
    layer.Begin(*wxBLACK, 1).DrawLine(0, 20, 40, 20);
    layer.BlendOnto(*map, 0);
    EXPECT_EQ(DistinctColours(ColoursOf(*map)), std::set<render::Argb>{render::kWhite});
    layer.Begin(*wxRED, 1);
    layer.BlendOnto(*map, 255);
    EXPECT_EQ(DistinctColours(ColoursOf(*map)), std::set<render::Argb>{render::kWhite});
}

TEST(Layer, DrawsThePensWidth)
{
    const auto map = render::NewWhiteBitmap(40);
    render::Layer layer(40);
    layer.Begin(*wxBLACK, 5).DrawLine(5, 20, 35, 20);
    layer.BlendOnto(*map, 255);
    const Colours colours = ColoursOf(*map);
    int dark = 0;
    for (const auto& row : colours)
        dark += row[20] != render::kWhite;
    EXPECT_EQ(dark, 5);
}

TEST(Layer, DrawnInWhiteLeavesTheMapAlone)
{
    const auto map = render::NewOverlayBitmap(60);
    {
        const render::BitmapPixels pixels(*map);
        for (int y = 0; y < 60; ++y)
            std::ranges::fill(pixels.Row(y), render::OpaquePixel(1, 2, 3));
    }
    render::Layer layer(60);
    layer.Begin(*wxWHITE, 3).DrawLine(0, 0, 60, 60);
    layer.BlendOnto(*map, 255);
    EXPECT_EQ(DistinctColours(ColoursOf(*map)), std::set<render::Argb>{render::OpaquePixel(1, 2, 3)});
}

TEST(Layer, IsNotOkWhereThereIsNoMemory)
{
    // No surface can be larger than 32767 pixels: it fails as for a lack of memory.
    EXPECT_FALSE(render::Layer(32768).IsOk());
    EXPECT_FALSE(render::Layer(32768, render::Inks::Many).IsOk());
    EXPECT_TRUE(render::Layer(100).IsOk());
}

/// A square bitmap of random colours.
wxBitmap RandomBitmap(int side)
{
    std::mt19937 random(7);
    wxBitmap bitmap(side, side);
    const render::BitmapPixels pixels(bitmap);
    for (int y = 0; y < side; ++y)
        for (render::Argb& pixel : pixels.Row(y))
            pixel = 0xFF000000U | (random() & 0xFFFFFF);
    return bitmap;
}

/// A layer that is drawn in turn on its own sheet and on a white bitmap, as the toolkit would have it. Sides that do
/// and do not fill whole words of bits.
class LayerSheet : public testing::TestWithParam<std::tuple<render::Inks, int>>
{
protected:
    const wxColour ink{90, 20, 200};
    const render::Inks inks = std::get<0>(GetParam());
    const int side = std::get<1>(GetParam());
    render::Layer layer{side, inks};

    void Draw(wxDC& dc) const
    {
        std::mt19937 random(3);
        const auto place = [&] { return static_cast<int>(random() % static_cast<unsigned>(side + 40)) - 20; };
        for (const int width : {1, 1, 1, 2, 5})
        {
            dc.SetPen(wxPen(ink, width));
            dc.DrawLine(place(), place(), place(), place());
            dc.DrawEllipse(place(), place(), 31, 31);
        }
        dc.SetFont(wxFont(wxFontInfo(9).Family(wxFONTFAMILY_SWISS)));
        dc.SetTextForeground(ink);
        dc.DrawText("JO65 Kjeller", place(), place());
        const render::DiscGeometry disc{MapFrame(side, 20000000, 17)};
        for (int degree = 0; degree < 360; degree += 10)
            render::DrawNumberAlongCircle(dc, disc, degree, degree, disc.radius, disc.centre);
        if (inks == render::Inks::Many)
            DrawPolygons(dc, place);
    }

    wxImage OnWhiteBitmap() const
    {
        const auto sheet = render::NewWhiteBitmap(side);
        wxMemoryDC dc(*sheet);
        render::SwitchSmoothingOff(dc);
        dc.SetBrush(*wxTRANSPARENT_BRUSH);
        dc.SetBackgroundMode(wxBRUSHSTYLE_TRANSPARENT);
        Draw(dc);
        dc.SelectObject(wxNullBitmap);
        return sheet->ConvertToImage();
    }

    static Colours ColoursOfImage(const wxImage& image)
    {
        wxBitmap bitmap(image);
        return ColoursOf(bitmap);
    }

private:
    template <class Place>
    static void DrawPolygons(wxDC& dc, Place place)
    {
        const wxColour colours[] = {*wxRED, *wxWHITE, *wxBLACK, wxColour(255, 255, 254)};
        for (int stipple = 0; stipple < 8; ++stipple)
        {
            const wxPoint corners[] = {{place(), place()}, {place(), place()}, {place(), place()}, {place(), place()}};
            render::Hatch(stipple, colours[stipple % 4], colours[(stipple + 1) % 4]).FillPolygon(dc, corners);
        }
    }
};

TEST_P(LayerSheet, LeavesThePixelsOfAWhiteBitmapThatIsBlended)
{
    for (const unsigned alpha : {0U, 1U, 44U, 128U, 254U, 255U})
    {
        wxBitmap map = RandomBitmap(side);
        wxImage drawn = OnWhiteBitmap();
        wxImage expected = map.ConvertToImage();
        const std::size_t bytes = 3 * static_cast<std::size_t>(side) * static_cast<std::size_t>(side);
        render::BlendLayer({drawn.GetData(), bytes}, {expected.GetData(), bytes}, side, side,
                           static_cast<std::uint8_t>(alpha));
        Draw(layer.Begin(ink, 1));
        layer.BlendOnto(map, static_cast<std::uint8_t>(alpha));
        EXPECT_TRUE(SamePicture(ColoursOf(map), ColoursOfImage(expected))) << "alpha " << alpha;
    }
}

INSTANTIATE_TEST_SUITE_P(Sheets, LayerSheet,
                         testing::Combine(testing::Values(render::Inks::One, render::Inks::Many),
                                          testing::Values(160, 133)),
                         [](const auto& param)
                         {
                             const bool one = std::get<0>(param.param) == render::Inks::One;
                             return std::string(one ? "OneInk" : "ManyInks") + std::to_string(std::get<1>(param.param));
                         });

TEST(NewWhiteBitmap, IsWhiteAtOnce)
{
    const auto bitmap = render::NewWhiteBitmap(100);
    ASSERT_TRUE(bitmap);
    EXPECT_EQ(DistinctColours(ColoursOf(*bitmap)), std::set<render::Argb>{render::kWhite});
}

TEST(NewBitmap, IsNoneWhereThereIsNoMemory)
{
    // No surface can be larger than 32767 pixels: it fails as for a lack of memory.
    EXPECT_FALSE(render::NewWhiteBitmap(32768));
    EXPECT_FALSE(render::NewOverlayBitmap(32768));
}
} // namespace

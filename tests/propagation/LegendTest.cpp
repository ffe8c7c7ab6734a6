#include "propagation/Legend.h"

#include "propagation/Overlay.h"
#include "propagation/WorldGrid.h"
#include "render/Bitmaps.h"
#include "render/Style.h"
#include "tests/support/Pictures.h"
#include "tests/support/TemporaryHome.h"

#include <gtest/gtest.h>

#include <wx/dcmemory.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace
{
using namespace propagation;

class LegendTest : public testing::Test
{
protected:
    LegendTest()
    {
        for (std::size_t k = 0; k < 10; ++k)
        {
            scale.thresholds[k] = static_cast<double>(k) * 11.25 - 151;
            scale.colours[k] = wxColour(static_cast<unsigned char>(20 * k + 3), 100, 200);
        }
        wxBitmap pixel(1, 1);
        wxMemoryDC dc(pixel);
        dc.SetFont(font);
        for (const double threshold : scale.thresholds)
            labelWidth = std::max(labelWidth, dc.GetTextExtent(wxString::Format("%3.2f", threshold)).x);
        textHeight = dc.GetTextExtent("-93.00").y;
    }

    /// A sheet of one colour in place of an overlay.
    static std::unique_ptr<wxBitmap> Flat(int side, render::Argb pixel = render::kWhite)
    {
        auto overlay = render::NewOverlayBitmap(side);
        const render::BitmapPixels pixels(*overlay);
        for (int y = 0; y < side; ++y)
            std::ranges::fill(pixels.Row(y), pixel);
        return overlay;
    }

    const TemporaryHome home;
    const Settings settings = DefaultSettings();
    const wxFont font = render::FontFromSetting(settings.compass.text.font);
    ClassScale scale;
    int labelWidth = 0;
    int textHeight = 0;
};

/// How many pixels of a rectangle of a legend have a colour.
std::ptrdiff_t Count(wxBitmap& legend, const wxRect& place, render::Argb colour)
{
    const render::BitmapPixels pixels(legend);
    std::ptrdiff_t count = 0;
    for (int y = place.GetTop(); y <= place.GetBottom(); ++y)
        count += std::ranges::count(
            pixels.Row(y).subspan(static_cast<std::size_t>(place.x), static_cast<std::size_t>(place.width)), colour);
    return count;
}

constexpr render::Argb kBlack = 0xFF000000;
constexpr render::Argb kNothing = 0;

TEST_F(LegendTest, LiesInTheLowerLeftCorner)
{
    const Legend legend = DrawLegend(Parameter::Sdbw, scale, font, *Flat(900));
    EXPECT_EQ(legend.top, 900 - 13 * textHeight);
    EXPECT_EQ(legend.bitmap.GetHeight(), 11 * textHeight);
    EXPECT_LT(legend.bitmap.GetWidth(), 300);
}

TEST_F(LegendTest, ShowsTheColourAboveEachThresholdBesideIt)
{
    Legend legend = DrawLegend(Parameter::Sdbw, scale, font, *Flat(900));
    const Colours picture = ColoursOf(legend.bitmap);
    for (int row = 1; row <= 10; ++row) // the highest first
    {
        const wxColour& colour = scale.colours[static_cast<std::size_t>(10 - row)];
        for (const int y : {1, textHeight / 2, textHeight - 3})
            for (const int x : {1, textHeight, 2 * textHeight - 2})
                EXPECT_EQ(picture[static_cast<std::size_t>(row * textHeight + y)]
                                 [static_cast<std::size_t>(labelWidth + 20 + x)],
                          render::OpaquePixel(colour.Red(), colour.Green(), colour.Blue()))
                    << row << ": " << x << ", " << y;
        EXPECT_GT(Count(legend.bitmap, {10, row * textHeight, labelWidth, textHeight}, kBlack), 10) << row;
        EXPECT_EQ(Count(legend.bitmap, {0, row * textHeight, 9, textHeight}, kNothing), 9 * textHeight) << row;
    }
}

TEST_F(LegendTest, NamesTheParameter)
{
    // A longer title leaves more ink.
    std::ptrdiff_t before = 0;
    for (const Parameter parameter : {Parameter::Sdbw, Parameter::Muf, Parameter::Rel, Parameter::Snr})
    {
        Legend legend = DrawLegend(parameter, scale, font, *Flat(900));
        const auto ink = Count(legend.bitmap, {0, 0, legend.bitmap.GetWidth(), textHeight}, kBlack);
        EXPECT_GT(ink, before);
        before = ink;
    }
}

TEST_F(LegendTest, HasTheOpacityOfTheOverlayAndNoGroundOfItsOwn)
{
    MapView view;
    view.frame = MapFrame(300, 20000000, 1);
    view.projection.Init(0, 0, 10, 20);
    view.visibleLimit = 20000000;
    const std::vector<std::uint32_t> classes(1801 * 901, 9);
    const auto overlay = DrawOverlay(view, classes, scale, 120);
    wxBitmap before(overlay->ConvertToImage());
    Legend legend = DrawLegend(Parameter::Sdbw, scale, font, *overlay);
    PutLegend(*overlay, legend, 120);
    const render::BitmapPixels beforePixels(before);
    const render::BitmapPixels marks(legend.bitmap);
    const render::BitmapPixels pixels(*overlay);
    int untouched = 0;
    for (int y = 0; y < 300; ++y)
        for (int x = 0; x < 300; ++x)
        {
            const auto column = static_cast<std::size_t>(x);
            const render::Argb got = pixels.Row(y)[column];
            const int row = y - legend.top;
            const bool inside = row >= 0 && row < marks.Height() && x < marks.Width();
            const render::Argb c = inside ? marks.Row(row)[column] : kNothing;
            if (c == kNothing)
            {
                ASSERT_EQ(got, beforePixels.Row(y)[column]) << x << ", " << y;
                untouched += inside;
                continue;
            }
            const bool frame = x == 0 || y == 0;
            ASSERT_EQ(got, frame ? c : render::PremultipliedPixel((c >> 16) & 255, (c >> 8) & 255, c & 255, 120))
                << x << ", " << y;
        }
    EXPECT_GT(untouched, marks.Width() * marks.Height() / 3);
}

TEST_F(LegendTest, IsWrittenInWhiteOnDarkOverlaysAndInBlackOnLightOnes)
{
    struct Case
    {
        unsigned red, green, blue;
        render::Argb text;
    };
    for (const unsigned alpha : {255U, 120U, 10U})
        for (const Case& c :
             {Case{255, 255, 255, kBlack}, Case{0, 255, 0, kBlack}, Case{255, 255, 0, kBlack},
              Case{0, 0, 0, render::kWhite}, Case{0, 0, 255, render::kWhite}, Case{128, 0, 0, render::kWhite}})
        {
            const auto overlay = Flat(500, render::PremultipliedPixel(c.red, c.green, c.blue, alpha));
            Legend legend = DrawLegend(Parameter::Muf, scale, font, *overlay);
            for (int row = 0; row <= 10; ++row)
                EXPECT_GT(Count(legend.bitmap, {10, row * textHeight, labelWidth, textHeight}, c.text), 10) << row;
        }
}

TEST_F(LegendTest, IsCutOffWhereTheMapHasNoRoom)
{
    MapView view;
    view.frame = MapFrame(100, 20000000, 1);
    const std::vector<std::uint32_t> classes(1801 * 901);
    const auto overlay = DrawOverlay(view, classes, scale, 255);
    for (const double extreme : {1e308, -1e308, std::numeric_limits<double>::infinity(), std::nan("")})
    {
        scale.thresholds[3] = extreme;
        Legend legend = DrawLegend(Parameter::Snr, scale, font, *overlay);
        EXPECT_LE(legend.bitmap.GetWidth(), 100);
        EXPECT_LT(legend.top, 0);
        PutLegend(*overlay, legend, 255);
    }
}
} // namespace

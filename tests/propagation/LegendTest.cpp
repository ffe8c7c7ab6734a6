#include "propagation/Legend.h"

#include "propagation/Overlay.h"
#include "propagation/WorldGrid.h"
#include "render/Style.h"
#include "tests/support/Pictures.h"
#include "tests/support/TemporaryHome.h"

#include <gtest/gtest.h>

#include <wx/dcmemory.h>

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

    const TemporaryHome home;
    const Configuration settings{"Kavdex"};
    const wxFont font = render::FontFromSetting(settings.compass.text.font);
    ClassScale scale;
    int labelWidth = 0;
    int textHeight = 0;
};

/// How many pixels of a rectangle are as dark as text.
int DarkPixels(const Colours& picture, int left, int top, int width, int height)
{
    int dark = 0;
    for (int y = top; y < top + height; ++y)
        for (int x = left; x < left + width; ++x)
            dark += (picture[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)] & 0xFF) < 100;
    return dark;
}

TEST_F(LegendTest, LiesInTheLowerLeftCorner)
{
    const Legend legend = DrawLegend(Parameter::Sdbw, scale, font, 900);
    EXPECT_EQ(legend.top, 900 - 13 * textHeight);
    EXPECT_EQ(legend.bitmap.GetHeight(), 11 * textHeight);
    EXPECT_LT(legend.bitmap.GetWidth(), 300);
}

TEST_F(LegendTest, ShowsTheColourAboveEachThresholdBesideIt)
{
    Legend legend = DrawLegend(Parameter::Sdbw, scale, font, 900);
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
        EXPECT_GT(DarkPixels(picture, 10, row * textHeight, labelWidth, textHeight), 10) << row;
        EXPECT_EQ(DarkPixels(picture, 0, row * textHeight, 9, textHeight), 0) << row;
    }
}

TEST_F(LegendTest, NamesTheParameter)
{
    // A longer title leaves more ink.
    int before = 0;
    for (const Parameter parameter : {Parameter::Sdbw, Parameter::Muf, Parameter::Rel, Parameter::Snr})
    {
        Legend legend = DrawLegend(parameter, scale, font, 900);
        const int ink = DarkPixels(ColoursOf(legend.bitmap), 0, 0, legend.bitmap.GetWidth(), textHeight);
        EXPECT_GT(ink, before);
        before = ink;
    }
}

TEST_F(LegendTest, HasTheOpacityOfTheOverlay)
{
    MapView view;
    view.frame = MapFrame(300, 20000000, 1);
    view.projection.Init(0, 0, 10, 20);
    view.visibleLimit = 20000000;
    const std::vector<std::uint32_t> classes(1801 * 901, 9);
    const auto overlay = DrawOverlay(view, classes, scale, 120);
    const Colours before = ColoursOf(*overlay);
    Legend legend = DrawLegend(Parameter::Sdbw, scale, font, 300);
    PutLegend(*overlay, legend, 120);
    const Colours legendColours = ColoursOf(legend.bitmap);
    const render::BitmapPixels pixels(*overlay);
    for (int y = 0; y < 300; ++y)
        for (int x = 0; x < 300; ++x)
        {
            const render::Argb got = pixels.Row(y)[static_cast<std::size_t>(x)];
            const int row = y - legend.top;
            const bool inside = row >= 0 && row < legend.bitmap.GetHeight() && x < legend.bitmap.GetWidth();
            if (!inside)
            {
                ASSERT_EQ(got | 0xFF000000, before[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)]);
                continue;
            }
            const render::Argb c = legendColours[static_cast<std::size_t>(row)][static_cast<std::size_t>(x)];
            const bool frame = x == 0 || y == 0;
            ASSERT_EQ(got, frame ? c : render::PremultipliedPixel((c >> 16) & 255, (c >> 8) & 255, c & 255, 120))
                << x << ", " << y;
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
        Legend legend = DrawLegend(Parameter::Snr, scale, font, 100);
        EXPECT_LE(legend.bitmap.GetWidth(), 100);
        EXPECT_LT(legend.top, 0);
        PutLegend(*overlay, legend, 255);
    }
}
} // namespace

#include "propagation/Legend.h"

#include "propagation/Overlay.h"
#include "propagation/WorldGrid.h"
#include "render/Style.h"
#include "tests/support/Pictures.h"
#include "tests/support/TemporaryHome.h"

#include <gtest/gtest.h>

#include <wx/dcmemory.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <tuple>

namespace
{
using namespace propagation;

/// A sheet of one colour in place of an overlay.
class Flat : public render::PictureRows
{
public:
    explicit Flat(int side, render::Argb pixel = render::kWhite) : m_side(side), m_pixel(pixel) {}
    int Side() const override { return m_side; }
    void Row(int, std::span<render::Argb> out) const override { std::ranges::fill(out, m_pixel); }

private:
    int m_side;
    render::Argb m_pixel;
};

render::Argb MarkAt(const Legend& legend, int x, int y)
{
    return legend.marks.pixels[static_cast<std::size_t>(y * legend.marks.width + x)];
}

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
    const Settings settings = DefaultSettings();
    const wxFont font = render::FontFromSetting(settings.compass.text.font);
    ClassScale scale;
    int labelWidth = 0;
    int textHeight = 0;
};

/// How many pixels of a rectangle of a legend have a colour.
std::ptrdiff_t Count(const Legend& legend, const wxRect& place, render::Argb colour)
{
    std::ptrdiff_t count = 0;
    for (int y = place.GetTop(); y <= place.GetBottom(); ++y)
        for (int x = place.GetLeft(); x <= place.GetRight(); ++x)
            count += MarkAt(legend, x, y) == colour;
    return count;
}

constexpr render::Argb kBlack = 0xFF000000;
constexpr render::Argb kNothing = 0;

TEST_F(LegendTest, LiesInTheLowerLeftCorner)
{
    const Legend legend = DrawLegend(Parameter::Sdbw, scale, font, Flat(900));
    EXPECT_EQ(legend.top, 900 - 13 * textHeight);
    EXPECT_EQ(legend.marks.height, 11 * textHeight);
    EXPECT_LT(legend.marks.width, 300);
}

TEST_F(LegendTest, ShowsTheColourAboveEachThresholdBesideIt)
{
    const Legend legend = DrawLegend(Parameter::Sdbw, scale, font, Flat(900));
    for (int row = 1; row <= 10; ++row) // the highest first
    {
        const wxColour& colour = scale.colours[static_cast<std::size_t>(10 - row)];
        for (const int y : {1, textHeight / 2, textHeight - 3})
            for (const int x : {1, textHeight, 2 * textHeight - 2})
                EXPECT_EQ(MarkAt(legend, labelWidth + 20 + x, row * textHeight + y),
                          render::OpaquePixel(colour.Red(), colour.Green(), colour.Blue()))
                    << row << ": " << x << ", " << y;
        EXPECT_GT(Count(legend, {10, row * textHeight, labelWidth, textHeight}, kBlack), 10) << row;
        EXPECT_EQ(Count(legend, {0, row * textHeight, 9, textHeight}, kNothing), 9 * textHeight) << row;
    }
}

TEST_F(LegendTest, NamesTheParameter)
{
    // A longer title leaves more ink.
    std::ptrdiff_t before = 0;
    for (const Parameter parameter : {Parameter::Sdbw, Parameter::Muf, Parameter::Rel, Parameter::Snr})
    {
        const Legend legend = DrawLegend(parameter, scale, font, Flat(900));
        const auto ink = Count(legend, {0, 0, legend.marks.width, textHeight}, kBlack);
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
    Overlay overlay(view, classes, scale, 120);
    const auto before = BitmapOf(overlay);
    const Legend legend = DrawLegend(Parameter::Sdbw, scale, font, overlay);
    overlay.PutLegend(legend);
    const auto after = BitmapOf(overlay);
    const render::BitmapPixels beforePixels(*before);
    const render::BitmapPixels pixels(*after);
    int untouched = 0;
    for (int y = 0; y < 300; ++y)
        for (int x = 0; x < 300; ++x)
        {
            const auto column = static_cast<std::size_t>(x);
            const render::Argb got = pixels.Row(y)[column];
            const int row = y - legend.top;
            const bool inside = row >= 0 && row < legend.marks.height && x < legend.marks.width;
            const render::Argb c = inside ? MarkAt(legend, x, row) : kNothing;
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
    EXPECT_GT(untouched, legend.marks.width * legend.marks.height / 3);
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
            const Flat overlay(500, render::PremultipliedPixel(c.red, c.green, c.blue, alpha));
            const Legend legend = DrawLegend(Parameter::Muf, scale, font, overlay);
            for (int row = 0; row <= 10; ++row)
                EXPECT_GT(Count(legend, {10, row * textHeight, labelWidth, textHeight}, c.text), 10) << row;
        }
}

TEST_F(LegendTest, CountsAsDarkWhatIsDarkerThanAGreyInTheMiddle)
{
    // Of 255: 0.299 of the red, 0.587 of the green, 0.114 of the blue.
    for (const auto& [red, green, blue, text] : {std::tuple{255U, 90U, 0U, kBlack},
                                                 {255U, 80U, 0U, render::kWhite},
                                                 {0U, 218U, 0U, kBlack},
                                                 {0U, 217U, 0U, render::kWhite},
                                                 {0U, 200U, 90U, kBlack},
                                                 {0U, 200U, 80U, render::kWhite}})
    {
        const Flat overlay(500, render::OpaquePixel(red, green, blue));
        const Legend legend = DrawLegend(Parameter::Muf, scale, font, overlay);
        EXPECT_GT(Count(legend, {10, 0, labelWidth, textHeight}, text), 10) << red << " " << green << " " << blue;
    }
}

TEST_F(LegendTest, IsWrittenInBlackWhereTheOverlayHasNothing)
{
    const Legend legend = DrawLegend(Parameter::Muf, scale, font, Flat(500, kNothing));
    for (int row = 0; row <= 10; ++row)
    {
        const wxRect place(10, row * textHeight, labelWidth, textHeight);
        EXPECT_GT(Count(legend, place, kBlack), 10) << row;
        EXPECT_EQ(Count(legend, place, render::kWhite), 0) << row;
    }
}

TEST_F(LegendTest, IsCutOffWhereTheMapHasNoRoom)
{
    MapView view;
    view.frame = MapFrame(100, 20000000, 1);
    const std::vector<std::uint32_t> classes(1801 * 901);
    Overlay overlay(view, classes, scale, 255);
    for (const double extreme : {1e308, -1e308, std::numeric_limits<double>::infinity(), std::nan("")})
    {
        scale.thresholds[3] = extreme;
        const Legend legend = DrawLegend(Parameter::Snr, scale, font, overlay);
        EXPECT_LE(legend.marks.width, 100);
        EXPECT_LT(legend.top, 0);
        overlay.PutLegend(legend);
        EXPECT_NO_FATAL_FAILURE(BitmapOf(overlay));
    }
}
} // namespace

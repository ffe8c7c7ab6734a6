#include "ui/options/SquaresPreview.h"

#include "render/Hatch.h"
#include "resources/preview_map.xpm"
#include "tests/support/Pictures.h"

#include <wx/dcmemory.h>
#include <wx/graphics.h>

#include <random>

namespace
{
using Rgb = std::array<int, 3>;

wxColour ColourOf(const Rgb& rgb)
{
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(rgb[i]); };
    return {byte(0), byte(1), byte(2)};
}

long SettingOf(const Rgb& rgb)
{
    return rgb[0] + 256L * rgb[1] + 65536L * rgb[2];
}

/// Two squares that share a side, on white.
wxImage PlainSquares(int stipple, const Rgb& border, const Rgb& fill)
{
    wxBitmap sheet(64, 64);
    wxMemoryDC dc(sheet);
    dc.SetBackground(*wxWHITE_BRUSH);
    dc.Clear();
    dc.GetGraphicsContext()->SetAntialiasMode(wxANTIALIAS_NONE);
    const wxPoint upper[] = {{10, 8}, {40, 5}, {44, 27}, {13, 31}};
    const wxPoint lower[] = {{13, 31}, {44, 27}, {49, 50}, {17, 56}};
    const render::Hatch hatch(stipple, ColourOf(fill), ColourOf(border));
    hatch.FillPolygon(dc, upper);
    hatch.FillPolygon(dc, lower);
    dc.SelectObject(wxNullBitmap);
    return sheet.ConvertToImage();
}

/// Whatever is not white, at an opacity on the small map.
Colours PlainPreview(int stipple, const Rgb& border, const Rgb& fill, int alpha)
{
    const wxImage map(preview_map_xpm);
    const wxImage sheet = PlainSquares(stipple, border, fill);
    Colours colours(64, std::vector<render::Argb>(64));
    for (int y = 0; y < 64; ++y)
        for (int x = 0; x < 64; ++x)
        {
            const Rgb below{map.GetRed(x, y), map.GetGreen(x, y), map.GetBlue(x, y)};
            const Rgb above{sheet.GetRed(x, y), sheet.GetGreen(x, y), sheet.GetBlue(x, y)};
            Rgb mixed = below;
            if (alpha > 0 && above != Rgb{255, 255, 255})
                for (std::size_t i = 0; i < 3; ++i)
                    mixed[i] = above[i] * alpha / 256 + below[i] * (255 - alpha) / 256;
            colours[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)] =
                render::OpaquePixel(static_cast<std::uint8_t>(mixed[0]), static_cast<std::uint8_t>(mixed[1]),
                                    static_cast<std::uint8_t>(mixed[2]));
        }
    return colours;
}

TEST(SquaresPreview, IsTwoHatchedSquaresBlendedOntoASmallMap)
{
    std::mt19937 random(20260711);
    const auto upTo = [&](int max) { return std::uniform_int_distribution(0, max)(random); };
    for (int i = 0; i < 40; ++i)
    {
        const int stipple = i % 7;
        const int alpha = i == 0 ? 255 : i == 1 ? 0 : upTo(255);
        const Rgb border{upTo(255), upTo(255), upTo(254)};
        const Rgb fill{upTo(255), upTo(255), upTo(254)};
        PlotSquaresSlot style;
        style.stipple = stipple;
        style.alpha = alpha;
        style.borderColour = SettingOf(border);
        style.fillColour = SettingOf(fill);
        wxBitmap preview = ui::SquaresPreview(style);
        ASSERT_EQ(preview.GetSize(), wxSize(64, 64));
        EXPECT_TRUE(SamePicture(ColoursOf(preview), PlainPreview(stipple, border, fill, alpha)))
            << "hatching " << stipple << ", alpha " << alpha;
    }
}

TEST(SquaresPreview, TakesTheNearestAlphaForOneThatIsNone)
{
    PlotSquaresSlot style;
    style.stipple = 0;
    style.borderColour = 0;
    style.fillColour = 0x112233;
    for (const auto& [wrong, nearest] : {std::pair(-1L, 0L), std::pair(256L, 255L)})
    {
        style.alpha = wrong;
        wxBitmap shown = ui::SquaresPreview(style);
        style.alpha = nearest;
        wxBitmap expected = ui::SquaresPreview(style);
        EXPECT_TRUE(SamePicture(ColoursOf(shown), ColoursOf(expected))) << wrong;
    }
}
} // namespace

#include "render/Hatch.h"
#include "tests/support/LayerFixture.h"

#include <array>
#include <random>

namespace
{
using Corners = std::array<wxPoint, 4>;

class HatchedQuadranglesTest : public LayerFixture
{
protected:
    static constexpr int kSide = 120;
    const wxColour kFill{200, 80, 100};

    template <class Draw>
    static wxImage Picture(Draw draw)
    {
        render::Layer layer(kSide, render::Inks::Many);
        draw(layer.Begin(*wxBLACK, 1));
        return PictureOf(layer, kSide);
    }

    wxImage Filled(int stipple, const Corners& corners) const
    {
        return Picture([&](wxDC& dc) { render::Hatch(stipple, kFill, *wxBLACK).FillPolygon(dc, corners); });
    }

    static wxImage Outlined(const Corners& corners)
    {
        return Picture([&](wxDC& dc) { dc.DrawPolygon(4, corners.data()); });
    }

    static wxColour At(const wxImage& picture, int x, int y)
    {
        return {picture.GetRed(x, y), picture.GetGreen(x, y), picture.GetBlue(x, y)};
    }

    /// By the odd-even rule: how often a ray to the right crosses the edges.
    static bool IsInside(const Corners& corners, int x, int y)
    {
        bool inside = false;
        for (std::size_t i = 0; i < corners.size(); ++i)
        {
            const wxPoint a = corners[i];
            const wxPoint b = corners[(i + 1) % corners.size()];
            if ((a.y > y) != (b.y > y) && x < a.x + static_cast<double>(b.x - a.x) * (y - a.y) / (b.y - a.y))
                inside = !inside;
        }
        return inside;
    }

    Corners AnyCorners()
    {
        std::uniform_int_distribution place(-10, kSide + 10);
        Corners corners;
        for (wxPoint& corner : corners)
            corner = {place(random), place(random)};
        return corners;
    }

    /// Inside the outline the pattern of the whole sheet, outside it nothing.
    void ExpectPatternWithinOutline(const wxImage& sheet, int stipple, const Corners& corners) const
    {
        const wxImage outlined = Outlined(corners);
        const wxImage filled = Filled(stipple, corners);
        int wrong = 0;
        for (int y = 0; y < kSide; ++y)
            for (int x = 0; x < kSide; ++x)
            {
                const bool isOutline = At(outlined, x, y) == *wxBLACK;
                const wxColour within = IsInside(corners, x, y) ? At(sheet, x, y) : *wxWHITE;
                wrong += At(filled, x, y) != (isOutline ? *wxBLACK : within);
            }
        EXPECT_EQ(wrong, 0) << "pixels, with stipple " << stipple;
    }

    std::mt19937 random{20241101};
};

TEST_F(HatchedQuadranglesTest, AreFilledUpToTheirOutlines)
{
    const Corners wholeSheet{wxPoint(-9, -9), wxPoint(kSide + 9, -9), wxPoint(kSide + 9, kSide + 9),
                             wxPoint(-9, kSide + 9)};
    for (int stipple = 0; stipple < 7; ++stipple)
    {
        const wxImage sheet = Filled(stipple, wholeSheet);
        for (int i = 0; i < 40; ++i)
            ExpectPatternWithinOutline(sheet, stipple, AnyCorners());
    }
}
} // namespace

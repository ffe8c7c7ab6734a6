#include "render/PlottedSquares.h"

#include "render/Hatch.h"
#include "render/TextFile.h"
#include "tests/support/Stencil.h"

#include <climits>

namespace
{
class PlottedSquaresTest : public LayerFixture
{
protected:
    PlottedSquaresTest()
    {
        settings.zoom = 1000;
        style.borderColour = 0x141E28;
        style.fillColour = 0x6450C8;
        style.stipple = 0;
    }

    Ink Draw(std::wstring_view text) const
    {
        return Paint([&](wxDC& dc) { render::DrawPlottedSquares(dc, View(), text, style); });
    }

    bool DrawsAnything(std::wstring_view text) const { return !Draw(text).Bounds().IsEmpty(); }

    const wxColour kBorder{0x28, 0x1E, 0x14};
    const wxColour kFill{0xC8, 0x50, 0x64};
    PlotSquaresSlot style;
};

TEST(SquareNamed, IsFoundInUpperAndLowerCase)
{
    for (const wchar_t* name : {L"JO65", L"jo65", L"Jo65"})
    {
        const auto square = render::SquareNamed(name);
        ASSERT_TRUE(square);
        EXPECT_EQ(square->lat, 55);
        EXPECT_EQ(square->lon, 12);
    }
}

TEST(SquareNamed, KnowsTheFirstAndTheLast)
{
    EXPECT_EQ(render::SquareNamed(L"AA00")->lat, -90);
    EXPECT_EQ(render::SquareNamed(L"AA00")->lon, -180);
    EXPECT_EQ(render::SquareNamed(L"RR99")->lat, 89);
    EXPECT_EQ(render::SquareNamed(L"RR99")->lon, 178);
}

TEST(SquareNamed, IsNoneForCharactersBesideLettersAndDigits)
{
    ASSERT_TRUE(render::SquareNamed(L"AAAA") == std::nullopt);
    for (wchar_t c = 1; c < 300; ++c)
    {
        const bool isLetter = (c >= L'A' && c <= L'R') || (c >= L'a' && c <= L'r');
        EXPECT_EQ(render::SquareNamed(std::wstring{c, L'A', L'0', L'0'}).has_value(), isLetter) << static_cast<int>(c);
        EXPECT_EQ(render::SquareNamed(std::wstring{L'A', c, L'0', L'0'}).has_value(), isLetter) << static_cast<int>(c);
        const bool isDigit = c >= L'0' && c <= L'9';
        EXPECT_EQ(render::SquareNamed(std::wstring{L'A', L'A', c, L'0'}).has_value(), isDigit) << static_cast<int>(c);
        EXPECT_EQ(render::SquareNamed(std::wstring{L'A', L'A', L'0', c}).has_value(), isDigit) << static_cast<int>(c);
    }
}

TEST(SquareNamed, IsNoneForAnythingElse)
{
    for (const wchar_t* text : {L"", L"JO6", L"JO65H", L"SO65", L"JS65", L"J065", L"JO6Z", L"5OJ6", L"JO 6", L"ЈО65",
                                L"\x124A\x124F\x0136\x0135"})
        EXPECT_FALSE(render::SquareNamed(text));
}

TEST_F(PlottedSquaresTest, HaveTheirCornersWhereTheyLie)
{
    const MapView view = View();
    const auto outline = render::OutlineOfSquare(view, {55, 14});
    ASSERT_TRUE(outline);
    const double corners[4][2] = {{55, 14}, {55, 16}, {56, 16}, {56, 14}};
    for (std::size_t i = 0; i < 4; ++i)
    {
        const OtherWay corner(view, corners[i][0], corners[i][1]);
        EXPECT_NEAR((*outline)[i].x, corner.x + 0.5, 1.01);
        EXPECT_NEAR((*outline)[i].y, corner.y + 0.5, 1.01);
    }
}

TEST_F(PlottedSquaresTest, AreFilledAndOutlined)
{
    const Ink ink = Draw(L"JO75");
    std::set<render::Argb> both = Only(kBorder);
    both.merge(Only(kFill));
    EXPECT_EQ(ink.colours, both);
    const auto outline = render::OutlineOfSquare(View(), {55, 14});
    wxRect box(outline->front(), wxSize(1, 1));
    for (const wxPoint& corner : *outline)
        box.Union(wxRect(corner, wxSize(1, 1)));
    EXPECT_EQ(ink.Bounds(), box);
    EXPECT_TRUE(ink.At(box.x + box.width / 2, box.y + box.height / 2));
}

TEST_F(PlottedSquaresTest, HaveAnOutlineOfStraightLines)
{
    style.fillColour = 0xFFFFFF; // nothing
    const MapView view = View();
    const auto outline = render::OutlineOfSquare(view, {57, 6});
    Stencil stencil(300, 1.1);
    for (std::size_t i = 0; i < 4; ++i)
    {
        const wxPoint from = (*outline)[i];
        const wxPoint to = (*outline)[(i + 1) % 4];
        stencil.Line(from.x, from.y, to.x, to.y);
    }
    const Ink ink = Draw(L"JO37");
    EXPECT_TRUE(stencil.Fits(ink));
    EXPECT_EQ(ink.colours, Only(kBorder));
}

TEST_F(PlottedSquaresTest, AreFoundAtEveryPlaceOfALine)
{
    const Ink expected = Draw(L"JO65");
    for (const wchar_t* text :
         {L"JO65HQ", L"worked jo65 today", L"xJO65", L"JJO65", L"JO6JO65", L"a\nJO65\r\nb", L"JO65\n", L"2023;JO65;59"})
        EXPECT_TRUE(Draw(text) == expected) << text;
}

TEST_F(PlottedSquaresTest, AreAllTriedWhereTheyOverlap)
{
    // JO65 is found first, then nothing at O65J; KO05 begins inside the next window.
    EXPECT_TRUE(Draw(L"JO65KO05") == Draw(L"JO65 KO05"));
}

TEST_F(PlottedSquaresTest, AreNotPutTogetherAcrossLinesAndBlanks)
{
    for (const wchar_t* text : {L"JO\n65", L"JO6\r\n5", L"JO 65", L"J O65", L"JO6", L"65"})
        EXPECT_FALSE(DrawsAnything(text)) << text;
    EXPECT_FALSE(DrawsAnything(std::wstring(L"JO\0"
                                            L"65",
                                            5)));
}

TEST_F(PlottedSquaresTest, LookTheSameTwiceAsOnce)
{
    for (style.stipple = 0; style.stipple < 7; ++style.stipple)
        EXPECT_TRUE(Draw(L"JO65 JO75 JO65") == Draw(L"JO65 JO75"));
}

TEST_F(PlottedSquaresTest, AreNotDrawnInPartAtTheLimit)
{
    settings.centreLat = 55.5;
    settings.centreLon = 13;
    settings.zoom = 500; // 4.5 degrees of latitude
    EXPECT_TRUE(DrawsAnything(L"JO68"));
    EXPECT_FALSE(DrawsAnything(L"JO69"));
    settings.compass.show = false;
    EXPECT_TRUE(DrawsAnything(L"JO69"));
}

TEST_F(PlottedSquaresTest, MayHaveACornerOnTheLimitItself)
{
    MapView view = View();
    double x = 0;
    double y = 0;
    constexpr double kRadians = 0.01745329251994328;
    // The farthest corner of JO75 from 55.7 N 12.6 E.
    view.visibleLimit = view.projection.Forward(x, y, 16 * kRadians, 55 * kRadians);
    EXPECT_TRUE(render::OutlineOfSquare(view, {55, 14}));
    --view.visibleLimit;
    EXPECT_FALSE(render::OutlineOfSquare(view, {55, 14}));
}

TEST_F(PlottedSquaresTest, AreDrawnWithACornerAtTheCentre)
{
    for (const double lat : {0.0, 55.0, -33.0})
    {
        settings.centreLat = lat;
        settings.centreLon = 14;
        const auto outline = render::OutlineOfSquare(View(), {lat, 14});
        ASSERT_TRUE(outline) << lat;
        EXPECT_EQ((*outline)[0], wxPoint(150, 150));
        EXPECT_GT((*outline)[2].x, 150);
        EXPECT_LT((*outline)[2].y, 150);
    }
}

TEST_F(PlottedSquaresTest, AreDrawnAroundThePoleAtTheCentre)
{
    settings.centreLat = 90;
    const auto outline = render::OutlineOfSquare(View(), {89, 14});
    ASSERT_TRUE(outline);
    EXPECT_EQ((*outline)[2], wxPoint(150, 150));
    EXPECT_EQ((*outline)[3], wxPoint(150, 150));
}

TEST_F(PlottedSquaresTest, AreNotDrawnWithACornerAtTheAntipode)
{
    // There the projection gives any distance or none: not a number at the opposite of 70 degrees south, one metre at
    // that of 84 degrees.
    settings.zoom = 20000;
    struct Place
    {
        double lat, lon;
    };
    for (const Place centre : {Place{0, 180}, Place{0, 0}, Place{10, 20}, Place{-47, -12}, Place{-70, -180},
                               Place{-84, -180}, Place{45, 90}, Place{90, 0}})
        for (const bool compass : {true, false})
        {
            settings.compass.show = compass;
            settings.centreLat = centre.lat;
            settings.centreLon = centre.lon;
            const double lat = -centre.lat;
            const double lon = centre.lon > 0 ? centre.lon - 180 : centre.lon + 180;
            const MapView view = View();
            for (const double south : {lat, lat - 1})
                for (const double west : {lon, lon - 2})
                    EXPECT_FALSE(render::OutlineOfSquare(view, {south, west})) << lat << '/' << lon;
        }
}

TEST_F(PlottedSquaresTest, StayOnTheMapAtAnyZoom)
{
    for (const long zoom : {LONG_MIN, -1L, 0L, 100L, 20016L, LONG_MAX})
    {
        settings.zoom = zoom;
        settings.centreLat = 0;
        settings.centreLon = 180;
        Draw(L"JJ00 II99 JI09 IJ90 AA00 RR99 RJ90 AJ00");
    }
}

TEST_F(PlottedSquaresTest, AreNoneInOtherText)
{
    EXPECT_FALSE(DrawsAnything(L""));
    EXPECT_FALSE(DrawsAnything(L"Nothing worked, 73 de JO"));
    EXPECT_FALSE(DrawsAnything(std::wstring(10000000, L'J')));
    EXPECT_FALSE(DrawsAnything(std::wstring(1000, L'\0')));
}

TEST_F(PlottedSquaresTest, AreReadFromTheShippedLog)
{
    const auto text = render::ReadTextFile(KAV_DATA_DIR "/sample.log");
    ASSERT_TRUE(text);
    EXPECT_TRUE(DrawsAnything(*text));
}

class HatchTest : public LayerFixture
{
protected:
    Ink Fill(int stipple) const
    {
        const std::vector<wxPoint> corners{{40, 40}, {140, 47}, {133, 140}, {44, 135}};
        return Paint([&](wxDC& dc)
                     { render::Hatch(stipple, wxColour(200, 80, 100), *wxBLACK).FillPolygon(dc, corners); });
    }

    /// Whether the pattern goes on from (x, y) in a direction.
    static bool GoesOn(const Ink& ink, int x, int y, int dx, int dy)
    {
        for (int i = -8; i <= 8; ++i)
            if (!ink.At(x + i * dx, y + i * dy))
                return false;
        return true;
    }

    /// Whether lines run in a direction somewhere well inside.
    static bool HasLines(const Ink& ink, int dx, int dy)
    {
        for (int y = 80; y < 88; ++y)
            for (int x = 80; x < 88; ++x)
                if (GoesOn(ink, x, y, dx, dy))
                    return true;
        return false;
    }
};

TEST_F(HatchTest, HasTheLinesOfItsName)
{
    struct Case
    {
        int stipple;
        bool rising, falling, level, upright;
    };
    for (const Case& c :
         {Case{1, true, false, false, false}, Case{2, true, true, false, false}, Case{3, false, true, false, false},
          Case{4, false, false, true, true}, Case{5, false, false, true, false}, Case{6, false, false, false, true}})
    {
        SCOPED_TRACE(c.stipple);
        const Ink ink = Fill(c.stipple);
        EXPECT_EQ(HasLines(ink, 1, -1), c.rising);
        EXPECT_EQ(HasLines(ink, 1, 1), c.falling);
        EXPECT_EQ(HasLines(ink, 1, 0), c.level);
        EXPECT_EQ(HasLines(ink, 0, 1), c.upright);
    }
}

TEST_F(HatchTest, RepeatsItsPatternEveryEightPixelsOfThePicture)
{
    const auto isMarked = [](int stipple, int x, int y)
    {
        const bool rising = (x + y) % 8 == 7;
        const bool falling = x % 8 == y % 8;
        const bool level = y % 8 == 3;
        const bool upright = x % 8 == 4;
        return std::array{
            true, rising, rising || falling, falling, level || upright, level, upright}[static_cast<std::size_t>(
            stipple)];
    };
    for (int stipple = 0; stipple < 7; ++stipple)
    {
        const Ink ink = Fill(stipple);
        for (int y = 50; y < 130; ++y)
            for (int x = 50; x < 130; ++x)
                ASSERT_EQ(ink.At(x, y), isMarked(stipple, x, y)) << stipple << ": " << x << ", " << y;
    }
}

TEST_F(HatchTest, LeavesOnlyItsTwoColours)
{
    std::set<render::Argb> both = Only(*wxBLACK);
    both.merge(Only(wxColour(200, 80, 100)));
    for (int stipple = 0; stipple < 7; ++stipple)
        EXPECT_EQ(Fill(stipple).colours, both) << stipple;
}

TEST_F(HatchTest, LeavesNoGapWhenSolid)
{
    const Ink ink = Fill(0);
    for (int y = 60; y < 120; ++y)
        for (int x = 60; x < 120; ++x)
            ASSERT_TRUE(ink.At(x, y));
}

TEST_F(HatchTest, TakesTheNearestPatternForOneThatIsNone)
{
    EXPECT_TRUE(Fill(-1) == Fill(0));
    EXPECT_TRUE(Fill(INT_MAX) == Fill(6));
}
} // namespace

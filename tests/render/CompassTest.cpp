#include "render/Compass.h"

#include "render/DiscDrawing.h"
#include "tests/support/Stencil.h"

namespace
{
class CompassTest : public LayerFixture
{
protected:
    /// Pixels from the outer to the inner end of a tick.
    double TickLength(int degree) const
    {
        const MapView view = View();
        const render::CompassTick tick =
            render::CompassTickAt(render::DiscGeometry(view.frame), render::CompassTickLength(view.frame), degree);
        return std::hypot(tick.outer.x - tick.inner.x, tick.outer.y - tick.inner.y);
    }

    Ink Ring(const wxColour& colour = *wxBLACK, int width = 1) const
    {
        return Paint([&](wxDC& dc) { render::DrawCompass(dc, View()); }, colour, width);
    }

    Stencil OtherRing() const
    {
        const int side = static_cast<int>(settings.size);
        const double centre = (side + 1) / 2;
        const double radius = centre - View().frame.mapMargin;
        Stencil stencil(side, 1.5);
        stencil.Circle(centre, 4);
        stencil.Circle(centre, radius);
        stencil.Circle(centre, radius - side / 100);
        for (int degree = 0; degree < 360; ++degree)
        {
            const double length = degree % 10 == 0 ? std::trunc(side / 100 * 1.5) : side / 100;
            const double s = std::sin(degree * std::numbers::pi / 180);
            const double c = std::cos(degree * std::numbers::pi / 180);
            stencil.Line(centre + s * radius - 0.5, centre - c * radius - 0.5, centre + s * (radius - length) - 0.5,
                         centre - c * (radius - length) - 0.5);
        }
        return stencil;
    }
};

TEST_F(CompassTest, HasItsTicksAtTheEdgeOfTheDisc)
{
    settings.size = 900;
    settings.compass.insideMap = false;
    const MapView view = View();
    const render::DiscGeometry disc(view.frame);
    EXPECT_EQ(view.frame.mapMargin, 10);
    EXPECT_EQ(disc.centre, 450);
    EXPECT_EQ(disc.radius, 440);
    EXPECT_EQ(render::CompassTickLength(view.frame), 9);
    const render::CompassTick north = render::CompassTickAt(disc, 9, 0);
    EXPECT_EQ(north.outer, (geo::Pixel{450, 10}));
    EXPECT_EQ(north.inner, (geo::Pixel{450, 23}));
    EXPECT_EQ(TickLength(0), 13);
    // The cosine of a right angle is a little more than zero, and that is truncated.
    EXPECT_EQ(render::CompassTickAt(disc, 9, 90).outer, (geo::Pixel{890, 449}));
}

TEST_F(CompassTest, HasLongerTicksAtTheTensWhereThereIsRoom)
{
    settings.size = 900;
    EXPECT_NEAR(TickLength(90), 13, 1);
    EXPECT_NEAR(TickLength(271), 9, 1);
    settings.size = 150;
    EXPECT_EQ(TickLength(0), 1);
    EXPECT_NEAR(TickLength(1), 1, 0.5);
}

TEST_F(CompassTest, DrawsRingsMarkAndTicksAndNothingElse)
{
    for (const long size : {900L, 901L, 300L, 150L, 100L})
        for (const bool inside : {true, false})
        {
            SCOPED_TRACE(testing::Message() << size << (inside ? " inside" : " outside"));
            settings.size = size;
            settings.compass.insideMap = inside;
            const wxColour colour(255, 128, 1);
            const Ink ink = Ring(colour);
            EXPECT_TRUE(OtherRing().Fits(ink));
            EXPECT_EQ(ink.colours, Only(colour));
        }
}

TEST_F(CompassTest, HasItsCentreRightOfAndBelowTheStationWithAnOddSize)
{
    settings.size = 901;
    settings.compass.text.show = true;
    const render::DiscGeometry disc(View().frame);
    EXPECT_EQ(disc.centre, 451);
    EXPECT_EQ(View().frame.half, 450);
    const wxRect bounds = Ring().Bounds();
    EXPECT_EQ(bounds.x + bounds.width / 2, 451);
    EXPECT_EQ(bounds.y + bounds.height / 2, 451);
}

TEST_F(CompassTest, IsDrawnWhenTheMarginLeavesNoDisc)
{
    settings.size = 100;
    settings.compass.text.show = true;
    const MapView view = render::MakeMapView(settings, 155207);
    EXPECT_EQ(render::DiscGeometry(view.frame).radius, 1);
    const Ink ink = Paint([&](wxDC& dc) { render::DrawCompass(dc, view); });
    EXPECT_EQ(ink.Bounds().width, 9); // the centre mark
    Paint([&](wxDC& dc) { render::DrawCompassText(dc, view, {true, "Sans 9", 0, 255}); });
}

TEST_F(CompassTest, WritesTheFiguresInTheMargin)
{
    settings.size = 600;
    settings.compass.text.show = true;
    const MapView view = View();
    const Ink ink = Paint([&](wxDC& dc) { render::DrawCompassText(dc, view, {true, "Sans 9", 0x0000C8, 255}); });
    EXPECT_EQ(ink.colours, Only(wxColour(200, 0, 0)));
    const render::DiscGeometry disc(view.frame);
    std::vector<int> inkByTen(36);
    ink.ForEach(
        [&](int x, int y)
        {
            const double range = std::hypot(x + 0.5 - disc.centre, y + 0.5 - disc.centre);
            EXPECT_GT(range, disc.radius - 4) << x << ", " << y;
            const double bearing = std::atan2(x - disc.centre, disc.centre - y) * 180 / std::numbers::pi + 365;
            ++inkByTen[static_cast<std::size_t>(bearing / 10) % 36];
        });
    for (std::size_t i = 0; i < inkByTen.size(); ++i)
        EXPECT_GT(inkByTen[i], 5) << i * 10;
}

TEST_F(CompassTest, NudgesFiguresCounterClockwise)
{
    settings.size = 600;
    const render::DiscGeometry disc(View().frame);
    const auto drawAt = [&](double bearing)
    {
        return Paint(
                   [&](wxDC& dc)
                   {
                       dc.SetFont(wxFont(wxFontInfo(12)));
                       render::DrawNumberAlongCircle(dc, disc, 8, bearing, 100, 100);
                   })
            .Bounds();
    };
    // At the top a figure stands upright and begins left of north, below its circle.
    const wxRect top = drawAt(0);
    EXPECT_LT(top.x, disc.centre);
    EXPECT_GT(top.y, disc.centre - 101);
    EXPECT_GT(top.height, top.width);
    // In the east it has turned clockwise by a right angle.
    const wxRect east = drawAt(90);
    EXPECT_GT(east.width, east.height);
    EXPECT_LT(east.y, disc.centre);
    EXPECT_LT(east.GetRight(), disc.centre + 101);
}
} // namespace

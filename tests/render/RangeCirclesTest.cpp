#include "render/RangeCircles.h"

#include "tests/support/Stencil.h"

#include <climits>

namespace
{
class RangeCirclesTest : public LayerFixture
{
protected:
    std::vector<long> Distances() const
    {
        std::vector<long> distances;
        render::TraceRangeCircles(View(), render::RangeCircleStepKm(settings.rangeCircles.distanceKm),
                                  [&](long km, int) { distances.push_back(km); });
        return distances;
    }

    Ink Draw(const wxColour& colour = *wxBLACK) const
    {
        return Paint([&](wxDC& dc) { render::DrawRangeCircles(dc, View(), settings.rangeCircles, "Sans 9"); }, colour);
    }
};

TEST_F(RangeCirclesTest, LieAtLeast100KmApart)
{
    EXPECT_EQ(render::RangeCircleStepKm(50), 100);
    EXPECT_EQ(render::RangeCircleStepKm(99), 100);
    EXPECT_EQ(render::RangeCircleStepKm(100), 100);
    EXPECT_EQ(render::RangeCircleStepKm(101), 101);
    EXPECT_EQ(render::RangeCircleStepKm(LONG_MIN), 100);
}

TEST_F(RangeCirclesTest, FillTheMapButForItsEdge)
{
    settings.rangeCircles.distanceKm = 50;
    const std::vector<long> distances = Distances();
    EXPECT_EQ(distances.size(), 199u);
    EXPECT_EQ(distances.front(), 100);
    EXPECT_EQ(distances.back(), 19900);
}

TEST_F(RangeCirclesTest, AreNoneWhenTheFirstWouldBeTheEdge)
{
    settings.rangeCircles.distanceKm = 1000;
    settings.zoom = 1000;
    EXPECT_TRUE(Distances().empty());
    settings.zoom = 1001;
    EXPECT_EQ(Distances(), std::vector<long>{1000});
    settings.rangeCircles.distanceKm = LONG_MAX;
    EXPECT_TRUE(Distances().empty());
}

TEST_F(RangeCirclesTest, LieAroundTheMiddleOfTheDisc)
{
    settings.rangeCircles.legendShow = false;
    for (const long size : {400L, 401L})
        for (const long zoom : {20000L, 5000L, 500L})
        {
            SCOPED_TRACE(testing::Message() << size << " px, " << zoom << " km");
            settings.size = size;
            settings.zoom = zoom;
            settings.rangeCircles.distanceKm = zoom / 4;
            const MapView view = View();
            Stencil stencil(static_cast<int>(size), 1.5);
            for (int i = 1; i < 4; ++i)
                stencil.Circle(static_cast<double>((size + 1) / 2),
                               std::floor(static_cast<double>(i * zoom / 4) * 1000 / view.frame.metresPerPixel));
            const wxColour colour(10, 200, 30);
            const Ink ink = Draw(colour);
            EXPECT_TRUE(stencil.Fits(ink));
            EXPECT_EQ(ink.colours, Only(colour));
        }
}

TEST_F(RangeCirclesTest, NameTheirDistanceUprightAndALittleLeftOfNorth)
{
    settings.rangeCircles.distanceKm = 10000;
    settings.rangeCircles.colour = 0x0000C8;
    const Ink both = Draw(wxColour(0, 0, 200));
    EXPECT_EQ(both.colours.size(), 2u); // circle and figures
    const Ink figures = Draw(*wxWHITE);
    EXPECT_EQ(figures.colours, Only(wxColour(200, 0, 0)));
    const wxRect bounds = figures.Bounds();
    EXPECT_GT(bounds.width, bounds.height);
    EXPECT_LT(bounds.x, 150);
    EXPECT_GT(bounds.x, 140);
    EXPECT_GT(bounds.y, 150 - 76);
    EXPECT_LT(bounds.y, 150 - 65);
}

TEST_F(RangeCirclesTest, NameTheirDistanceAtAnyBearing)
{
    settings.rangeCircles.distanceKm = 10000;
    for (const long bearing : {90L, 180L, 270L, -90L, 450L})
    {
        settings.rangeCircles.legendBearingDeg = bearing;
        const wxRect bounds = Draw(*wxWHITE).Bounds();
        const double expected = static_cast<double>(bearing) * std::numbers::pi / 180;
        EXPECT_NEAR(bounds.x + bounds.width / 2.0, 150 + 69 * std::sin(expected), 22) << bearing;
        EXPECT_NEAR(bounds.y + bounds.height / 2.0, 150 - 69 * std::cos(expected), 22) << bearing;
    }
    settings.rangeCircles.legendBearingDeg = LONG_MAX;
    Draw();
}
} // namespace

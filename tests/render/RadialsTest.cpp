#include "render/Radials.h"

#include "tests/support/Stencil.h"

#include <climits>

namespace
{
class RadialsTest : public LayerFixture
{
protected:
    Ink Draw(int every, const wxColour& colour = *wxBLACK) const
    {
        return Paint([&](wxDC& dc) { render::DrawRadials(dc, View(), every); }, colour);
    }
};

TEST_F(RadialsTest, TakeTheirStepFromTheChoice)
{
    const std::vector<int> steps{5, 10, 15, 30, 45};
    for (int every = 0; every < 5; ++every)
        EXPECT_EQ(render::RadialStepDeg(every), steps[static_cast<std::size_t>(every)]);
}

TEST_F(RadialsTest, TakeTheNearestChoiceForOneThatIsNone)
{
    EXPECT_EQ(render::RadialStepDeg(-1), 5);
    EXPECT_EQ(render::RadialStepDeg(INT_MIN), 5);
    EXPECT_EQ(render::RadialStepDeg(5), 45);
    EXPECT_EQ(render::RadialStepDeg(INT_MAX), 45);
}

TEST_F(RadialsTest, RunFromTheCentreToTheEdgeOfTheDisc)
{
    for (const long size : {300L, 301L})
        for (int every = 0; every < 5; ++every)
        {
            SCOPED_TRACE(testing::Message() << size << ", choice " << every);
            settings.size = size;
            const double centre = static_cast<double>((size + 1) / 2);
            const double radius = centre - View().frame.mapMargin;
            Stencil stencil(static_cast<int>(size), 1.5);
            for (int degree = 0; degree < 360; degree += render::RadialStepDeg(every))
            {
                const double bearing = degree * std::numbers::pi / 180;
                stencil.Line(centre, centre, std::floor(centre + std::sin(bearing) * radius),
                             std::floor(centre - std::cos(bearing) * radius));
            }
            const wxColour colour(150, 150, 150);
            const Ink ink = Draw(every, colour);
            EXPECT_TRUE(stencil.Fits(ink));
            EXPECT_EQ(ink.colours, Only(colour));
        }
}

TEST_F(RadialsTest, ReachTheEdgeWhateverTheZoom)
{
    settings.compass.show = false;
    const Ink whole = Draw(4);
    settings.zoom = 500;
    EXPECT_TRUE(Draw(4) == whole);
    settings.compass.show = true;
    EXPECT_TRUE(Draw(4) == whole);
}

TEST_F(RadialsTest, BeginInTheNorth)
{
    const Ink ink = Draw(4);
    EXPECT_TRUE(ink.At(150, 20));
    EXPECT_FALSE(ink.At(160, 20));
}
} // namespace

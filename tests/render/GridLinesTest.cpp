#include "render/GridLines.h"

#include "tests/render/Segment.h"
#include "tests/support/Stencil.h"

namespace
{
class GridLinesTest : public LayerFixture
{
protected:
    static std::vector<Segment> Trace(const MapView& view, const render::GridSpec& grid)
    {
        std::vector<Segment> segments;
        const auto collect = [&](geo::Pixel from, geo::Pixel to) { segments.push_back({from, to}); };
        render::TraceGridLines(view, grid, collect);
        return segments;
    }

    static double DistanceFromCentre(const MapView& view, geo::Pixel pixel)
    {
        return std::hypot(pixel.x - view.frame.half, pixel.y - view.frame.half);
    }

    /// Every place of a grid in steps of a twentieth of a degree.
    static Stencil OtherWayToDraw(const MapView& view, const render::GridSpec& grid)
    {
        // Thinning cuts corners and leaves off the last two pixels.
        Stencil stencil(view.frame.mapSize, 3.5);
        const auto add = [&](double lat, double lon)
        {
            const OtherWay place(view, lat, lon);
            const double toLimit = static_cast<double>(view.visibleLimit) - place.distance;
            // A line ends at its last visible sample, up to a tenth of a degree before the limit.
            if (place.distance > 1 && toLimit > 20000)
                stencil.Point(place.x, place.y);
            else if (toLimit > 0)
                stencil.Allow(place.x, place.y);
        };
        for (int lon = grid.lonFrom; lon <= grid.lonTo; lon += grid.lonStep)
            for (double lat = -85; lat <= 85; lat += 0.05)
                add(lat, lon);
        // The parallels at the poles are points and leave nothing.
        for (int lat = grid.latFrom + grid.latStep; lat < grid.latTo; lat += grid.latStep)
            for (double lon = -180; lon < 180; lon += 0.05)
                add(lat, lon);
        return stencil;
    }
};

TEST_F(GridLinesTest, AreThoseOfTheThreeGrids)
{
    const auto numbers = [](const render::GridSpec& grid)
    { return std::array{grid.lonFrom, grid.lonTo, grid.lonStep, grid.latFrom, grid.latTo, grid.latStep}; };
    EXPECT_EQ(numbers(render::kMeridianGrid), (std::array{-180, 180, 15, -75, 75, 15}));
    EXPECT_EQ(numbers(render::kFieldGrid), (std::array{-180, 180, 20, -90, 90, 10}));
    EXPECT_EQ(numbers(render::kSquareGrid), (std::array{-180, 180, 2, -84, 84, 1}));
}

TEST_F(GridLinesTest, LieWhereMeridiansAndParallelsAre)
{
    struct Centre
    {
        double lat, lon;
    };
    settings.size = 400;
    for (const Centre c : {Centre{55.6875, 12.625}, Centre{90, 0}, Centre{-90, 0}, Centre{0, 180}, Centre{-33.5, -70}})
        for (const long zoom : {20000L, 5000L, 500L})
        {
            SCOPED_TRACE(testing::Message() << c.lat << '/' << c.lon << " at " << zoom << " km");
            settings.centreLat = c.lat;
            settings.centreLon = c.lon;
            settings.zoom = zoom;
            const MapView view = View();
            const wxColour colour(38, 150, 255);
            const Ink ink = Paint([&](wxDC& dc) { render::DrawGridLines(dc, view, render::kFieldGrid); }, colour);
            EXPECT_TRUE(OtherWayToDraw(view, render::kFieldGrid).Fits(ink));
            // Within 500 km of a station there may be no line of a field.
            EXPECT_EQ(ink.colours, ink.Bounds().IsEmpty() ? std::set<render::Argb>{} : Only(colour));
        }
}

TEST_F(GridLinesTest, HaveThePensWidth)
{
    const auto draw = [&](wxDC& dc) { render::DrawGridLines(dc, View(), render::kMeridianGrid); };
    std::size_t thin = 0;
    std::size_t thick = 0;
    Paint(draw, *wxBLACK, 1).ForEach([&](int, int) { ++thin; });
    Paint(draw, *wxBLACK, 3).ForEach([&](int, int) { ++thick; });
    EXPECT_GT(thick, 2 * thin);
}

TEST_F(GridLinesTest, AreThinnedToThreePixels)
{
    for (const Segment& s : Trace(View(), render::kSquareGrid))
        ASSERT_TRUE(std::abs(s.from.x - s.to.x) >= 3 || std::abs(s.from.y - s.to.y) >= 3);
}

TEST_F(GridLinesTest, AreNotDrawnForTheParallelsAtThePoles)
{
    EXPECT_TRUE(Trace(View(), {0, 0, 0, 90, 90, 10}).empty());
    EXPECT_TRUE(Trace(View(), {0, 0, 0, -90, -90, 10}).empty());
    EXPECT_FALSE(Trace(View(), {0, 0, 0, 80, 80, 10}).empty());
}

TEST_F(GridLinesTest, KeepClearOfThePoleAtTheCentre)
{
    settings.centreLat = 90;
    const MapView view = View();
    const double fiveDegrees = 5 * 111194.87 / view.frame.metresPerPixel;
    for (const Segment& s : Trace(view, render::kMeridianGrid))
        for (const geo::Pixel end : {s.from, s.to})
            ASSERT_GT(DistanceFromCentre(view, end), fiveDegrees - 2);
}

TEST_F(GridLinesTest, BreakAtTheCentre)
{
    settings.centreLat = 0;
    settings.centreLon = 0;
    const MapView view = View();
    const std::vector<Segment> equator = Trace(view, {0, 0, 0, 0, 0, 1});
    EXPECT_FALSE(equator.empty());
    for (const Segment& s : equator)
        ASSERT_FALSE(s.from.x < view.frame.half && s.to.x > view.frame.half);
}

TEST_F(GridLinesTest, StopAtTheZoomWithTheCompassAndComeBack)
{
    settings.zoom = 5000;
    settings.centreLat = 80;
    settings.centreLon = 0;
    const MapView view = View();
    const double limit = 5000000 / view.frame.metresPerPixel;
    const std::vector<Segment> parallel = Trace(view, {0, 0, 0, 42, 42, 1});
    for (const Segment& s : parallel)
        for (const geo::Pixel end : {s.from, s.to})
            ASSERT_LT(DistanceFromCentre(view, end), limit + 2);
    // Seen from latitude 80, the parallel of 42 degrees is nearer than 5000 km only on the near side.
    EXPECT_FALSE(parallel.empty());
    // That of 60 degrees from a centre at 40 leaves and comes back within one trace that starts inside.
    settings.centreLat = 40;
    settings.centreLon = 180;
    const std::vector<Segment> leaving = Trace(View(), {0, 0, 0, 60, 60, 1});
    std::size_t breaks = 0;
    for (std::size_t i = 1; i < leaving.size(); ++i)
        breaks += !(leaving[i - 1].to == leaving[i].from);
    EXPECT_EQ(breaks, 1u);
}

TEST_F(GridLinesTest, ReachTheCornersWithoutTheCompass)
{
    settings.compass.show = false;
    settings.zoom = 5000;
    const MapView view = View();
    double farthest = 0;
    for (const Segment& s : Trace(view, render::kMeridianGrid))
        farthest = std::max(farthest, DistanceFromCentre(view, s.to));
    EXPECT_GT(farthest * view.frame.metresPerPixel, 19800000);
}

TEST_F(GridLinesTest, LookTheSameWithTheDatelineDrawnTwice)
{
    const auto draw = [&](int from) {
        return Paint([&](wxDC& dc) { render::DrawGridLines(dc, View(), {from, 180, 15, 1, 0, 1}); });
    };
    EXPECT_TRUE(draw(-180) == draw(-165));
}

TEST_F(GridLinesTest, EndWhereRepeatedSubtractionEnds)
{
    settings.size = 8000;
    settings.zoom = 1000;
    settings.centreLat = -83;
    settings.centreLon = 10;
    const MapView view = View();
    double last = 85.0;
    for (double lat = 85.0; lat >= -85.0; lat -= 0.1)
        last = lat;
    const OtherWay end(view, last, 10);
    const std::vector<Segment> meridian = Trace(view, {10, 10, 1, 0, 0, 0});
    ASSERT_FALSE(meridian.empty());
    EXPECT_NEAR(meridian.back().to.y, end.y + 0.5, 1.01);
    // A tenth of a degree is 44 pixels here, so one sample more or less would show.
    EXPECT_GT(11119.5 / view.frame.metresPerPixel, 40);
}

TEST_F(GridLinesTest, AreLeftOutWithoutAStep)
{
    EXPECT_TRUE(Trace(View(), {-180, 180, 0, -75, 75, -15}).empty());
    EXPECT_TRUE(Trace(View(), {180, -180, 15, 75, -75, 15}).empty());
}

TEST_F(GridLinesTest, EndAtTheLargestNumberOfDegrees)
{
    EXPECT_FALSE(Trace(View(), {2147483647, 2147483647, 2147483647, 1, 0, 1}).empty());
}
} // namespace

#include "render/ChainStroker.h"
#include "render/ThinnedPen.h"
#include "tests/render/Segment.h"
#include "tests/support/LayerFixture.h"

#include <random>

namespace
{
using Segments = std::vector<Segment>;

Segments TraceWith(int smallestStep, const std::vector<geo::Pixel>& points)
{
    Segments segments;
    const auto collect = [&](geo::Pixel from, geo::Pixel to) { segments.push_back({from, to}); };
    render::ThinnedPen pen(smallestStep);
    for (const geo::Pixel point : points)
        pen.To(point, collect);
    return segments;
}

TEST(ThinnedPen, DrawsNothingOnItsWayToTheFirstPoint)
{
    EXPECT_EQ(TraceWith(3, {{50, 60}}), Segments{});
    EXPECT_EQ(TraceWith(3, {{50, 60}, {10, 60}}), (Segments{{{50, 60}, {10, 60}}}));
}

TEST(ThinnedPen, WaitsUntilTheLineHasMovedThreePixelsInOneDirection)
{
    EXPECT_EQ(TraceWith(3, {{0, 0}, {2, 2}, {-2, -2}, {0, 2}}), Segments{});
    EXPECT_EQ(TraceWith(3, {{0, 0}, {2, 1}, {3, 1}, {5, 3}, {3, 4}}), (Segments{{{0, 0}, {3, 1}}, {{3, 1}, {3, 4}}}));
}

TEST(ThinnedPen, DrawsEveryStepWhenNoneIsTooSmall)
{
    EXPECT_EQ(TraceWith(0, {{7, 7}, {7, 7}, {8, 7}}), (Segments{{{7, 7}, {7, 7}}, {{7, 7}, {8, 7}}}));
}

TEST(ThinnedPen, BreaksTheLineWhereItIsLifted)
{
    Segments segments;
    const auto collect = [&](geo::Pixel from, geo::Pixel to) { segments.push_back({from, to}); };
    render::ThinnedPen pen(3);
    pen.To({0, 0}, collect);
    pen.Lift();
    pen.To({50, 0}, collect);
    pen.To({60, 0}, collect);
    EXPECT_EQ(segments, (Segments{{{50, 0}, {60, 0}}}));
}

class ChainStrokerTest : public LayerFixture
{
protected:
    void ExpectTheSamePixelsAsOneByOne(const Segments& segments, int width) const
    {
        const Ink chained = Paint(
            [&](wxDC& dc)
            {
                render::ChainStroker segment(dc);
                for (const Segment& s : segments)
                    segment(s.from, s.to);
            },
            *wxBLACK, width);
        const Ink single = Paint(
            [&](wxDC& dc)
            {
                for (const Segment& s : segments)
                    dc.DrawLine(s.from.x, s.from.y, s.to.x, s.to.y);
            },
            *wxBLACK, width);
        EXPECT_TRUE(chained == single) << "width " << width;
        EXPECT_EQ(chained.colours, Only(*wxBLACK));
    }

    std::mt19937 random{20231028};

    int Between(int lowest, int highest) { return std::uniform_int_distribution(lowest, highest)(random); }

    /// A line that wanders about, now and then lifted.
    Segments Wander(int count, int step)
    {
        Segments segments;
        geo::Pixel last{150, 150};
        for (int i = 0; i < count; ++i)
        {
            if (Between(0, 30) == 0)
                last = {Between(0, 299), Between(0, 299)};
            const geo::Pixel next{last.x + Between(-step, step), last.y + Between(-step, step)};
            segments.push_back({last, next});
            last = next;
        }
        return segments;
    }
};

TEST_F(ChainStrokerTest, LeavesTheSamePixelsAsLinesOneByOne)
{
    for (int width = 0; width <= 20; ++width)
        for (const int step : {2, 8, 40})
        {
            SCOPED_TRACE(step);
            ExpectTheSamePixelsAsOneByOne(Wander(400, step), width);
        }
}

TEST_F(ChainStrokerTest, LosesNoPixelOutsideOfABend)
{
    // In one path each of these bends loses a pixel with some pen: of 3, 6, 9, 10, 14, 17, 19 and 20 pixels.
    struct Bend
    {
        geo::Pixel before, after;
    };
    Segments segments;
    geo::Pixel middle{30, 100};
    for (const Bend& bend :
         {Bend{{8, 3}, {7, 12}}, Bend{{4, 1}, {17, 15}}, Bend{{-13, 8}, {-13, 4}}, Bend{{-11, 13}, {-7, 4}},
          Bend{{-13, 7}, {-12, 2}}, Bend{{-12, 13}, {-10, 9}}, Bend{{-13, 3}, {-11, 4}}, Bend{{-5, 7}, {-12, 10}}})
    {
        segments.push_back({{middle.x - bend.before.x, middle.y - bend.before.y}, middle});
        segments.push_back({middle, {middle.x + bend.after.x, middle.y + bend.after.y}});
        middle.x += 33;
        middle.y = 300 - middle.y;
    }
    for (int width = 0; width <= 20; ++width)
        ExpectTheSamePixelsAsOneByOne(segments, width);
}

TEST_F(ChainStrokerTest, KeepsAGapOfOnePixel)
{
    // In one path the pixel between the legs of such a corner would be closed.
    const Segments corner{{{104, 104}, {105, 105}}, {{105, 105}, {106, 104}}};
    ExpectTheSamePixelsAsOneByOne(corner, 1);
    EXPECT_FALSE(Paint(
                     [&](wxDC& dc)
                     {
                         render::ChainStroker segment(dc);
                         for (const Segment& s : corner)
                             segment(s.from, s.to);
                     })
                     .At(105, 104));
}

TEST_F(ChainStrokerTest, DrawsADotForASegmentWithoutLength)
{
    ExpectTheSamePixelsAsOneByOne({{{50, 50}, {50, 50}}, {{50, 50}, {50, 50}}, {{90, 90}, {90, 90}}}, 1);
    EXPECT_TRUE(Paint([](wxDC& dc) { render::ChainStroker{dc}({50, 50}, {50, 50}); }).At(50, 50));
}

TEST_F(ChainStrokerTest, DrawsWhatReachesIntoThePictureFromOutside)
{
    for (const int width : {1, 3, 8})
        ExpectTheSamePixelsAsOneByOne({{{-5, 20}, {-2, 90}},
                                       {{-700000, 50}, {700000, 51}},
                                       {{150, -900000}, {160, 900000}},
                                       {{302, 10}, {304, 200}},
                                       {{400, 100}, {100, 400}}},
                                      width);
}

TEST_F(ChainStrokerTest, LeavesOutWhatLiesOutside)
{
    const Ink ink = Paint(
        [](wxDC& dc)
        {
            render::ChainStroker segment(dc);
            segment({-1000000, -1000000}, {1000000, -999999});
            segment({400, 0}, {400, 300});
        });
    EXPECT_TRUE(ink.Bounds().IsEmpty());
}
} // namespace

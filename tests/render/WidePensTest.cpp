#include "render/BorderLines.h"
#include "render/ChainStroker.h"
#include "render/Compass.h"
#include "render/DiscDrawing.h"
#include "render/DiscGeometry.h"
#include "render/GridLines.h"
#include "render/Radials.h"
#include "tests/support/LayerFixture.h"

#include <algorithm>
#include <random>

namespace
{
/// Layers of lines with pens of every width, compared with lines that the toolkit draws one by one.
class WidePensTest : public LayerFixture
{
protected:
    static constexpr int kSide = 450;

    WidePensTest() { settings.size = kSide; }

    template <class Draw>
    static wxImage Picture(Draw draw, int width)
    {
        render::Layer layer(kSide);
        draw(layer.Begin(*wxBLACK, width));
        return PictureOf(layer, kSide);
    }

    /// @param[in] trace gets a context and what draws a line on it.
    template <class DrawLayer, class Trace>
    static void ExpectSingleLines(DrawLayer drawLayer, Trace trace, int narrowest = 0, int widest = 20, int step = 1)
    {
        const auto drawLines = [&](wxDC& dc)
        {
            auto line = [&dc](geo::Pixel from, geo::Pixel to) { dc.DrawLine(from.x, from.y, to.x, to.y); };
            trace(dc, line);
        };
        for (int width = narrowest; width <= widest; width += step)
        {
            const wxImage layer = Picture(drawLayer, width);
            const wxImage lines = Picture(drawLines, width);
            EXPECT_TRUE(std::equal(lines.GetData(), lines.GetData() + 3 * kSide * kSide, layer.GetData()))
                << "width " << width;
        }
    }
};

TEST_F(WidePensTest, DrawGridLinesLikeSingleLines)
{
    const MapView view = View();
    ExpectSingleLines([&](wxDC& dc) { render::DrawGridLines(dc, view, render::kMeridianGrid); },
                      [&](wxDC&, auto& line) { render::TraceGridLines(view, render::kMeridianGrid, line); });
}

TEST_F(WidePensTest, DrawBordersLikeSingleLines)
{
    settings.zoom = 2500;
    const MapView view = View();
    const wxString file = KAV_DATA_DIR "/mapper.pnt";
    ExpectSingleLines([&](wxDC& dc) { render::DrawBorderLines(dc, view, file); },
                      [&](wxDC&, auto& line)
                      {
                          render::BorderFile points(file);
                          render::BorderTracer tracer(view);
                          for (render::BorderRecord record{}; points.Next(record);)
                              tracer.Add(record, line);
                      });
}

TEST_F(WidePensTest, DrawRadialsLikeSingleLines)
{
    const MapView view = View();
    const render::DiscGeometry disc(view.frame);
    ExpectSingleLines([&](wxDC& dc) { render::DrawRadials(dc, view, 0); },
                      [&](wxDC&, auto& line)
                      {
                          for (int degree = 0; degree < 360; degree += 5)
                              line({disc.centre, disc.centre}, disc.At(degree, disc.radius));
                      });
}

/// Around the width from which on a line in a corner covers the picture, and up to the widest that there is.
TEST_F(WidePensTest, CoverThePictureLikeSingleLines)
{
    const auto trace = [](wxDC&, auto& line)
    {
        line({0, 0}, {10, 0});
        line({kSide - 1, kSide - 1}, {kSide - 1, kSide - 10});
    };
    const auto draw = [&](wxDC& dc)
    {
        render::ChainStroker lines(dc);
        trace(dc, lines);
    };
    ExpectSingleLines(draw, trace, 1100, 1300, 5);
    ExpectSingleLines(draw, trace, render::kMaxMapSize, render::kMaxMapSize);
}

TEST_F(WidePensTest, DrawTheCompassLikeSingleLines)
{
    const MapView view = View();
    const render::DiscGeometry disc(view.frame);
    const int tickLength = render::CompassTickLength(view.frame);
    ExpectSingleLines([&](wxDC& dc) { render::DrawCompass(dc, view); },
                      [&](wxDC& dc, auto& line)
                      {
                          for (const int radius : {4, disc.radius, disc.radius - tickLength})
                              render::DrawCircle(dc, disc, radius);
                          for (int degree = 0; degree < 360; ++degree)
                          {
                              const render::CompassTick tick = render::CompassTickAt(disc, tickLength, degree);
                              line(tick.outer, tick.inner);
                          }
                      });
}
TEST_F(WidePensTest, DrawWhatIsNewOnACrowdedSheet)
{
    // Lines across the picture, the last of which find hardly a pixel that is not marked: in all directions, or so flat
    // or steep that many lie on others.
    std::mt19937 random{20261121};
    const auto between = [&random](int least, int most) { return std::uniform_int_distribution(least, most)(random); };
    for (const int spread : {0, 3, 300})
        for (const int count : {30, 100, 300, 1000, 3000})
        {
            SCOPED_TRACE(testing::Message() << count << " lines, spread " << spread);
            const auto traceWith = [&, seed = random()](auto& line)
            {
                random.seed(seed);
                for (int i = 0; i < count; ++i)
                {
                    const geo::Pixel from{between(-20, 300), between(-10, 460)};
                    const geo::Pixel to{from.x + between(100, 200), from.y + between(-spread, spread)};
                    if (i % 2 == 0)
                        line(from, to);
                    else
                        line({from.y, from.x}, {to.y, to.x});
                }
            };
            ExpectSingleLines(
                [&](wxDC& dc)
                {
                    render::ChainStroker line(dc);
                    traceWith(line);
                },
                [&](wxDC&, auto& line) { traceWith(line); }, 1, 17, spread == 300 ? 1 : 4);
        }
}
} // namespace

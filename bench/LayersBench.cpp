#include "config/Configuration.h"
#include "render/BitmapPixels.h"
#include "render/Bitmaps.h"
#include "render/BorderLines.h"
#include "render/Compass.h"
#include "render/GridLabels.h"
#include "render/GridLines.h"
#include "render/Layer.h"
#include "render/PlottedSquares.h"
#include "render/Radials.h"
#include "render/RangeCircles.h"
#include "render/TextFile.h"
#include "render/TextLabels.h"

#include <benchmark/benchmark.h>

#include <wx/file.h>
#include <wx/filename.h>

#include <functional>
#include <random>

// Each layer from the blank sheet to the blended map. Needs a display.

namespace
{
using Draw = std::function<void(wxDC&, const MapView&)>;

/// The default map, without the settings of whoever runs the benchmarks.
MapView BenchView(int size)
{
    MapView view;
    view.projection.Init(0, 0, 55.6875, 12.625);
    view.frame = MapFrame(size, 20000000, 17);
    view.visibleLimit = 20000000;
    return view;
}

bool IsWhite(wxBitmap& map)
{
    const render::BitmapPixels pixels(map);
    for (int y = 0; y < pixels.Height(); ++y)
        for (const render::Argb pixel : pixels.Row(y))
            if ((pixel | 0xFF000000) != render::kWhite)
                return false;
    return true;
}

void DrawOneLayer(benchmark::State& state, const Draw& draw, render::Inks inks)
{
    const int size = static_cast<int>(state.range(0));
    const MapView view = BenchView(size);
    const auto map = render::NewWhiteBitmap(size);
    render::Layer layer(size, inks);
    for (auto _ : state)
    {
        wxDC& dc = layer.Begin(*wxBLACK, 1);
        if (draw)
            draw(dc, view);
        layer.BlendOnto(*map, 255);
    }
    if (draw && IsWhite(*map))
        state.SkipWithError("nothing was drawn");
}

TextStyle Style()
{
    return {true, "Sans 9", 0, 255};
}

/// A point file of 400 000 points, each a few minutes of arc on from the one before: as many as a detailed map of the
/// world has.
class LongBorderFile
{
public:
    LongBorderFile() : m_path(wxFileName::CreateTempFileName("kavmap-bench"))
    {
        constexpr int kPoints = 400000;
        constexpr int kLine = 2000;
        std::mt19937 random(1);
        std::uniform_int_distribution<int> step(-6, 6);
        std::vector<std::int16_t> values;
        int lat = 0;
        int lon = 0;
        for (int i = 0; i < kPoints; ++i)
        {
            const bool isStart = i % kLine == 0;
            lat = isStart ? static_cast<int>(random() % 9000) - 4500 : lat + step(random);
            lon = isStart ? static_cast<int>(random() % 20000) - 10000 : lon + step(random);
            for (const int value : {isStart ? 1000 : 0, lat, lon})
                values.push_back(static_cast<std::int16_t>(value));
        }
        wxFile(m_path, wxFile::write).Write(values.data(), values.size() * sizeof(values[0]));
    }
    ~LongBorderFile() { wxRemoveFile(m_path); }
    LongBorderFile(const LongBorderFile&) = delete;
    LongBorderFile& operator=(const LongBorderFile&) = delete;

    const wxString& Path() const { return m_path; }

private:
    wxString m_path;
};

Draw Grid(const render::GridSpec& grid)
{
    return [grid](wxDC& dc, const MapView& view) { render::DrawGridLines(dc, view, grid); };
}

Draw Borders(const wxString& path)
{
    return [path](wxDC& dc, const MapView& view) { render::DrawBorderLines(dc, view, path); };
}

Draw Circles(bool withLegend)
{
    RangeCirclesSettings circles;
    circles.distanceKm = 1000;
    circles.legendShow = withLegend;
    return [circles](wxDC& dc, const MapView& view) { render::DrawRangeCircles(dc, view, circles, "Sans 9"); };
}

Draw Labels(const wxString& path, bool avoidCollisions)
{
    TextSlot style;
    style.font = "Sans 9";
    style.avoidCollisions = avoidCollisions;
    return [=](wxDC& dc, const MapView& view)
    { render::DrawTextLabels(dc, view, *render::ReadLabelFile(path), style); };
}

Draw Squares(const wxString& path)
{
    return [path](wxDC& dc, const MapView& view)
    { render::DrawPlottedSquares(dc, view, *render::ReadTextFile(path), PlotSquaresSlot()); };
}

void Register(const char* name, const Draw& draw, render::Inks inks = render::Inks::One)
{
    benchmark::RegisterBenchmark(name, [draw, inks](benchmark::State& state) { DrawOneLayer(state, draw, inks); })
        ->Arg(900)
        ->Arg(4000)
        ->Unit(benchmark::kMillisecond);
}

/// The layers without text, then those that are text.
const bool kRegistered = []
{
    const wxString data(KAV_DATA_DIR "/");
    Register("Nothing", nullptr);
    Register("Meridians", Grid(render::kMeridianGrid));
    Register("FieldLines", Grid(render::kFieldGrid));
    Register("SquareLines", Grid(render::kSquareGrid));
    Register("Compass", render::DrawCompass);
    Register("ShippedBorders", Borders(data + "mapper.pnt"));
    Register("BordersOf400000Points",
             [](wxDC& dc, const MapView& view)
             {
                 static const LongBorderFile file;
                 render::DrawBorderLines(dc, view, file.Path());
             });
    Register("Radials", [](wxDC& dc, const MapView& view) { render::DrawRadials(dc, view, 0); });
    Register("RangeCircles", Circles(false));
    Register("PlottedSquares", Squares(data + "sample.log"), render::Inks::Many);

    Register("RangeCirclesWithLegend", Circles(true));
    Register("FieldLabels", [](wxDC& dc, const MapView& view) { render::DrawFieldLabels(dc, view, Style()); });
    Register("SquareLabels", [](wxDC& dc, const MapView& view) { render::DrawSquareLabels(dc, view, Style()); });
    Register("CompassText", [](wxDC& dc, const MapView& view) { render::DrawCompassText(dc, view, Style()); });
    Register("Cities", Labels(data + "cities.dat", false));
    Register("CitiesApart", Labels(data + "cities.dat", true));
    return true;
}();
} // namespace

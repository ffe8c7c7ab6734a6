#include "config/Configuration.h"
#include "config/SettingsFile.h"
#include "propagation/ResultReader.h"
#include "render/BorderLines.h"
#include "render/Layer.h"
#include "render/PlottedSquares.h"
#include "render/TextFile.h"
#include "render/TextLabels.h"
#include "reports/Bearings.h"
#include "reports/KeyCheck.h"
#include "reports/Places.h"

#include <benchmark/benchmark.h>

#include <filesystem>
#include <fstream>
#include <random>

// The worst input that each reader of outside bytes may get, in sizes that double or more: how its cost grows. The map
// has 900 pixels unless a benchmark is about pixels. Needs a display.

namespace
{
/// A file for as long as it lives.
class Input
{
public:
    explicit Input(const std::string& bytes) { std::ofstream(m_path, std::ios::binary) << bytes; }
    ~Input() { std::filesystem::remove(m_path); }
    Input(const Input&) = delete;
    Input& operator=(const Input&) = delete;

    wxString Name() const { return wxString(m_path.native()); }

private:
    std::filesystem::path m_path = std::filesystem::temp_directory_path() / ("growth" + std::to_string(getpid()));
};

MapView WholeWorld(int side)
{
    Settings settings = DefaultSettings();
    settings.size = side;
    return render::MakeMapView(settings, 17);
}

template <class Draw>
void DrawLayer(benchmark::State& state, int side, Draw draw, int lineWidth = 1)
{
    const MapView view = WholeWorld(side);
    render::Layer layer(side);
    for (auto _ : state)
    {
        draw(layer.Begin(*wxBLACK, lineWidth), view);
        layer.TakeMarks(255);
    }
    state.SetComplexityN(state.range(0));
}

/// As if by a hand that scatters them over the whole world.
std::string RandomLabels(std::int64_t count)
{
    std::mt19937 random(1);
    std::uniform_real_distribution<> lat(-90, 90);
    std::uniform_real_distribution<> lon(-180, 180);
    std::string text;
    for (std::int64_t i = 0; i < count; ++i)
        text += std::to_string(i) + ";Somewhere;City;XX;" + std::to_string(lat(random)) + ";" +
                std::to_string(lon(random)) + "\n";
    return text;
}

/// Half of all pairs of points lie far apart, so every line crosses the map.
std::string RandomPoints(std::int64_t count)
{
    std::mt19937 random(1);
    std::uniform_int_distribution<> lat(-5400, 5400);
    std::uniform_int_distribution<> lon(-10800, 10800);
    std::string bytes;
    for (std::int64_t i = 0; i < count; ++i)
        for (const int number : {1, lat(random), lon(random)})
        {
            bytes += static_cast<char>(number & 0xFF);
            bytes += static_cast<char>(number >> 8 & 0xFF);
        }
    return bytes;
}

/// Nothing but squares, each another than the one before.
std::wstring RandomSquares(std::int64_t count)
{
    std::mt19937 random(1);
    const auto character = [&](wchar_t first, int choices)
    { return static_cast<wchar_t>(first + std::uniform_int_distribution<>(0, choices - 1)(random)); };
    std::wstring text;
    for (std::int64_t i = 0; i < count; ++i)
        text += {character('A', 18), character('A', 18), character('0', 10), character('0', 10)};
    return text;
}

void Labels(benchmark::State& state, bool keepClear)
{
    const std::wstring text = render::DecodeText(RandomLabels(state.range(0)));
    TextSlot style;
    style.font = "Sans";
    style.avoidCollisions = keepClear;
    DrawLayer(state, 900, [&](wxDC& dc, const MapView& view) { render::DrawTextLabels(dc, view, text, style); });
}
BENCHMARK_CAPTURE(Labels, keeping_clear, true)->RangeMultiplier(8)->Range(400, 204800)->Complexity(benchmark::oN);
BENCHMARK_CAPTURE(Labels, all, false)->RangeMultiplier(8)->Range(400, 25600)->Complexity(benchmark::oN);

/// A hundred labels; the argument is the size of their font in points.
void TallFonts(benchmark::State& state)
{
    const std::wstring text = render::DecodeText(RandomLabels(100));
    TextSlot style;
    style.font = wxString::Format("Sans %d", static_cast<int>(state.range(0)));
    DrawLayer(state, 900, [&](wxDC& dc, const MapView& view) { render::DrawTextLabels(dc, view, text, style); });
}
BENCHMARK(TallFonts)->RangeMultiplier(4)->Range(10, 10240)->Complexity();

/// A thousand lines across the map; the argument is the width of the pen in pixels.
void WidePens(benchmark::State& state)
{
    const Input file(RandomPoints(1000));
    DrawLayer(
        state, 900, [&](wxDC& dc, const MapView& view) { render::DrawBorderLines(dc, view, file.Name()); },
        static_cast<int>(state.range(0)));
}
BENCHMARK(WidePens)->RangeMultiplier(4)->Range(1, 4096)->Complexity();

void Points(benchmark::State& state, int side)
{
    const Input file(RandomPoints(state.range(0)));
    DrawLayer(state, side, [&](wxDC& dc, const MapView& view) { render::DrawBorderLines(dc, view, file.Name()); });
}
BENCHMARK_CAPTURE(Points, on_900_pixels, 900)->RangeMultiplier(4)->Range(4000, 256000)->Complexity(benchmark::oN);
BENCHMARK_CAPTURE(Points, on_4000_pixels, 4000)->RangeMultiplier(4)->Range(4000, 1024000)->Complexity(benchmark::oN);

void Squares(benchmark::State& state)
{
    const std::wstring text = RandomSquares(state.range(0));
    PlotSquaresSlot style;
    style.stipple = 2;
    DrawLayer(state, 900, [&](wxDC& dc, const MapView& view) { render::DrawPlottedSquares(dc, view, text, style); });
}
BENCHMARK(Squares)->RangeMultiplier(8)->Range(400, 204800)->Complexity(benchmark::oN);

/// Megabytes in which no square is named, from the bytes on.
void LogWithoutSquares(benchmark::State& state)
{
    const std::string bytes(static_cast<std::size_t>(state.range(0)) << 20, 'x');
    DrawLayer(state, 900,
              [&](wxDC& dc, const MapView& view)
              { render::DrawPlottedSquares(dc, view, render::DecodeText(bytes), PlotSquaresSlot()); });
}
BENCHMARK(LogWithoutSquares)->RangeMultiplier(4)->Range(1, 64)->Complexity(benchmark::oN);

void SquaresInATable(benchmark::State& state)
{
    const std::wstring text = RandomSquares(state.range(0));
    for (auto _ : state)
        benchmark::DoNotOptimize(reports::SquaresOfLog(text));
    state.SetComplexityN(state.range(0));
}
BENCHMARK(SquaresInATable)->RangeMultiplier(8)->Range(400, 204800)->Complexity(benchmark::oNLogN);

void LabelsInATable(benchmark::State& state)
{
    const std::wstring text = render::DecodeText(RandomLabels(state.range(0)));
    const reports::Bearings bearings(DefaultSettings());
    for (auto _ : state)
        for (const reports::Place& place : reports::PlacesOf(text, "labels.dat").found)
            benchmark::DoNotOptimize(bearings.Row(place, {2026, 2, 20, 12, 0, 0}));
    state.SetComplexityN(state.range(0));
}
BENCHMARK(LabelsInATable)->RangeMultiplier(8)->Range(400, 25600)->Complexity(benchmark::oN);

/// The argument is the number of points.
void ResultGrids(benchmark::State& state)
{
    const auto side = static_cast<int>(std::sqrt(state.range(0)));
    std::string text = wxString::Format("\n\n%3d\n", side).utf8_string();
    for (std::int64_t i = 0; i < state.range(0); ++i)
        text += std::string(80, ' ') + "-123.45 -12.34 12.34 0.99 -123.45 -12.34\n";
    const Input file(text);
    for (auto _ : state)
    {
        propagation::LineReader lines(file.Name());
        benchmark::DoNotOptimize(propagation::ReadResult(lines, propagation::Parameter::Sdbw));
    }
    state.SetComplexityN(state.range(0));
}
BENCHMARK(ResultGrids)->RangeMultiplier(4)->Range(3600, 921600)->Complexity(benchmark::oN);

/// Keys that the program does not know, in one group.
void UnknownKeys(benchmark::State& state, bool isChecked)
{
    std::string text = "[Text]\n";
    for (std::int64_t i = 0; i < state.range(0); ++i)
        text += "Key" + std::to_string(i * 7919 % state.range(0)) + "=1\n";
    const Input file(text);
    for (auto _ : state)
    {
        const auto settings = OpenSettingsFile(file.Name());
        if (isChecked)
            benchmark::DoNotOptimize(reports::CheckKeys(*settings));
    }
    state.SetComplexityN(state.range(0));
}
BENCHMARK_CAPTURE(UnknownKeys, loaded, false)->RangeMultiplier(4)->Range(1000, 64000)->Complexity(benchmark::oNLogN);
BENCHMARK_CAPTURE(UnknownKeys, checked, true)->RangeMultiplier(4)->Range(250, 16000)->Complexity(benchmark::oNLogN);
} // namespace

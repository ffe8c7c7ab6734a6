#include "config/Configuration.h"
#include "propagation/Overlay.h"
#include "propagation/WorldGrid.h"
#include "render/BaseMap.h"
#include "render/BitmapPixels.h"
#include "render/Bitmaps.h"
#include "render/MapPicture.h"

#include <benchmark/benchmark.h>

#include <cmath>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>

namespace
{
using namespace propagation;

/// A result of the given size as a file of the real layout, removed at the end.
class ResultFile
{
public:
    explicit ResultFile(int points) : m_path(std::filesystem::temp_directory_path() / "kavmap-bench.vg1")
    {
        std::FILE* const file = std::fopen(m_path.c_str(), "w");
        std::fprintf(file, "VOACAPL\nHOME\n%3d%3d  Latitude Longitude\n", points, points);
        for (int row = 0; row < points; ++row)
            for (int column = 0; column < points; ++column)
                std::fprintf(file, "%74s%6.1f%90s\n", "", -120 + 50 * std::sin(row * 0.3) * std::cos(column * 0.2), "");
        std::fclose(file);
    }
    ~ResultFile() { std::filesystem::remove(m_path); }
    ResultFile(const ResultFile&) = delete;
    ResultFile& operator=(const ResultFile&) = delete;

    ResultGrid Read() const
    {
        LineReader lines(m_path.string());
        return *ReadResult(lines, Parameter::Sdbw);
    }

private:
    std::filesystem::path m_path;
};

/// Settings with their defaults, from no file.
const Configuration& Defaults()
{
    static wxFileConfig nothing("", "", "", "", 0);
    static const Configuration settings("KavmapBench", nothing);
    return settings;
}

MapView ViewOfSide(int side)
{
    MapView view = render::MakeMapView(Defaults(), 17);
    view.frame = MapFrame(side, 20000000, 17);
    return view;
}

void ReadResultFile(benchmark::State& state)
{
    const int points = static_cast<int>(state.range(0));
    const ResultFile file(points);
    if (file.Read().values.size() != static_cast<std::size_t>(points * points) || file.Read().maximum > -69)
        return state.SkipWithError("not what was written");
    for (auto _ : state)
        benchmark::DoNotOptimize(file.Read());
}
BENCHMARK(ReadResultFile)->Arg(36)->Arg(198)->Unit(benchmark::kMillisecond);

void RegridResult(benchmark::State& state)
{
    const ResultGrid result = ResultFile(static_cast<int>(state.range(0))).Read();
    if (WorldValues(result).back() != result.values.back())
        return state.SkipWithError("the corner is not the source's");
    for (auto _ : state)
        benchmark::DoNotOptimize(WorldValues(result));
}
BENCHMARK(RegridResult)->Arg(36)->Arg(198)->Unit(benchmark::kMillisecond);

void ClassifyWorld(benchmark::State& state)
{
    const ResultGrid result = ResultFile(36).Read();
    const ClassScale scale = ScaleOf(Defaults().propagation, result);
    const auto values = WorldValues(result);
    for (auto _ : state)
        benchmark::DoNotOptimize(WorldClasses(values, scale));
}
BENCHMARK(ClassifyWorld)->Unit(benchmark::kMillisecond);

/// A file of 200 MB that is no result, with or without line feeds.
void GetOverNoise(benchmark::State& state)
{
    const auto path = std::filesystem::temp_directory_path() / "kavmap-bench-noise.vg1";
    std::string block(1 << 20, '\0');
    unsigned noise = 1;
    for (char& c : block)
    {
        noise = noise * 1664525 + 1013904223;
        c = static_cast<char>(noise >> 24);
        if (c == '\n' && state.range(0) == 0)
            c = 'x';
    }
    {
        std::ofstream file(path, std::ios::binary);
        file << "VOACAPL\nHOME\n999999  Latitude Longitude\n";
        for (int i = 0; i < 200; ++i)
            file << block;
    }
    for (auto _ : state)
    {
        LineReader file(wxString(path.string()));
        benchmark::DoNotOptimize(ReadResult(file, Parameter::Sdbw));
    }
    std::filesystem::remove(path);
}
BENCHMARK(GetOverNoise)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

void DrawOverlayPixels(benchmark::State& state)
{
    const MapView view = ViewOfSide(static_cast<int>(state.range(0)));
    const ResultGrid result = ResultFile(36).Read();
    const ClassScale scale = ScaleOf(Defaults().propagation, result);
    const auto classes = WorldClasses(WorldValues(result), scale);
    MapPicture picture;
    for (auto _ : state)
        picture.PutPropagation(std::make_unique<Overlay>(view, classes, scale, 120));
}
BENCHMARK(DrawOverlayPixels)->Arg(900)->Arg(8000)->Unit(benchmark::kMillisecond);

/// What an overlay is measured against.
void DrawBaseMapPixels(benchmark::State& state)
{
    const MapView view = ViewOfSide(static_cast<int>(state.range(0)));
    const geo::RowSampler rows = render::BaseMapRows(view, render::WorldPicture::BuiltIn());
    for (auto _ : state)
    {
        const auto bitmap = render::NewOverlayBitmap(view.frame.mapSize);
        const render::BitmapPixels pixels(*bitmap);
        for (int y = 0; y < view.frame.mapSize; ++y)
            rows.Row(y, pixels.Row(y));
    }
}
BENCHMARK(DrawBaseMapPixels)->Arg(900)->Arg(8000)->Unit(benchmark::kMillisecond);

void FromFileToOverlay(benchmark::State& state)
{
    const MapView view = ViewOfSide(static_cast<int>(state.range(0)));
    const ResultFile file(36);
    MapPicture picture;
    for (auto _ : state)
    {
        const ResultGrid result = file.Read();
        const ClassScale scale = ScaleOf(Defaults().propagation, result);
        picture.PutPropagation(std::make_unique<Overlay>(view, WorldClasses(WorldValues(result), scale), scale, 120));
    }
}
BENCHMARK(FromFileToOverlay)->Arg(900)->Arg(8000)->Unit(benchmark::kMillisecond);
} // namespace

#include "geo/AzimuthalProjection.h"
#include "geo/MapFrame.h"

#include <benchmark/benchmark.h>

namespace
{
AzimuthalProjection DefaultProjection()
{
    AzimuthalProjection projection;
    projection.Init(0, 0, 55.6875, 12.625);
    return projection;
}

void InverseOfEveryPixel(benchmark::State& state)
{
    const int size = static_cast<int>(state.range(0));
    const AzimuthalProjection projection = DefaultProjection();
    const MapFrame frame(size, 20000000, 1);
    for (auto _ : state)
        for (int row = 0; row < size; ++row)
            for (int column = 0; column < size; ++column)
            {
                const geo::MapPoint point = frame.PixelToMap(column, row);
                double lon = 0.0;
                double lat = 0.0;
                benchmark::DoNotOptimize(projection.Inverse(lon, lat, point.x, point.y));
                benchmark::DoNotOptimize(lon);
                benchmark::DoNotOptimize(lat);
            }
    state.SetItemsProcessed(state.iterations() * size * size);
}
BENCHMARK(InverseOfEveryPixel)->Arg(900)->Unit(benchmark::kMillisecond);

void ForwardOfTheTenthDegreeGrid(benchmark::State& state)
{
    const AzimuthalProjection projection = DefaultProjection();
    for (auto _ : state)
        for (int i = -1800; i < 1800; i += 7)
            for (int j = -900; j <= 900; j += 7)
            {
                double x = 0.0;
                double y = 0.0;
                benchmark::DoNotOptimize(projection.Forward(x, y, i * 0.0017453, j * 0.0017453));
                benchmark::DoNotOptimize(x);
                benchmark::DoNotOptimize(y);
            }
    state.SetItemsProcessed(state.iterations() * 515 * 258);
}
BENCHMARK(ForwardOfTheTenthDegreeGrid)->Unit(benchmark::kMillisecond);
} // namespace

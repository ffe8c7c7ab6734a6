// The greyline as an overlay, ready to be laid over the map.

#include "render/Greyline.h"
#include "render/MapPicture.h"

#include <benchmark/benchmark.h>

namespace
{
MapView View(int size)
{
    MapView view;
    view.projection.Init(0, 0, 55.6875, 12.625);
    view.frame = MapFrame(size, 20000000, 17);
    view.visibleLimit = 20000000;
    return view;
}

void GreylineOverlay(benchmark::State& state)
{
    const MapView view = View(static_cast<int>(state.range(0)));
    GreyzoneSettings greyzone;
    greyzone.widthDeg = 6;
    greyzone.gradient = true;
    greyzone.darkeningGrey = 60;
    greyzone.darkeningNight = 30;
    MapPicture picture;
    for (auto _ : state)
        picture.PutGreyline(std::make_unique<render::GreylineOverlay>(view, greyzone, geo::LatLon{23.4, 40.0}));
}
BENCHMARK(GreylineOverlay)->Arg(900)->Arg(4000)->Arg(8000)->Unit(benchmark::kMillisecond);
} // namespace

#include "FuzzedBytes.h"

#include "render/BorderLines.h"

// Every point of a point file, on the map of the default station.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static fuzz::NamedBytes file;
    static const MapView view = render::MakeMapView(DefaultSettings(), 15);
    render::BorderFile points(file.Hold(fuzz::BytesOf(data, size)));
    render::BorderTracer tracer(view);
    std::size_t count = 0;
    const auto segment = [](geo::Pixel, geo::Pixel to)
    { fuzz::Demand(std::abs(to.x) <= 1 << 20 && std::abs(to.y) <= 1 << 20); };
    for (render::BorderRecord record; points.Next(record); ++count)
        tracer.Add(record, segment);
    fuzz::Demand(count == (size + 5) / 6);
    return 0;
}

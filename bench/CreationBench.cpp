// A whole default creation in a real window, as a click on "Create" makes it, against the design that converts: a plain
// base map, and for each layer a bitmap and two images. Both leave the same picture.

#include "render/Blend.h"
#include "render/Compass.h"
#include "render/Radials.h"
#include "render/Style.h"
#include "ui/WxKavFrame.h"

#include <benchmark/benchmark.h>
#include <wx/app.h>
#include <wx/dcmemory.h>
#include <wx/log.h>

#include <cstdlib>
#include <cstring>

namespace
{
std::unique_ptr<Configuration> Settings(int size, bool layers)
{
    setenv("HOME", "/nonexistent", 1);
    const wxLogNull silent;
    auto settings = std::make_unique<Configuration>("Kavdex");
    settings->size = size;
    for (bool* show : {&settings->meridians.show, &settings->compass.show, &settings->radials.show})
        *show = layers;
    settings->compass.text.show = layers;
    return settings;
}

/// Draws one layer with conversions.
template <class Draw>
void ConvertingLayer(wxBitmap& map, const wxColour& colour, long alpha, Draw draw)
{
    const int side = map.GetWidth();
    wxBitmap sheet(side, side);
    wxMemoryDC dc(sheet);
    dc.SetBackground(*wxWHITE_BRUSH);
    dc.Clear();
    render::SwitchSmoothingOff(dc);
    dc.SetPen(wxPen(colour, 1));
    dc.SetBrush(*wxTRANSPARENT_BRUSH);
    draw(dc);
    dc.SelectObject(wxNullBitmap);
    wxImage layer = sheet.ConvertToImage();
    wxImage under = map.ConvertToImage();
    const std::size_t bytes = 3 * static_cast<std::size_t>(side) * static_cast<std::size_t>(side);
    render::BlendLayer({layer.GetData(), bytes}, {under.GetData(), bytes}, side, side,
                       static_cast<std::uint8_t>(alpha));
    map = wxBitmap(under);
}

wxBitmap ConvertingCreation(const Configuration& settings, const MapView& view)
{
    const int side = view.frame.mapSize;
    const geo::RowSampler rows = render::BaseMapRows(view, render::BuiltInWorld());
    wxImage base(side, side, false);
    unsigned char* rgb = base.GetData();
    for (int y = 0; y < side; ++y)
        for (int x = 0; x < side; ++x, rgb += 3)
        {
            const std::uint32_t pixel = rows.Pixel(x, y);
            rgb[0] = static_cast<unsigned char>(pixel >> 16);
            rgb[1] = static_cast<unsigned char>(pixel >> 8);
            rgb[2] = static_cast<unsigned char>(pixel);
        }
    wxBitmap map(base);
    const auto layer = [&](const LineStyle& style, auto draw)
    { ConvertingLayer(map, ColourFromSetting(style.colour), style.alpha, draw); };
    layer(settings.meridians,
          [&](wxDC& dc)
          {
              auto segment = [&dc](geo::Pixel from, geo::Pixel to) { dc.DrawLine(from.x, from.y, to.x, to.y); };
              render::TraceGridLines(view, render::kMeridianGrid, segment);
          });
    layer(settings.compass, [&](wxDC& dc) { render::DrawCompass(dc, view); });
    ConvertingLayer(map, ColourFromSetting(settings.compass.text.colour), settings.compass.text.alpha,
                    [&](wxDC& dc) { render::DrawCompassText(dc, view, settings.compass.text); });
    layer(settings.radials, [&](wxDC& dc) { render::DrawRadials(dc, view, settings.radials.every); });
    return map;
}

/// A frame on the screen, destroyed with this.
struct ShownFrame
{
    explicit ShownFrame(std::unique_ptr<Configuration> settings) : frame(new WxKavFrame(nullptr, std::move(settings)))
    {
        frame->Show();
        wxTheApp->Yield(true);
    }
    ~ShownFrame()
    {
        frame->Destroy();
        wxTheApp->Yield(true);
    }
    WxKavFrame* frame;
};

MapView DefaultView(const Configuration& settings)
{
    wxBitmap pixel(1, 1);
    wxMemoryDC dc(pixel);
    dc.SetFont(render::FontFromSetting(settings.compass.text.font));
    return render::MakeMapView(settings, dc.GetTextExtent("123400").y);
}

bool SamePixels(const wxBitmap& one, const wxBitmap& other)
{
    const wxImage a = one.ConvertToImage();
    const wxImage b = other.ConvertToImage();
    const std::size_t bytes = 3 * static_cast<std::size_t>(a.GetWidth()) * static_cast<std::size_t>(a.GetHeight());
    return a.GetSize() == b.GetSize() && std::memcmp(a.GetData(), b.GetData(), bytes) == 0;
}

void CreateInTheWindow(benchmark::State& state, bool layers, bool compare)
{
    const int size = static_cast<int>(state.range(0));
    const ShownFrame shown(Settings(size, layers));
    shown.frame->CreateMap();
    if (compare)
    {
        const auto settings = Settings(size, layers);
        if (!SamePixels(*shown.frame->Picture().mapBitmap, ConvertingCreation(*settings, DefaultView(*settings))))
        {
            state.SkipWithError("the pictures differ");
            return;
        }
    }
    for (auto _ : state)
        shown.frame->CreateMap();
}

void BaseMapInTheWindow(benchmark::State& state)
{
    CreateInTheWindow(state, false, false);
}
BENCHMARK(BaseMapInTheWindow)->Arg(900)->Arg(4000)->Arg(8000)->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime();

void DefaultMapInTheWindow(benchmark::State& state)
{
    CreateInTheWindow(state, true, true);
}
BENCHMARK(DefaultMapInTheWindow)
    ->Arg(900)
    ->Arg(2000)
    ->Arg(4000)
    ->Arg(8000)
    ->Unit(benchmark::kMillisecond)
    ->MeasureProcessCPUTime();

void DefaultMapWithConversions(benchmark::State& state)
{
    const auto settings = Settings(static_cast<int>(state.range(0)), true);
    const MapView view = DefaultView(*settings);
    for (auto _ : state)
        benchmark::DoNotOptimize(ConvertingCreation(*settings, view));
}
BENCHMARK(DefaultMapWithConversions)->Arg(900)->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime();
BENCHMARK(DefaultMapWithConversions)->Arg(8000)->Iterations(1)->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime();
} // namespace

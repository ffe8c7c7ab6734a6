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
#include <wx/progdlg.h>

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

/// A map that is made with conversions, in a window of its own: a progress dialog that is told of every row, strips of
/// 100 rows that are turned into bitmaps, and a bitmap and two images for every layer.
class ConvertingCreation
{
public:
    ConvertingCreation(const Configuration& settings, const MapView& view) : m_settings(settings), m_view(view)
    {
        m_frame->SetClientSize(765, 480);
        m_frame->Show();
        wxTheApp->Yield(true);
    }
    ~ConvertingCreation()
    {
        m_frame->Destroy();
        wxTheApp->Yield(true);
    }
    ConvertingCreation(const ConvertingCreation&) = delete;
    ConvertingCreation& operator=(const ConvertingCreation&) = delete;

    const wxBitmap& Create()
    {
        m_canvas->mapBitmap = std::make_unique<wxBitmap>(m_view.frame.mapSize, m_view.frame.mapSize);
        m_canvas->mapReady = true;
        DrawBaseMap();
        Layer(m_settings.meridians,
              [this](wxDC& dc)
              {
                  auto segment = [&dc](geo::Pixel from, geo::Pixel to) { dc.DrawLine(from.x, from.y, to.x, to.y); };
                  render::TraceGridLines(m_view, render::kMeridianGrid, segment);
              });
        Layer(m_settings.compass, [this](wxDC& dc) { render::DrawCompass(dc, m_view); });
        Layer(m_settings.compass.text,
              [this](wxDC& dc) { render::DrawCompassText(dc, m_view, m_settings.compass.text); });
        Layer(m_settings.radials, [this](wxDC& dc) { render::DrawRadials(dc, m_view, m_settings.radials.every); });
        return *m_canvas->mapBitmap;
    }

private:
    void DrawBaseMap()
    {
        const int side = m_view.frame.mapSize;
        const geo::RowSampler rows = render::BaseMapRows(m_view, render::WorldPicture::BuiltIn());
        wxProgressDialog progress("Kavdex", "Creating Map", side, m_frame, wxPD_APP_MODAL | wxPD_AUTO_HIDE);
        for (int first = 0; first < side; first += 100)
        {
            const int height = std::min(100, side - first);
            wxImage strip(side, height, false);
            unsigned char* rgb = strip.GetData();
            for (int y = first; y < first + height; ++y)
            {
                for (int x = 0; x < side; ++x, rgb += 3)
                {
                    const std::uint32_t pixel = rows.Pixel(x, y);
                    rgb[0] = static_cast<unsigned char>(pixel >> 16);
                    rgb[1] = static_cast<unsigned char>(pixel >> 8);
                    rgb[2] = static_cast<unsigned char>(pixel);
                }
                progress.Update(y + 1);
            }
            wxMemoryDC(*m_canvas->mapBitmap).DrawBitmap(wxBitmap(strip), 0, first);
            m_canvas->ShowPicture();
        }
    }

    template <class Style, class Draw>
    void Layer(const Style& style, Draw draw)
    {
        const int side = m_view.frame.mapSize;
        wxBitmap sheet(side, side);
        wxMemoryDC dc(sheet);
        dc.SetBackground(*wxWHITE_BRUSH);
        dc.Clear();
        render::SwitchSmoothingOff(dc);
        dc.SetPen(wxPen(ColourFromSetting(style.colour), 1));
        dc.SetBrush(*wxTRANSPARENT_BRUSH);
        draw(dc);
        dc.SelectObject(wxNullBitmap);
        wxImage layer = sheet.ConvertToImage();
        wxImage map = m_canvas->mapBitmap->ConvertToImage();
        const std::size_t bytes = 3 * static_cast<std::size_t>(side) * static_cast<std::size_t>(side);
        render::BlendLayer({layer.GetData(), bytes}, {map.GetData(), bytes}, side, side,
                           static_cast<std::uint8_t>(style.alpha));
        m_canvas->mapBitmap = std::make_unique<wxBitmap>(map);
        m_canvas->ShowPicture();
    }

    const Configuration& m_settings;
    const MapView& m_view;
    wxFrame* m_frame = new wxFrame(nullptr, wxID_ANY, "Converting");
    MapCanvas* m_canvas = new MapCanvas(m_frame);
};

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
        const MapView view = DefaultView(*settings);
        if (!SamePixels(*shown.frame->Picture().mapBitmap, ConvertingCreation(*settings, view).Create()))
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
    ConvertingCreation converting(*settings, view);
    for (auto _ : state)
        benchmark::DoNotOptimize(converting.Create());
}
BENCHMARK(DefaultMapWithConversions)->Arg(900)->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime();
BENCHMARK(DefaultMapWithConversions)->Arg(8000)->Iterations(1)->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime();
} // namespace

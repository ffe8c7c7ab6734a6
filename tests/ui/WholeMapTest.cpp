#include "tests/support/FrameFixture.h"
#include "tests/support/Pictures.h"

#include <wx/dcgraph.h>
#include <wx/dcmemory.h>
#include <wx/graphics.h>

#include <cmath>
#include <optional>
#include <random>
#include <tuple>

namespace
{
constexpr double kRad = 0.01745329251994328;
constexpr double kEarth = 6370997.0;

wxColour ColourOf(long value)
{
    const auto byte = [value](int shift) { return static_cast<unsigned char>(value >> shift & 255); };
    return {byte(0), byte(8), byte(16)};
}

struct Label
{
    wxString text;
    double lat;
    double lon;
};

/// A record of a file of border lines: whole arc-minutes.
struct BorderPoint
{
    int code;
    int lat;
    int lon;
};

/// What the files that the settings name hold.
struct Files
{
    std::array<std::vector<BorderPoint>, 6> borders;
    std::array<std::vector<Label>, 3> texts;
    std::array<std::vector<wxString>, 2> squares; ///< names of four characters
};

/**
 * The whole map drawn with the toolkit's plain calls: each line and each text by itself, every layer on a white picture
 * of its own, the picture laid over the map pixel by pixel.
 */
class PlainMap
{
public:
    PlainMap(const Configuration& settings, const Files& files)
        : m_settings(settings),
          m_files(files),
          m_size(static_cast<int>(settings.size)),
          m_half(m_size / 2),
          m_centre((m_size + 1) / 2),
          m_limit(settings.compass.show ? 1000.0 * static_cast<double>(settings.zoom) : 20000000.0)
    {
        m_margin = (settings.compass.text.show ? HeightOf("123400", settings.compass.text.font) : 1) +
                   (settings.compass.insideMap ? 0 : m_size / 100);
        m_metres = static_cast<double>(settings.zoom * 1000 / ((m_size - 2 * m_margin) / 2));
    }

    Colours Draw(render::Argb world)
    {
        DrawWorld(world);
        DrawGrid(m_settings.meridians, {-180, 180, 15}, {-75, 75, 15});
        DrawGrid(m_settings.fields, {-180, 180, 20}, {-90, 90, 10});
        DrawFieldLabels();
        DrawGrid(m_settings.squares, {-180, 180, 2}, {-84, 84, 1});
        DrawSquareLabels();
        DrawCompass();
        for (std::size_t i = 0; i < 6; ++i)
            DrawBorder(m_settings.borders[i], m_files.borders[i]);
        DrawRadials();
        for (std::size_t i = 0; i < 3; ++i)
            DrawTexts(m_settings.texts[i], m_files.texts[i]);
        DrawCircles();
        for (std::size_t i = 0; i < 2; ++i)
            DrawSquares(m_settings.plotSquares[i], m_files.squares[i]);
        return m_map;
    }

private:
    using Range = std::array<int, 3>; ///< from, to, step

    static wxFont FontOf(const wxString& description)
    {
        wxFont font;
        font.SetNativeFontInfoUserDesc(description);
        return font;
    }

    static int HeightOf(const wxString& text, const wxString& font)
    {
        wxBitmap bitmap(10, 10);
        wxMemoryDC dc(bitmap);
        dc.SetFont(FontOf(font));
        return dc.GetTextExtent(text).y;
    }

    void DrawWorld(render::Argb world)
    {
        for (int y = 0; y < m_size; ++y)
        {
            m_map.emplace_back();
            for (int x = 0; x < m_size; ++x)
            {
                const double metres = m_metres * std::hypot(x - m_half, y - m_half);
                m_map.back().push_back(metres >= 1 && metres < m_limit ? world : render::kWhite);
            }
        }
    }

    /// Where a place is drawn; none where it is not.
    std::optional<wxPoint> PixelOf(double latRad, double lonRad) const
    {
        const double lat0 = m_settings.centreLat * 3600 * 4.848136811095359e-6;
        const double dlon = lonRad - m_settings.centreLon * 3600 * 4.848136811095359e-6;
        const double cosine = std::sin(lat0) * std::sin(latRad) + std::cos(lat0) * std::cos(latRad) * std::cos(dlon);
        const double angle = std::acos(cosine);
        const double k = angle / std::sin(angle) * kEarth;
        const double east = k * std::cos(latRad) * std::sin(dlon);
        const double north =
            k * (std::cos(lat0) * std::sin(latRad) - std::sin(lat0) * std::cos(latRad) * std::cos(dlon));
        const double metres = std::trunc(std::hypot(east, north));
        if (!(metres >= 1 && metres < m_limit))
            return std::nullopt;
        return wxPoint(static_cast<int>(east / m_metres + m_half), static_cast<int>(m_half - north / m_metres));
    }

    /// The end of a line of some pixels towards a bearing.
    wxPoint Towards(double bearing, int pixels) const
    {
        return {static_cast<int>(m_centre + std::sin(bearing * kRad) * pixels),
                static_cast<int>(m_centre - std::cos(bearing * kRad) * pixels)};
    }

    /// Draws on a white picture and lays that over the map.
    template <class Drawing>
    void Layer(const LineStyle& style, unsigned alpha, Drawing draw)
    {
        wxBitmap sheet(m_size, m_size);
        const auto withDc = [&](const auto& act)
        {
            wxMemoryDC dc(sheet);
            dc.GetGraphicsContext()->SetAntialiasMode(wxANTIALIAS_NONE);
            dc.SetPen(wxPen(ColourOf(style.colour), static_cast<int>(std::max(style.lineWidth, 0L))));
            dc.SetBrush(*wxTRANSPARENT_BRUSH);
            dc.SetTextForeground(ColourOf(style.colour));
            act(dc);
        };
        withDc(
            [](wxDC& dc)
            {
                dc.SetBackground(*wxWHITE_BRUSH);
                dc.Clear();
            });
        draw(withDc);
        Blend(ColoursOf(sheet), alpha);
    }

    void Blend(const Colours& layer, unsigned alpha)
    {
        if (alpha == 0)
            return;
        const auto last = static_cast<std::size_t>(m_size) - 1;
        for (std::size_t y = 1; y < last; ++y)
            for (std::size_t x = 1; x < last; ++x)
            {
                if (layer[y][x] == render::kWhite)
                    continue;
                render::Argb blended = 0xFF000000U;
                for (const int shift : {0, 8, 16})
                {
                    const unsigned under = m_map[y][x] >> shift & 255;
                    const unsigned over = layer[y][x] >> shift & 255;
                    blended |= (under * (255 - alpha) / 256 + over * alpha / 256) << shift;
                }
                m_map[y][x] = blended;
            }
    }

    template <class Drawing>
    void TextLayer(const TextStyle& style, Drawing draw)
    {
        Layer({true, style.colour, 0, 1}, static_cast<unsigned>(style.alpha & 255),
              [&](const auto& withDc)
              {
                  withDc(
                      [&](wxDC& dc)
                      {
                          dc.SetFont(FontOf(style.font));
                          draw(dc);
                      });
              });
    }

    static unsigned LowByte(long alpha) { return static_cast<unsigned>(alpha & 255); }

    void DrawGrid(const LineStyle& style, Range lons, Range lats)
    {
        if (!style.show)
            return;
        const auto lines = [&](wxDC& dc)
        {
            std::optional<wxPoint> last;
            const auto go = [&](double lat, double lon)
            {
                const auto pixel = PixelOf(lat * kRad, lon * kRad);
                if (last && pixel && std::abs(last->x - pixel->x) < 3 && std::abs(last->y - pixel->y) < 3)
                    return;
                if (last && pixel)
                    dc.DrawLine(*last, *pixel);
                last = pixel;
            };
            for (int lon = lons[0]; lon <= lons[1]; lon += lons[2], last.reset())
                for (double lat = 85.0; lat >= -85.0; lat -= 0.1)
                    go(lat, lon);
            for (int lat = lats[0]; lat <= lats[1]; lat += lats[2], last.reset())
                for (double lon = -180.0; lon <= 180.0; lon += 0.1)
                    go(lat, lon);
        };
        Layer(style, static_cast<unsigned>(std::clamp(style.alpha, 0L, 255L)),
              [&](const auto& withDc) { withDc(lines); });
    }

    void DrawCentred(wxDC& dc, const wxString& text, double lat, double lon) const
    {
        const wxSize extent = dc.GetTextExtent(text);
        if (const auto pixel = PixelOf(lat * kRad, lon * kRad))
            dc.DrawText(text, pixel->x - extent.x / 2, pixel->y - extent.y / 2);
    }

    void DrawFieldLabels()
    {
        if (m_settings.fields.show && m_settings.fields.text.show)
            TextLayer(m_settings.fields.text,
                      [&](wxDC& dc)
                      {
                          for (int lon = 0; lon < 18; ++lon)
                              for (int lat = 1; lat < 17; ++lat)
                                  DrawCentred(dc, wxString::Format("%c%c", 'A' + lon, 'A' + lat), 10 * lat - 85,
                                              20 * lon - 170);
                      });
    }

    void DrawSquareLabels()
    {
        if (m_settings.squares.show && m_settings.squares.text.show)
            TextLayer(m_settings.squares.text,
                      [&](wxDC& dc)
                      {
                          for (int lon = 0; lon < 180; ++lon)
                              for (int lat = 0; lat < 190; ++lat)
                                  DrawCentred(dc, wxString::Format("%d%d", lon % 10, lat % 10), lat - 89.5,
                                              2 * lon - 179);
                      });
    }

    void DrawCircle(wxDC& dc, int radius) const
    {
        dc.DrawEllipse(m_centre - radius, m_centre - radius, 2 * radius, 2 * radius);
    }

    /// A number that lies along a circle.
    void DrawAlong(wxDC& dc, const wxString& font, int number, double bearing, int radius, int anchorRadius) const
    {
        const wxString text = wxString::Format("%d", number);
        const double shift = std::atan2(HeightOf(text, font), radius) * 57.2957795131 / 2.5;
        dc.SetFont(FontOf(font));
        dc.DrawRotatedText(text, Towards(bearing - shift, anchorRadius), 360 - bearing);
    }

    void DrawCompass()
    {
        const CompassSettings& compass = m_settings.compass;
        if (!compass.show)
            return;
        const int radius = m_centre - m_margin;
        const int tick = m_size / 100;
        const auto ring = [&](wxDC& dc)
        {
            DrawCircle(dc, 4);
            DrawCircle(dc, radius);
            DrawCircle(dc, radius - tick);
            for (int degree = 0; degree < 360; ++degree)
            {
                const int length = degree % 10 == 0 ? static_cast<int>(tick * 1.5) : tick;
                dc.DrawLine(Towards(degree, radius), Towards(degree, radius - length));
            }
        };
        Layer(compass, LowByte(compass.alpha), [&](const auto& withDc) { withDc(ring); });
        if (!compass.text.show)
            return;
        // Each text in a context of its own: rotating leaves a rounding error behind.
        Layer({true, compass.text.colour, 0, 1}, LowByte(compass.text.alpha),
              [&](const auto& withDc)
              {
                  for (int degree = 0; degree < 360; degree += 10)
                      withDc([&](wxDC& dc) { DrawAlong(dc, compass.text.font, degree, degree, radius, m_centre); });
              });
    }

    void DrawBorder(const BorderSlot& slot, const std::vector<BorderPoint>& points)
    {
        constexpr double kRadPerMinute = 0.00029088820866572136;
        const auto lines = [&](wxDC& dc)
        {
            std::optional<wxPoint> last;
            for (const BorderPoint& point : points)
            {
                const auto pixel = PixelOf(point.lat * kRadPerMinute, point.lon * kRadPerMinute);
                if (point.code <= 999 && last && pixel)
                    dc.DrawLine(*last, *pixel);
                last = pixel;
            }
        };
        if (slot.show)
            Layer(slot, LowByte(slot.alpha), [&](const auto& withDc) { withDc(lines); });
    }

    void DrawRadials()
    {
        const int step = std::array{5, 10, 15, 30, 45}.at(static_cast<std::size_t>(m_settings.radials.every));
        const auto lines = [&](wxDC& dc)
        {
            for (int degree = 0; degree < 360; degree += step)
                dc.DrawLine({m_centre, m_centre}, Towards(degree, m_centre - m_margin));
        };
        if (m_settings.radials.show)
            Layer(m_settings.radials, LowByte(m_settings.radials.alpha), [&](const auto& withDc) { withDc(lines); });
    }

    void DrawTexts(const TextSlot& slot, const std::vector<Label>& labels)
    {
        if (!slot.show)
            return;
        TextLayer(slot,
                  [&](wxDC& dc)
                  {
                      dc.SetBrush(ColourOf(slot.colour));
                      std::vector<wxRect> taken;
                      for (const Label& label : labels)
                          DrawText(dc, slot, label, taken);
                  });
    }

    void DrawText(wxDC& dc, const TextSlot& slot, const Label& label, std::vector<wxRect>& taken) const
    {
        const auto pixel = PixelOf(label.lat * kRad, label.lon * kRad);
        if (!pixel)
            return;
        const wxSize extent = dc.GetTextExtent(label.text);
        const wxPoint middle(pixel->x - extent.x / 2, pixel->y - extent.y / 2);
        const wxPoint corners[] = {middle,
                                   {pixel->x - extent.x, middle.y},
                                   {pixel->x, middle.y},
                                   {middle.x, pixel->y - extent.y},
                                   {middle.x, pixel->y}};
        const wxPoint corner = corners[slot.align % 5];
        if (slot.avoidCollisions)
        {
            // The labels are alike in height, so boxes overlap where their outlines meet.
            const wxRect box(corner.x - 2, corner.y - 2, extent.x + 4, extent.y + 4);
            const wxRect outline(box.x, box.y, box.width + 1, box.height + 1);
            if (std::ranges::any_of(taken, [&](const wxRect& other) { return other.Intersects(outline); }))
                return;
            taken.push_back(box);
        }
        dc.DrawText(label.text, corner);
        if (slot.align >= 5)
            dc.DrawRectangle(pixel->x - 2, pixel->y - 2, 4, 4);
    }

    void DrawCircles()
    {
        const RangeCirclesSettings& circles = m_settings.rangeCircles;
        if (!circles.show)
            return;
        const auto drawAll = [&](const auto& withDc)
        {
            for (long km = circles.distanceKm; km < m_settings.zoom; km += circles.distanceKm)
            {
                const int radius = static_cast<int>(static_cast<double>(km * 1000) / m_metres);
                withDc([&](wxDC& dc) { DrawCircle(dc, radius); });
                if (circles.legendShow)
                    withDc(
                        [&](wxDC& dc)
                        {
                            DrawAlong(dc, m_settings.compass.text.font, static_cast<int>(km),
                                      static_cast<double>(circles.legendBearingDeg), radius, radius);
                        });
            }
        };
        Layer(circles, LowByte(circles.alpha), drawAll);
    }

    /// The outline of a square; nothing where a corner is not on the map.
    std::vector<wxPoint> OutlineOf(const wxString& name) const
    {
        const int lon = 20 * (static_cast<int>(name[0]) - 'A') + 2 * (static_cast<int>(name[2]) - '0') - 180;
        const int lat = 10 * (static_cast<int>(name[1]) - 'A') + static_cast<int>(name[3]) - '0' - 90;
        std::vector<wxPoint> outline;
        for (const auto& [north, east] : {std::pair{0, 0}, {0, 2}, {1, 2}, {1, 0}})
            if (const auto pixel = PixelOf((lat + north) * kRad, (lon + east) * kRad))
                outline.push_back(*pixel);
        return outline;
    }

    void DrawSquares(const PlotSquaresSlot& slot, const std::vector<wxString>& names)
    {
        if (!slot.show)
            return;
        const auto squares = [&](wxDC& dc)
        {
            for (const wxString& name : names)
            {
                const std::vector<wxPoint> outline = OutlineOf(name);
                if (outline.size() != 4)
                    continue;
                dc.SetPen(ColourOf(slot.borderColour));
                dc.SetBrush(ColourOf(slot.fillColour));
                dc.DrawPolygon(4, outline.data(), 0, 0, wxODDEVEN_RULE);
            }
        };
        Layer({}, LowByte(slot.alpha), [&](const auto& withDc) { withDc(squares); });
    }

    const Configuration& m_settings;
    const Files& m_files;
    int m_size;
    int m_half;
    int m_centre; ///< of rings and radials
    double m_limit;
    int m_margin = 0;
    double m_metres = 1.0; ///< a pixel
    Colours m_map;
};

/// Settings at random, and the files they name.
class RandomMap
{
public:
    RandomMap(unsigned seed, Configuration& settings, const TemporaryHome& home) : m_random(seed), m_home(home)
    {
        settings.size = Between(150, 420);
        settings.zoom = Between(600, 4000);
        settings.centreLat = Between(-850, 850) / 10.0 + 0.0123;
        settings.centreLon = Between(-1800, 1790) / 10.0 + 0.0123;
        settings.greyzone.show = settings.propagation.show = false;
        for (LineStyle* style :
             {&settings.meridians, static_cast<LineStyle*>(&settings.fields),
              static_cast<LineStyle*>(&settings.squares), static_cast<LineStyle*>(&settings.compass),
              static_cast<LineStyle*>(&settings.radials), static_cast<LineStyle*>(&settings.rangeCircles)})
            Style(*style);
        for (TextStyle* style : {&settings.fields.text, &settings.squares.text, &settings.compass.text})
            Style(*style);
        settings.compass.insideMap = Flip();
        settings.radials.every = Between(0, 4);
        settings.rangeCircles.distanceKm = Between(100, 900);
        settings.rangeCircles.legendShow = Flip();
        settings.rangeCircles.legendBearingDeg = Between(0, 359);
        for (std::size_t i = 0; i < 6; ++i)
            Border(i, settings.borders[i], settings);
        for (std::size_t i = 0; i < 3; ++i)
            Text(i, settings.texts[i], settings);
        for (std::size_t i = 0; i < 2; ++i)
            Squares(i, settings.plotSquares[i], settings);
    }

    Files files;

private:
    int Between(int low, int high) { return std::uniform_int_distribution(low, high)(m_random); }
    bool Flip() { return Between(0, 3) != 0; }
    double Near(double degrees) { return degrees + Between(-200, 200) / 10.0; }

    /// A colour that is not white, sometimes with bits that do not count.
    long Colour() { return Between(0, 0xFFFFFE) + (Flip() ? 0 : 0x1000000); }

    void Style(LineStyle& style)
    {
        style = {Flip(), Colour(), Flip() ? Between(1, 255) : Between(-300, 600), Between(-1, 3)};
    }

    void Style(TextStyle& style)
    {
        style = {Flip(), wxString::Format("Sans %d", Between(6, 9)), Colour(),
                 Flip() ? Between(1, 255) : Between(-300, 600)};
    }

    void Border(std::size_t slot, BorderSlot& border, const Configuration& settings)
    {
        Style(border);
        std::string bytes;
        for (int i = 0; i < 60; ++i)
        {
            const BorderPoint point{i == 0 || !Flip() ? 1000 : 999, static_cast<int>(60 * Near(settings.centreLat)),
                                    static_cast<int>(60 * Near(settings.centreLon))};
            files.borders[slot].push_back(point);
            for (const int number : {point.code, point.lat, point.lon})
                for (const int shift : {0, 8})
                    bytes.push_back(static_cast<char>(number >> shift & 255));
        }
        border.file = m_home.Write(wxString::Format("lines %zu.pnt", slot), bytes);
    }

    void Text(std::size_t slot, TextSlot& text, const Configuration& settings)
    {
        Style(text);
        text.align = Between(0, 9);
        text.avoidCollisions = Flip();
        std::string lines;
        for (int i = 0; i < 12; ++i)
        {
            const Label label{wxString::Format("%c%zu", 'a' + i, slot), Near(settings.centreLat),
                              Near(settings.centreLon)};
            files.texts[slot].push_back(label);
            lines += wxString::Format("-;%s;Town;-;%.17g;%.17g;-\n", label.text, label.lat, label.lon).utf8_string();
        }
        text.file = m_home.Write(wxString::Format("names %zu.dat", slot), lines);
    }

    void Squares(std::size_t slot, PlotSquaresSlot& squares, const Configuration& settings)
    {
        squares = {Flip(), "", 0, Colour(), Colour(), Between(0, 600)};
        std::string lines;
        for (int i = 0; i < 15; ++i)
        {
            const int east = (static_cast<int>(Near(settings.centreLon)) + 180 + 360) % 360;
            const int north = std::clamp(static_cast<int>(Near(settings.centreLat)) + 90, 0, 179);
            const wxString name =
                wxString::Format("%c%c%d%d", 'A' + east / 20, 'A' + north / 10, east % 20 / 2, north % 10);
            files.squares[slot].push_back(name);
            lines += "worked " + name.utf8_string() + "\n";
        }
        squares.file = m_home.Write(wxString::Format("worked %zu.log", slot), lines);
    }

    std::mt19937 m_random;
    const TemporaryHome& m_home;
};

using WholeMapTest = FrameFixture;

TEST_F(WholeMapTest, IsWhatPlainDrawingGives)
{
    frame->Hide(); // takes less time
    wxImage world(1, 1);
    world.SetRGB(0, 0, 100, 150, 200);
    world.SaveFile(home.Path("flat.png"), wxBITMAP_TYPE_PNG);
    settings->sourceBitmaps[0] = {true, "flat.png"};
    for (unsigned seed = 1; seed <= 6; ++seed)
    {
        const RandomMap map(seed, *settings, home);
        LocatorField().ChangeValue(settings->centreLoc);
        ASSERT_TRUE(frame->CreateMap());
        const Colours expected = PlainMap(*settings, map.files).Draw(render::OpaquePixel(100, 150, 200));
        EXPECT_TRUE(SamePicture(ColoursOf(*frame->Picture().mapBitmap), expected)) << "seed " << seed;
    }
}
} // namespace

#include "tests/support/LiteralMap.h"

#include "render/BorderLines.h"
#include "render/Compass.h"
#include "render/DiscDrawing.h"
#include "render/GridLabels.h"
#include "render/GridLines.h"
#include "render/Hatch.h"
#include "render/LabelBox.h"
#include "render/Occupancy.h"
#include "render/PlottedSquares.h"
#include "render/Radials.h"
#include "render/RangeCircles.h"
#include "render/TextLabels.h"

#include <set>

namespace
{
/// A font as it stands in the settings, and as the toolkit is asked for it.
struct NamedFont
{
    const char* setting;
    wxFontInfo info;
};

const std::vector<NamedFont>& Fonts()
{
    static const std::vector<NamedFont> fonts{{"Sans 9", wxFontInfo(9).FaceName("Sans")},
                                              {"Serif Bold 14", wxFontInfo(14).FaceName("Serif").Bold()},
                                              {"Monospace Italic 11", wxFontInfo(11).FaceName("Monospace").Italic()}};
    return fonts;
}

class LayersTest : public LiteralDrawing
{
protected:
    const NamedFont& AnyFont() { return Fonts()[static_cast<std::size_t>(Between(0, 2))]; }

    static void SetText(wxDC& dc, const NamedFont& font, long setting)
    {
        dc.SetFont(wxFont(font.info));
        dc.SetTextForeground(ColourOf(setting));
    }

    static void DrawCircle(wxDC& dc, const LiteralMap& map, int radius)
    {
        if (radius > 0)
            dc.DrawEllipse(map.centre - radius, map.centre - radius, 2 * radius, 2 * radius);
    }

    /// A number that begins a little to the left of its bearing, and is turned with it.
    static void DrawNumber(wxDC& dc, const LiteralMap& map, long number, double bearing, int radius, int anchorRadius)
    {
        const wxString text = wxString() << number;
        const double left = std::atan2(dc.GetTextExtent(text).y, radius) * 57.2957795131 / 2.5;
        DrawTurned(dc, text, map.OnDisc(bearing - left, anchorRadius), 360 - bearing);
    }

    static void DrawCentred(wxDC& dc, const wxString& text, std::optional<wxPoint> place)
    {
        if (!place)
            return;
        const wxSize extent = dc.GetTextExtent(text);
        dc.DrawText(text, place->x - extent.x / 2, place->y - extent.y / 2);
    }

    /// The lines of a grid: those of constant longitude from 85 to -85 degrees, those of constant latitude around, each
    /// in tenths of a degree of which steps below 3 pixels are left out.
    struct Grid
    {
        int lonStep, lastLat, latStep;
    };
    static void DrawGrid(wxDC& dc, const LiteralMap& map, const Grid& grid)
    {
        std::optional<wxPoint> last;
        const auto goTo = [&](double lat, double lon)
        {
            const auto next = map.At(lat, lon);
            if (last && next)
            {
                if (std::abs(next->x - last->x) < 3 && std::abs(next->y - last->y) < 3)
                    return;
                dc.DrawLine(*last, *next);
            }
            last = next;
        };
        for (int lon = -180; lon <= 180; lon += grid.lonStep, last.reset())
            for (double lat = 85.0; lat >= -85.0; lat -= 0.1)
                goTo(lat, lon);
        for (int lat = -grid.lastLat; lat <= grid.lastLat; lat += grid.latStep, last.reset())
            for (double lon = -180.0; lon <= 180.0; lon += 0.1)
                goTo(lat, lon);
    }
};

TEST_F(LayersTest, GridLinesAreLinesFromTenthToTenthOfADegree)
{
    const std::vector<std::pair<render::GridSpec, Grid>> grids{
        {render::kMeridianGrid, {15, 75, 15}}, {render::kFieldGrid, {20, 90, 10}}, {render::kSquareGrid, {2, 84, 1}}};
    for (int round = 0; round < 6; ++round)
    {
        Shuffle();
        const auto& [spec, grid] = grids[static_cast<std::size_t>(round % 3)];
        ExpectTheSame([&](wxDC& dc) { render::DrawGridLines(dc, View(), spec); },
                      [&](wxDC& dc) { DrawGrid(dc, Map(), grid); });
    }
}

TEST_F(LayersTest, SquareLinesReachNoFartherThanTheirGrid)
{
    for (const double lat : {86.3, -86.3})
    {
        Shuffle(390, 400);
        settings.centreLat = lat;
        settings.zoom = 700;
        settings.compass.show = true;
        ExpectTheSame([&](wxDC& dc) { render::DrawGridLines(dc, View(), render::kSquareGrid); },
                      [&](wxDC& dc) {
                          DrawGrid(dc, Map(), {2, 84, 1});
                      });
    }
}

TEST_F(LayersTest, RadialsAreLinesFromTheMiddleToTheEdge)
{
    for (int round = 0; round < 10; ++round)
    {
        Shuffle();
        ExpectTheSame([&](wxDC& dc) { render::DrawRadials(dc, View(), round % 5); },
                      [&](wxDC& dc)
                      {
                          for (int degree = 0; degree < 360; degree += std::array{5, 10, 15, 30, 45}[round % 5])
                              dc.DrawLine(wxPoint(Map().centre, Map().centre), Map().OnDisc(degree, Map().radius));
                      });
    }
}

TEST_F(LayersTest, CompassIsThreeCirclesAnd360Ticks)
{
    for (int round = 0; round < 8; ++round)
    {
        Shuffle(100, 700);
        ExpectTheSame([&](wxDC& dc) { render::DrawCompass(dc, View()); },
                      [&](wxDC& dc)
                      {
                          const LiteralMap map = Map();
                          const int tick = map.size / 100;
                          for (const int radius : {4, map.radius, map.radius - tick})
                              DrawCircle(dc, map, radius);
                          for (int degree = 0; degree < 360; ++degree)
                              dc.DrawLine(map.OnDisc(degree, map.radius),
                                          map.OnDisc(degree, map.radius - (degree % 10 ? tick : tick * 3 / 2)));
                      });
    }
}

TEST_F(LayersTest, CompassFiguresAreTheTensInTheirFontAndColour)
{
    for (int round = 0; round < 6; ++round)
    {
        Shuffle(200, 500);
        const NamedFont& font = AnyFont();
        const long ink = RandomSetting();
        ExpectTheSame(
            [&](wxDC& dc) {
                render::DrawCompassText(dc, View(), {true, font.setting, ink, 255});
            },
            [&](wxDC& dc)
            {
                SetText(dc, font, ink);
                for (int degree = 0; degree < 360; degree += 10)
                    DrawNumber(dc, Map(), degree, degree, Map().radius, Map().centre);
            });
    }
}

TEST_F(LayersTest, RangeCirclesBearTheirDistances)
{
    for (int round = 0; round < 10; ++round)
    {
        Shuffle();
        const NamedFont& font = AnyFont();
        settings.rangeCircles.colour = RandomSetting();
        settings.rangeCircles.distanceKm = settings.zoom / Between(2, 9);
        settings.rangeCircles.legendBearingDeg = Between(-400, 400);
        settings.rangeCircles.legendShow = round % 4 > 0;
        ExpectTheSame([&](wxDC& dc) { render::DrawRangeCircles(dc, View(), settings.rangeCircles, font.setting); },
                      [&](wxDC& dc)
                      {
                          SetText(dc, font, settings.rangeCircles.colour);
                          const LiteralMap map = Map();
                          const long step = settings.rangeCircles.distanceKm;
                          for (long km = step; static_cast<double>(km) * 1000 < map.mapRadius; km += step)
                          {
                              const int radius = static_cast<int>(static_cast<double>(km) * 1000 / map.scale);
                              DrawCircle(dc, map, radius);
                              if (settings.rangeCircles.legendShow)
                                  DrawNumber(dc, map, km, static_cast<double>(settings.rangeCircles.legendBearingDeg),
                                             radius, radius);
                          }
                      });
    }
}

TEST_F(LayersTest, FieldNamesStandCentredInTheirFields)
{
    for (int round = 0; round < 6; ++round)
    {
        Shuffle();
        const NamedFont& font = AnyFont();
        const long ink = RandomSetting();
        ExpectTheSame(
            [&](wxDC& dc) {
                render::DrawFieldLabels(dc, View(), {true, font.setting, ink, 255});
            },
            [&](wxDC& dc)
            {
                SetText(dc, font, ink);
                for (int lon = 0; lon < 18; ++lon)
                    for (int lat = 1; lat < 17; ++lat)
                    {
                        wxString name;
                        name << "ABCDEFGHIJKLMNOPQR"[lon] << "ABCDEFGHIJKLMNOPQR"[lat];
                        DrawCentred(dc, name, Map().At(10 * lat - 85, 20 * lon - 170));
                    }
            });
    }
}

TEST_F(LayersTest, SquareNumbersStandCentredInTheirSquares)
{
    for (int round = 0; round < 4; ++round)
    {
        Shuffle();
        settings.compass.show = true;
        settings.zoom = 900;
        settings.centreLat = std::array{87.3, -88.1, 3.7, 51.9}[static_cast<std::size_t>(round)];
        const NamedFont& font = AnyFont();
        const long ink = RandomSetting();
        ExpectTheSame(
            [&](wxDC& dc) {
                render::DrawSquareLabels(dc, View(), {true, font.setting, ink, 255});
            },
            [&](wxDC& dc)
            {
                SetText(dc, font, ink);
                for (int lon = 0; lon < 180; ++lon)
                    for (int lat = 0; lat < 190; ++lat) // ten rows lie beyond the pole
                    {
                        wxString number;
                        number << lon % 10 << lat % 10;
                        DrawCentred(dc, number, Map().At(lat - 89.5, 2 * lon - 179));
                    }
            });
    }
}

TEST_F(LayersTest, BorderLinesJoinThePointsOfTheirFile)
{
    for (int round = 0; round < 8; ++round)
    {
        Shuffle();
        std::string bytes;
        std::vector<std::array<int, 3>> records;
        int lat = static_cast<int>(settings.centreLat * 60);
        int lon = static_cast<int>(settings.centreLon * 60);
        for (int i = 0; i < 300; ++i)
        {
            lat = std::clamp(lat + Between(-300, 300), -5390, 5390);
            lon = std::clamp(lon + Between(-500, 500), -10800, 10800);
            const int code = i > 0 && Between(0, 9) > 0 ? Between(-5, 999) : Between(1000, 1003);
            records.push_back({code, lat, lon});
            for (const int value : records.back())
                bytes += {static_cast<char>(value % 256), static_cast<char>((value & 0xFFFF) / 256)};
        }
        const wxString file = home.Write("lines.pnt", bytes);
        ExpectTheSame([&](wxDC& dc) { render::DrawBorderLines(dc, View(), file); },
                      [&](wxDC& dc)
                      {
                          std::optional<wxPoint> last;
                          for (const auto& [code, latMinutes, lonMinutes] : records)
                          {
                              const auto next = Map().At(latMinutes / 60.0, lonMinutes / 60.0);
                              if (last && next && code < 1000)
                                  dc.DrawLine(*last, *next);
                              last = next;
                          }
                      });
    }
}

TEST_F(LayersTest, PlottedSquaresAreHatchedWhereTheyLie)
{
    for (int round = 0; round < 10; ++round)
    {
        Shuffle();
        PlotSquaresSlot style;
        style.stipple = round % 7;
        style.borderColour = RandomSetting();
        style.fillColour = RandomSetting();
        std::wstring text;
        std::vector<std::pair<int, int>> corners;
        for (int i = 0; i < 40; ++i)
        {
            // Not at the pole, which lies on the edge between two columns.
            const int lat = std::clamp(static_cast<int>(settings.centreLat) + Between(-12, 12), -89, 88);
            const int lon = std::clamp(static_cast<int>(settings.centreLon / 2) + Between(-9, 9), -90, 89);
            corners.emplace_back(lat, 2 * lon);
            const wchar_t firstLetter = i % 2 ? L'a' : L'A';
            text += {static_cast<wchar_t>(firstLetter + (lon + 90) / 10), static_cast<wchar_t>(L'A' + (lat + 90) / 10),
                     static_cast<wchar_t>(L'0' + (lon + 90) % 10), static_cast<wchar_t>(L'0' + (lat + 90) % 10), L'\n'};
        }
        ExpectTheSame([&](wxDC& dc) { render::DrawPlottedSquares(dc, View(), text, style); },
                      [&](wxDC& dc)
                      {
                          const LiteralMap map = Map();
                          const render::Hatch hatch(style.stipple, ColourOf(style.fillColour),
                                                    ColourOf(style.borderColour));
                          for (const auto& [lat, lon] : corners)
                          {
                              const std::array outline{map.At(lat, lon), map.At(lat, lon + 2), map.At(lat + 1, lon + 2),
                                                       map.At(lat + 1, lon)};
                              if (!outline[0] || !outline[1] || !outline[2] || !outline[3])
                                  continue;
                              const std::array<wxPoint, 4> points{*outline[0], *outline[1], *outline[2], *outline[3]};
                              hatch.FillPolygon(dc, points);
                          }
                      });
    }
}

/// Which pixels of a picture labels have taken, kept one by one.
class TakenPixels
{
public:
    explicit TakenPixels(int side) : m_picture(0, 0, side, side) {}

    bool Take(const wxRect& box)
    {
        for (int x = box.x - 2; x <= box.x + box.width + 2; ++x)
            for (const int y : {box.y - 2, box.y + box.height + 2})
                if (m_taken.contains({x, y}))
                    return false;
        for (int y = box.y - 2; y <= box.y + box.height + 2; ++y)
            for (const int x : {box.x - 2, box.x + box.width + 2})
                if (m_taken.contains({x, y}))
                    return false;
        for (int x = box.x - 2; x < box.x + box.width + 2; ++x)
            Mark(x, {box.y - 2, box.y + box.height + 1});
        for (int y = box.y - 2; y < box.y + box.height + 2; ++y)
            for (const int x : {box.x - 2, box.x + box.width + 1})
                Mark(x, {y});
        return true;
    }

private:
    void Mark(int x, std::initializer_list<int> ys)
    {
        for (const int y : ys)
            if (m_picture.Contains(x, y))
                m_taken.insert({x, y});
    }

    wxRect m_picture;
    std::set<std::pair<int, int>> m_taken;
};

TEST_F(LayersTest, TextLabelsStandBesideTheirPlaces)
{
    for (int round = 0; round < 20; ++round)
    {
        Shuffle();
        settings.compass.show = true;
        const NamedFont& font = AnyFont();
        TextSlot style;
        style.font = font.setting;
        style.colour = RandomSetting();
        style.align = round % 10;
        style.avoidCollisions = round >= 10;
        std::wstring text;
        struct Label
        {
            wxString text;
            double lat, lon;
        };
        std::vector<Label> labels;
        const double reach = static_cast<double>(settings.zoom) / 130;
        for (int i = 0; i < 60; ++i)
        {
            const double lat = std::clamp(settings.centreLat + Between(-1000, 1000) * reach / 1000, -89.9, 89.9);
            const double lon = settings.centreLon + Between(-1000, 1000) * reach / 1000;
            const wxString name = wxString("Xylophone").Left(static_cast<std::size_t>(Between(1, 9)));
            const bool country = i % 7 == 3;
            text += wxString::Format("a;%s;%s;b;%.4f;%.4f;9%s", name, country ? "Country" : "City", lat, lon,
                                     i % 2 ? "\r\n" : "\n")
                        .ToStdWstring();
            if (!country)
                labels.push_back({name, std::round(lat * 10000) / 10000, std::round(lon * 10000) / 10000});
        }
        ExpectTheSame([&](wxDC& dc) { render::DrawTextLabels(dc, View(), text, style); },
                      [&](wxDC& dc)
                      {
                          SetText(dc, font, style.colour);
                          dc.SetPen(ColourOf(style.colour));
                          dc.SetBrush(ColourOf(style.colour));
                          TakenPixels taken(Map().size);
                          for (const Label& label : labels)
                          {
                              const auto place = Map().At(label.lat, label.lon);
                              if (!place)
                                  continue;
                              const wxSize size = dc.GetTextExtent(label.text);
                              const auto [x, y] = *place;
                              const int left = x - size.x / 2;
                              const int top = y - size.y / 2;
                              const std::array<wxPoint, 5> corners{
                                  {{left, top}, {x - size.x, top}, {x, top}, {left, y - size.y}, {left, y}}};
                              const wxRect box(corners[static_cast<std::size_t>(round % 5)], size);
                              if (style.avoidCollisions && !taken.Take(box))
                                  continue;
                              dc.DrawText(label.text, box.GetPosition());
                              if (style.align >= 5)
                                  dc.DrawRectangle(x - 2, y - 2, 4, 4);
                          }
                      });
    }
}

TEST(Occupancy, TakesWhatMeetsNothingTaken)
{
    std::mt19937 random(5);
    const auto between = [&](int lowest, int highest)
    { return std::uniform_int_distribution(lowest, highest)(random); };
    std::array<int, 2> answers{};
    for (int picture = 0; picture < 300; ++picture)
    {
        const int side = between(20, 60);
        render::Occupancy occupancy(side);
        TakenPixels expected(side);
        for (int i = 0; i < 12; ++i)
        {
            const wxRect box(between(-20, side + 5), between(-20, side + 5), between(0, 25), between(0, 25));
            const bool isFree = expected.Take(box);
            ASSERT_EQ(occupancy.Take(box), isFree) << picture << ", " << i;
            ++answers[isFree];
        }
    }
    EXPECT_GT(answers[false], 500);
    EXPECT_GT(answers[true], 500);
}

TEST_F(LayersTest, LabelsThatReachInFromOutsideAreClipped)
{
    settings.size = 100;
    for (int round = 0; round < 200; ++round)
    {
        const wxPoint at(Between(-120, 120), Between(-40, 120));
        ExpectTheSame(
            [&](wxDC& dc)
            {
                SetText(dc, Fonts()[2], 0);
                render::DrawLabel(dc, "Xylophone", wxRect(at, dc.GetTextExtent("Xylophone")));
            },
            [&](wxDC& dc)
            {
                SetText(dc, Fonts()[2], 0);
                dc.DrawText("Xylophone", at);
            },
            0);
    }
}

TEST_F(LayersTest, NumbersAlongCirclesFollowAnyRadius)
{
    for (int round = 0; round < 20; ++round)
    {
        Shuffle();
        const int bearing = Between(-100, 500);
        const int radius = Between(10, 40);
        const int anchorRadius = Between(10, 40);
        ExpectTheSame(
            [&](wxDC& dc)
            {
                SetText(dc, Fonts()[0], 0);
                const render::DiscGeometry disc(View().frame);
                for (const int number : {0, -7, 12500})
                    render::DrawNumberAlongCircle(dc, disc, number, bearing + number, radius, anchorRadius);
                render::DrawCircle(dc, disc, round - 2);
            },
            [&](wxDC& dc)
            {
                SetText(dc, Fonts()[0], 0);
                for (const int number : {0, -7, 12500})
                    DrawNumber(dc, Map(), number, bearing + number, radius, anchorRadius);
                DrawCircle(dc, Map(), round - 2);
            });
    }
}
} // namespace

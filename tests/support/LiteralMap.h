#pragma once

#include "tests/support/LayerFixture.h"

#include <wx/dcmemory.h>
#include <wx/graphics.h>

#include <cmath>
#include <cstring>
#include <numbers>
#include <optional>
#include <random>

/**
 * A map computed from the settings in a few lines, by rotating unit vectors: another way than the program's.
 *
 * It gives the same pixels unless a place lies within a millionth of a pixel of the edge between two; with centres that
 * are no round numbers none does.
 */
struct LiteralMap
{
    LiteralMap(const Settings& settings, int textHeight)
        : size(static_cast<int>(settings.size)),
          half(size / 2),
          margin((settings.compass.text.show ? textHeight : 1) + (settings.compass.insideMap ? 0 : size / 100)),
          mapRadius(static_cast<double>(std::min(std::max(settings.zoom, 100L), 20000L)) * 1000),
          scale(std::floor(mapRadius / std::max((size - 2 * margin) / 2, 1))),
          limit(settings.compass.show ? static_cast<double>(settings.zoom) * 1000 : 20000000.0),
          centre((size + 1) / 2),
          radius(std::max(centre - margin, 1)),
          m_lat0(settings.centreLat * std::numbers::pi / 180),
          m_lon0(settings.centreLon * std::numbers::pi / 180)
    {
    }

    /// The pixel of a place in degrees; none at the centre and beyond the limit.
    std::optional<wxPoint> At(double latDeg, double lonDeg) const
    {
        const double lat = latDeg * std::numbers::pi / 180;
        const double dlon = lonDeg * std::numbers::pi / 180 - m_lon0;
        const double out = std::cos(lat) * std::cos(dlon);
        const double e = std::cos(lat) * std::sin(dlon);
        const double n = std::sin(lat) * std::cos(m_lat0) - out * std::sin(m_lat0);
        const double up = std::sin(lat) * std::sin(m_lat0) + out * std::cos(m_lat0);
        const double distance = 6370997.0 * std::atan2(std::hypot(e, n), up);
        if (distance < 1 || distance >= limit)
            return std::nullopt;
        const double pixels = distance / std::hypot(e, n) / scale;
        return wxPoint(static_cast<int>(half + e * pixels), static_cast<int>(half - n * pixels));
    }

    /// The pixel in a direction from the middle of the disc, degrees clockwise from north.
    wxPoint OnDisc(double bearingDeg, double distance) const
    {
        const double bearing = bearingDeg * 0.01745329251994328;
        return {static_cast<int>(centre + std::sin(bearing) * distance),
                static_cast<int>(centre - std::cos(bearing) * distance)};
    }

    int size;
    int half;
    int margin;
    double mapRadius; ///< metres
    double scale;     ///< metres a pixel
    double limit;     ///< metres
    int centre;       ///< of the disc
    int radius;       ///< of the disc

private:
    double m_lat0;
    double m_lon0;
};

/// Compares layers with literal drawings of them, by the toolkit's plain calls, over random settings.
class LiteralDrawing : public LayerFixture
{
protected:
    static constexpr int kTextHeight = 17;

    /// A map with nothing in round numbers.
    void Shuffle(int smallest = 100, int largest = 400)
    {
        settings.size = Between(smallest, largest);
        settings.centreLat = std::uniform_real_distribution(-88.0, 88.0)(random);
        settings.centreLon = std::uniform_real_distribution(-179.0, 179.0)(random);
        settings.zoom = std::vector{20000L, 17000L, 9000L, 4000L, 1500L}[static_cast<std::size_t>(Between(0, 4))];
        settings.compass.show = Between(0, 2) > 0;
        settings.compass.text.show = Between(0, 1) > 0;
        settings.compass.insideMap = Between(0, 1) > 0;
        colour = RandomColour();
        lineWidth = Between(1, 4);
    }

    int Between(int lowest, int highest) { return std::uniform_int_distribution(lowest, highest)(random); }

    long RandomSetting() { return Between(0, 0xFFFFFE); }
    wxColour RandomColour()
    {
        return {static_cast<unsigned char>(Between(0, 254)), static_cast<unsigned char>(Between(0, 255)),
                static_cast<unsigned char>(Between(0, 255))};
    }
    /// The colour of a setting.
    static wxColour ColourOf(long setting)
    {
        return {static_cast<unsigned char>(setting % 256), static_cast<unsigned char>(setting / 256 % 256),
                static_cast<unsigned char>(setting / 65536)};
    }

    MapView View() const { return render::MakeMapView(settings, kTextHeight); }
    LiteralMap Map() const { return {settings, kTextHeight}; }

    /// Text in a fresh state of the context, as each text is drawn.
    static void DrawTurned(wxDC& dc, const wxString& text, wxPoint at, double angle)
    {
        dc.GetGraphicsContext()->PushState();
        dc.DrawRotatedText(text, at.x, at.y, angle);
        dc.GetGraphicsContext()->PopState();
    }

    /// Expects a layer to leave exactly what plain calls leave on a white bitmap.
    template <class Draw, class DrawPlainly>
    void ExpectTheSame(Draw draw, DrawPlainly drawPlainly, std::size_t atLeast = 1) const
    {
        const int side = static_cast<int>(settings.size);
        render::Layer layer(side, render::Inks::Many);
        draw(layer.Begin(colour, lineWidth));
        const wxImage got = PictureOf(layer, side);

        wxBitmap sheet(side, side);
        {
            wxMemoryDC dc(sheet);
            dc.SetBackground(*wxWHITE_BRUSH);
            dc.Clear();
            dc.GetGraphicsContext()->SetAntialiasMode(wxANTIALIAS_NONE);
            dc.SetPen(wxPen(colour, lineWidth));
            dc.SetBrush(*wxTRANSPARENT_BRUSH);
            drawPlainly(static_cast<wxDC&>(dc));
        }
        const wxImage expected = sheet.ConvertToImage();
        std::size_t inked = 0;
        for (int y = 1; y < side - 1; ++y)
            for (int x = 1; x < side - 1; ++x)
            {
                const auto rgb = [x, y](const wxImage& image)
                { return image.GetRed(x, y) << 16 | image.GetGreen(x, y) << 8 | image.GetBlue(x, y); };
                inked += rgb(expected) != 0xFFFFFF;
                ASSERT_EQ(rgb(got), rgb(expected)) << x << ", " << y << Where();
            }
        EXPECT_GE(inked, atLeast) << Where();
    }

    std::string Where() const
    {
        return " at " + std::to_string(settings.centreLat) + "/" + std::to_string(settings.centreLon) + ", " +
               std::to_string(settings.zoom) + " km, " + std::to_string(settings.size) + " px";
    }

    std::mt19937 random{20240229};
    wxColour colour{10, 20, 30};
    int lineWidth = 1;
};

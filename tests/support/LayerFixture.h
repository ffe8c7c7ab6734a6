#pragma once

#include "render/BitmapPixels.h"
#include "render/Bitmaps.h"
#include "render/Images.h"
#include "render/Layer.h"
#include "render/MapView.h"
#include "tests/support/TemporaryHome.h"

#include <gtest/gtest.h>

#include <wx/log.h>

#include <algorithm>
#include <set>
#include <vector>

/// What a layer alone left on a flat map at opacity 255.
class Ink
{
public:
    static constexpr render::Argb kGround = render::OpaquePixel(100, 150, 200);

    explicit Ink(wxBitmap& map) : m_side(map.GetWidth())
    {
        const render::BitmapPixels pixels(map);
        for (int y = 0; y < m_side; ++y)
            for (const render::Argb pixel : pixels.Row(y))
            {
                m_isInked.push_back((pixel | 0xFF000000) != kGround);
                if (m_isInked.back())
                    colours.insert(pixel | 0xFF000000);
            }
    }

    int Side() const { return m_side; }
    bool Contains(int x, int y) const { return x >= 0 && y >= 0 && x < m_side && y < m_side; }
    bool At(int x, int y) const
    {
        return Contains(x, y) &&
               m_isInked[static_cast<std::size_t>(y) * static_cast<std::size_t>(m_side) + static_cast<std::size_t>(x)];
    }

    template <class Visit>
    void ForEach(Visit visit) const
    {
        for (int y = 0; y < m_side; ++y)
            for (int x = 0; x < m_side; ++x)
                if (At(x, y))
                    visit(x, y);
    }

    /// The smallest rectangle around everything.
    wxRect Bounds() const
    {
        wxRect bounds;
        ForEach([&](int x, int y) { bounds = bounds.IsEmpty() ? wxRect(x, y, 1, 1) : bounds.Union({x, y, 1, 1}); });
        return bounds;
    }

    bool operator==(const Ink& other) const { return m_isInked == other.m_isInked; }

    std::set<render::Argb> colours;

private:
    int m_side;
    std::vector<bool> m_isInked;
};

/// What is drawn on a layer, on white, without the outermost frame, which a layer never marks; ends the layer. A
/// channel of 1 comes back as 0.
inline wxImage PictureOf(render::Layer& layer, int side)
{
    const auto map = render::NewWhiteBitmap(side);
    layer.BlendOnto(*map, 255);
    wxImage image = render::ImageOf(*map);
    // Blending has made the channels of what is drawn less by 1.
    unsigned char* rgb = image.GetData();
    for (int i = 0; i < side * side; ++i, rgb += 3)
        if (rgb[0] != 255 || rgb[1] != 255 || rgb[2] != 255)
            std::for_each(rgb, rgb + 3,
                          [](unsigned char& channel)
                          {
                              if (channel > 0)
                                  ++channel;
                          });
    return image;
}

/// A map view for tests of layers, and a way to draw a layer alone.
class LayerFixture : public testing::Test
{
protected:
    LayerFixture()
    {
        settings.size = 300;
        settings.compass.text.show = false;
    }

    MapView View() const { return render::MakeMapView(settings, 17); }

    /// Draws a layer on a flat map at opacity 255. Checks that the outermost frame is left alone.
    template <class Draw>
    Ink Paint(Draw draw, const wxColour& colour = *wxBLACK, int lineWidth = 1) const
    {
        const int side = static_cast<int>(settings.size);
        const auto map = render::NewWhiteBitmap(side);
        {
            const render::BitmapPixels pixels(*map);
            for (int y = 0; y < side; ++y)
                std::ranges::fill(pixels.Row(y), Ink::kGround);
        }
        render::Layer layer(side, render::Inks::Many);
        draw(layer.Begin(colour, lineWidth));
        layer.BlendOnto(*map, 255);
        Ink ink(*map);
        for (int i = 0; i < side; ++i)
            EXPECT_FALSE(ink.At(i, 0) || ink.At(0, i) || ink.At(i, side - 1) || ink.At(side - 1, i)) << i;
        return ink;
    }

    /// A layer's colour at opacity 255 over the ground: the ground leaves no trace, 255 becomes 254.
    static std::set<render::Argb> Only(const wxColour& colour)
    {
        return {
            render::OpaquePixel(colour.Red() * 255U / 256, colour.Green() * 255U / 256, colour.Blue() * 255U / 256)};
    }

    const TemporaryHome home;
    Settings settings = DefaultSettings();
};

/// Collects what is logged for as long as it lives.
class LogLines : public wxLog
{
public:
    LogLines() : m_before(SetActiveTarget(this)) {}
    ~LogLines() override { SetActiveTarget(m_before); }

    std::vector<wxString> lines;

protected:
    void DoLogTextAtLevel(wxLogLevel, const wxString& text) override { lines.push_back(text); }

private:
    wxLog* m_before;
};

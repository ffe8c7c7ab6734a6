#include "maker/MapMaker.h"

#include "render/BorderLines.h"
#include "render/Compass.h"
#include "render/GridLabels.h"
#include "render/PlottedSquares.h"
#include "render/Radials.h"
#include "render/RangeCircles.h"
#include "render/Style.h"
#include "render/TextFile.h"
#include "render/TextLabels.h"

#include <wx/log.h>

#include <algorithm>

namespace
{
/// A pen wider than the largest map is no wider.
int PenWidth(long setting)
{
    return static_cast<int>(std::clamp(setting, 0L, render::kMaxMapSize));
}
} // namespace

void MapMaker::DrawLayers()
{
    const Settings& settings = m_settings;
    DrawGrid(settings.meridians, render::kMeridianGrid);
    DrawGrid(settings.fields, render::kFieldGrid);
    if (settings.fields.show && settings.fields.text.show)
        DrawFieldLabels();
    DrawGrid(settings.squares, render::kSquareGrid);
    if (settings.squares.show && settings.squares.text.show)
        DrawSquareLabels();
    if (settings.compass.show)
        DrawCompass();
    if (settings.compass.show && settings.compass.text.show)
        DrawCompassText();
    for (const BorderSlot& slot : settings.borders)
        if (slot.show)
            DrawBorderLines(slot);
    if (settings.radials.show)
        DrawRadials();
    for (const TextSlot& slot : settings.texts)
        if (slot.show)
            DrawTextLabels(slot);
    if (settings.rangeCircles.show)
        DrawRangeCircles();
    for (const PlotSquaresSlot& slot : settings.plotSquares)
        if (slot.show)
            DrawPlottedSquares(slot);
}

void MapMaker::DrawGrid(const LineStyle& style, const render::GridSpec& grid)
{
    if (style.show)
        DrawGridLines(style.alpha, ColourFromSetting(style.colour), PenWidth(style.lineWidth), grid.lonFrom, grid.lonTo,
                      grid.lonStep, grid.latFrom, grid.latTo, grid.latStep);
}

void MapMaker::DrawGridLines(long alpha, const wxColour& colour, int lineWidth, int lonFrom, int lonTo, int lonStep,
                             int latFrom, int latTo, int latStep)
{
    if (!HasMap())
        return;
    DrawLayer("Drawing Lines...", colour, std::clamp(alpha, 0L, 255L), lineWidth,
              [&](wxDC& dc) {
                  render::DrawGridLines(dc, *m_view, {lonFrom, lonTo, lonStep, latFrom, latTo, latStep});
              });
}

void MapMaker::DrawFieldLabels()
{
    DrawTexts("Drawing Field Text...", m_settings.fields.text, render::DrawFieldLabels);
}

void MapMaker::DrawSquareLabels()
{
    DrawTexts("Drawing Square Text...", m_settings.squares.text, render::DrawSquareLabels);
}

void MapMaker::DrawCompass()
{
    if (HasMapOrError("Bitmap Error in function Compass"))
        DrawLines("Drawing Compass...", m_settings.compass, [&](wxDC& dc) { render::DrawCompass(dc, *m_view); });
}

void MapMaker::DrawCompassText()
{
    DrawTexts("Drawing Compass Text...", m_settings.compass.text, render::DrawCompassText);
}

void MapMaker::DrawBorderLines(const BorderSlot& slot)
{
    DrawLines("Plotting Lines...", slot, [&](wxDC& dc) { render::DrawBorderLines(dc, *m_view, slot.file, Asking()); });
}

void MapMaker::DrawRadials()
{
    const RadialsSettings& radials = m_settings.radials;
    DrawLines("Drawing Radials...", radials, [&](wxDC& dc) { render::DrawRadials(dc, *m_view, radials.every); });
}

void MapMaker::DrawTextLabels(const TextSlot& slot)
{
    if (!HasMap())
        return;
    const auto text = render::ReadLabelFile(slot.file);
    if (!text)
        m_listener.OnError("Error opening file " + slot.file);
    else
        DrawLayer("Plotting Text...", ColourFromSetting(slot.colour), slot.alpha, 1,
                  [&](wxDC& dc) { render::DrawTextLabels(dc, *m_view, *text, slot, Asking()); });
}

void MapMaker::DrawRangeCircles()
{
    if (!HasMapOrError("Bitmap Error in function RangeCircles"))
        return;
    RangeCirclesSettings& circles = m_settings.rangeCircles;
    circles.distanceKm = render::RangeCircleStepKm(circles.distanceKm);
    DrawLines("Drawing Range Circles...", circles,
              [&](wxDC& dc) { render::DrawRangeCircles(dc, *m_view, circles, m_settings.compass.text.font); });
}

void MapMaker::DrawPlottedSquares(const PlotSquaresSlot& slot)
{
    const auto text = HasMap() ? render::ReadTextFile(slot.file) : std::nullopt;
    if (text)
        DrawLayer(
            "Hatching Squares...", ColourFromSetting(slot.borderColour), slot.alpha, 1,
            [&](wxDC& dc) { render::DrawPlottedSquares(dc, *m_view, *text, slot, Asking()); }, render::Inks::Many);
}

render::GoOn MapMaker::Asking()
{
    constexpr unsigned kEvery = 64;
    return [this, asked = 0U](double done) mutable { return ++asked % kEvery != 0 || m_listener.OnDrawing(done); };
}

bool MapMaker::HasMapOrError(const wxString& text)
{
    if (!HasMap())
        m_listener.OnError(text);
    return HasMap();
}

void MapMaker::DrawLines(const wxString& statusText, const LineStyle& style, const Drawing& draw)
{
    if (HasMap())
        DrawLayer(statusText, ColourFromSetting(style.colour), style.alpha, PenWidth(style.lineWidth), draw);
}

void MapMaker::DrawTexts(const wxString& statusText, const TextStyle& style, const TextDrawing& draw)
{
    if (HasMap())
        DrawLayer(statusText, ColourFromSetting(style.colour), style.alpha, 1,
                  [&](wxDC& dc) { draw(dc, *m_view, style); });
}

void MapMaker::DrawLayer(const wxString& statusText, const wxColour& colour, long alpha, int lineWidth,
                         const Drawing& draw, render::Inks inks)
{
    if (wxDC* const dc = BeginLayer(statusText, colour, lineWidth, inks))
    {
        draw(*dc);
        EndLayer(alpha);
    }
}

wxDC* MapMaker::BeginLayer(const wxString& statusText, const wxColour& colour, int lineWidth, render::Inks inks)
{
    m_listener.OnStep(statusText);
    if (!m_layer || m_layer->Kind() != inks)
        m_layer.emplace(m_view->frame.mapSize, inks);
    if (!m_layer->IsOk())
    {
        wxLogError("Not enough memory for a layer: %s", statusText);
        return nullptr;
    }
    return &m_layer->Begin(colour, lineWidth);
}

void MapMaker::EndLayer(long alpha)
{
    m_picture.PutLayer(*m_layer, static_cast<std::uint8_t>(alpha));
    m_listener.OnPictureChanged();
}

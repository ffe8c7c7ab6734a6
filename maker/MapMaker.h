#pragma once

#include "config/Settings.h"
#include "maker/MapListener.h"
#include "render/BaseMap.h"
#include "render/GoOn.h"
#include "render/GridLines.h"
#include "render/Layer.h"
#include "render/MapSurface.h"
#include "render/MapView.h"

#include <wx/recguard.h>

#include <functional>
#include <memory>
#include <optional>

/**
 * Makes the map that the settings describe: base picture, layers, overlays, in this order. It knows no window.
 *
 * Everything happens in the calling thread; a listener is told of every step. The objects that it is made with must
 * live as long as it does.
 */
class MapMaker
{
public:
    /// @param[out] picture what the maps are drawn on.
    MapMaker(Settings& settings, MapSurface& picture, MapListener& listener);

    /// How a creation ended.
    enum class Creation
    {
        Finished,
        Stopped,       ///< after an error that the listener was told
        ImpossibleSize ///< so too, but everything is as it was
    };

    /// Makes a new map with its overlays in place of the one that there was.
    Creation MakeMap();

    /// Whether there is a map to draw on.
    bool HasMap() const { return m_view && m_picture.HasMap(); }

    /// How the map in the picture shows the world; none before the first.
    const std::optional<MapView>& View() const { return m_view; }

    // The layers of a map. Without a map those that say so tell an error, the others do nothing.
    void DrawGridLines(long alpha, const wxColour& colour, int lineWidth, int lonFrom, int lonTo, int lonStep,
                       int latFrom, int latTo, int latStep);
    void DrawFieldLabels();
    void DrawSquareLabels();
    void DrawCompass(); ///< tells an error
    void DrawCompassText();
    void DrawBorderLines(const BorderSlot& slot);
    void DrawRadials();
    void DrawTextLabels(const TextSlot& slot);
    void DrawRangeCircles(); ///< tells an error; brings the distance in the settings to 100 km at least
    void DrawPlottedSquares(const PlotSquaresSlot& slot);

    /**
     * Draws the greyline for the time of the settings, and tells the sun's place in any case.
     *
     * In real time it is drawn only when the whole degree of the Greenwich hour angle is another than the last time, or
     * when greylineDrawn forces it.
     *
     * @param[in] isWanted false: no more than the sun's place is told, unless it is forced.
     */
    void DrawGreyline(bool isWanted = true);

    /// Draws the propagation overlay; unless the selection has changed, only in the minute in which it follows the
    /// clock.
    void DrawPropagation(bool selectionChanged);

protected:
    /// Forces the next greyline to be drawn whatever degree was remembered; drawing clears it.
    bool greylineDrawn = false;

private:
    bool NewMap();
    bool DrawBaseMaps();
    void ReprojectBaseMap(render::WorldPicture source);
    void DrawLayers();
    void DrawOverlays();

    // One layer: named, drawn on a blank sheet, blended. Of an opacity the low eight bits count.
    using Drawing = std::function<void(wxDC& dc)>;
    using TextDrawing = std::function<void(wxDC& dc, const MapView& view, const TextStyle& style)>;
    wxDC* BeginLayer(const wxString& statusText, const wxColour& colour, int lineWidth, render::Inks inks);
    void EndLayer(long alpha);
    void DrawLayer(const wxString& statusText, const wxColour& colour, long alpha, int lineWidth, const Drawing& draw,
                   render::Inks inks = render::Inks::One);
    void DrawLines(const wxString& statusText, const LineStyle& style, const Drawing& draw);
    void DrawTexts(const wxString& statusText, const TextStyle& style, const TextDrawing& draw);
    void DrawGrid(const LineStyle& style, const render::GridSpec& grid);
    bool HasMapOrError(const wxString& text);
    render::GoOn Asking(); ///< asks the listener, but not for every single point

    wxString MakePropagation(const UtcTime& now); ///< returns what is not right about it; empty when all is well
    bool RememberHourAngle(std::int64_t degree);  ///< whether it differs from the one before

    Settings& m_settings;
    MapSurface& m_picture;
    MapListener& m_listener;
    std::optional<MapView> m_view;                 ///< of the map in the picture
    std::optional<render::Layer> m_layer;          ///< for as long as a map is being made
    std::optional<std::int64_t> m_hourAngleDegree; ///< for which the greyline was last drawn in real time
    wxRecursionGuardFlag m_makesPropagation = 0;   ///< more than 0 while it is made: a listener may handle events
};

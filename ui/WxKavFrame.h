#pragma once

#include "config/Configuration.h"
#include "propagation/OutsideProgram.h"
#include "render/BaseMap.h"
#include "render/GridLines.h"
#include "render/Layer.h"
#include "render/MapView.h"
#include "ui/GUIFrame.h"

#include <wx/timer.h>

#include <functional>
#include <memory>
#include <optional>

/**
 * The main window: its commands, its timers and the creation of maps.
 *
 * Without being shown it still creates maps; then no progress dialog appears.
 */
class WxKavFrame : public GUIFrame
{
public:
    /// With the settings of the working file.
    explicit WxKavFrame(wxWindow* parent);
    WxKavFrame(wxWindow* parent, std::unique_ptr<Configuration> settings);

    /**
     * Creates the map that the settings describe: base picture, layers, overlays.
     *
     * A size that cannot be made leaves the map as it was, and the tools enabled. Any other error that stops the
     * creation leaves the tools for creating, saving and options disabled and the timers stopped.
     *
     * @return whether the map was finished.
     */
    bool CreateMap();

    /// What the canvas shows.
    const MapPicture& Picture() const { return *m_canvas; }

    /// The finished picture as an image, which needs no memory beyond the map's: see MapPicture::Take().
    wxImage TakePicture() { return m_canvas->Take(); }

    /// Told the text of every step of a creation; none by default.
    std::function<void(const wxString& step)> onStep;

    /// Told what is not right about an overlay that is drawn nevertheless; the status bar says it, too.
    std::function<void(const wxString& text)> onWarning;

    /**
     * Asked while voacapl runs; who answers false says so to the user.
     *
     * If there is none, the window goes on repainting and taking texts, but no commands, and after some seconds says
     * what it waits for. Escape or closing it ends voacapl.
     */
    propagation::KeepWaiting keepWaiting;

    /**
     * Blends a layer onto a picture of the map and makes that the map: every pixel of the layer that is not white, but
     * for the outermost frame.
     *
     * @param[in] layerImage, mapImage of one size.
     * @param[in] alpha opacity; its low eight bits count, and 0 leaves the map as it is.
     */
    void BlendLayer(wxImage layerImage, wxImage mapImage, int alpha);

    // The layers of a map. Without a map those that say so show an error, the others do nothing.
    void DrawGridLines(long alpha, const wxColour& colour, int lineWidth, int lonFrom, int lonTo, int lonStep,
                       int latFrom, int latTo, int latStep);
    void DrawFieldLabels();
    void DrawSquareLabels();
    void DrawCompass(); ///< shows an error
    void DrawCompassText();
    void DrawBorderLines(const BorderSlot& slot);
    void DrawRadials();
    void DrawTextLabels(const TextSlot& slot);
    void DrawRangeCircles(); ///< shows an error; brings the distance in the settings to 100 km at least
    void DrawPlottedSquares(const PlotSquaresSlot& slot);

    /// Enables or disables the tools for frequency and parameter and toggles those that are chosen; an index that is no
    /// tool's chooses none.
    void SetPropagationTools(bool enable, int frequencyIndex, int parameterIndex);

protected:
    /// A locator of the right length to write another into.
    static constexpr const char* kScratchLocator = "AA11RR";

    void OnClose(wxCloseEvent& event) override;
    void OnQuit(wxCommandEvent& event) override;
    void OnProperties(wxCommandEvent& event) override;
    void OnAbout(wxCommandEvent& event) override;
    void OnCanvasLeftDown(wxMouseEvent&) override {}
    void OnCanvasMotion(wxMouseEvent& event) override;
    void OnCreateMap(wxCommandEvent& event) override;
    void OnSaveImage(wxCommandEvent& event) override;
    void OnFrequencyTool(wxCommandEvent& event) override;
    void OnParameterTool(wxCommandEvent& event) override;
    void OnGreylineTool(wxCommandEvent& event) override;

    wxTimer m_greylineTimer;
    wxTimer m_propagationTimer;

private:
    void ShowStep(const wxString& text);
    void ShowError(const wxString& text);
    bool HasMap() const { return m_view && m_canvas->mapBitmap; }
    wxString DefaultPictureName() const;
    void ShowReadOut(const wxPoint& pixel); ///< of a pixel of the map
    void ResetOverlays();                   ///< hides them and stops following the clock: the settings have changed

    // Creating a map, in this order.
    void TakeCentreFromLocatorField();
    void BeginCreation();
    void EnableCreationTools(bool enable); ///< those for creating, saving and options
    bool NewMap();
    bool DrawBaseMaps();
    void ReprojectBaseMap(const render::WorldPicture& source);
    void DrawLayers();
    void DrawOverlays();
    void FinishCreation();

    // One layer: named in the status bar, drawn on a blank sheet, blended. Of an opacity the low eight bits count.
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

    // The overlays that follow the clock.
    void DrawGreyline();
    bool RememberHourAngle(std::int64_t degree); ///< whether it differs from the one before
    void DrawPropagation(bool selectionChanged);

    // While voacapl runs.
    enum class Wait
    {
        None,
        Silent,    ///< short so far
        Shown,     ///< in the status bar
        Abandoned, ///< by Escape
        Closed     ///< and the window with it
    };
    bool WaitForVoacapl(std::chrono::milliseconds waited);
    void OnKey(wxKeyEvent& event);

    /// Forces the next greyline to be drawn whatever degree was remembered; drawing clears it.
    bool greylineDrawn = false;
    std::optional<std::int64_t> m_hourAngleDegree; ///< for which the greyline was last drawn in real time

    std::unique_ptr<Configuration> m_settings;
    Wait m_wait = Wait::None;
    UtcTime m_waitSince{};
    wxString m_warning;                   ///< about the propagation overlay
    std::optional<MapView> m_view;        ///< of the map on the canvas
    std::optional<render::Layer> m_layer; ///< for as long as a map is being created
};

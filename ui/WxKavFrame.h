#pragma once

#include "config/Configuration.h"
#include "maker/MapMaker.h"
#include "ui/Antenna.h"
#include "ui/CommandsOff.h"
#include "ui/GUIFrame.h"

#include <wx/progdlg.h>
#include <wx/timer.h>

#include <chrono>
#include <functional>
#include <memory>
#include <optional>

/**
 * The main window: its commands, its timers and the creation of maps.
 *
 * Without being shown it still creates maps; then no progress dialog appears. While voacapl runs it goes on repainting
 * and taking texts, but no commands, and after some seconds says what it waits for. Escape or closing it ends voacapl.
 */
class WxKavFrame : public GUIFrame, private MapListener, public MapMaker
{
public:
    /// With the settings of the working file.
    explicit WxKavFrame(wxWindow* parent);
    /// @param[in] rotator where the rotator of the antenna is, if there is one.
    WxKavFrame(wxWindow* parent, std::unique_ptr<Configuration> settings,
               const std::optional<rotator::Address>& rotator = std::nullopt);

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

    /**
     * Blends a layer onto a picture of the map and makes that the map: every pixel of the layer that is not white, but
     * for the outermost frame.
     *
     * @param[in] layerImage, mapImage of one size.
     * @param[in] alpha opacity; its low eight bits count, and 0 leaves the map as it is.
     */
    void BlendLayer(wxImage layerImage, wxImage mapImage, int alpha);

    /// Told the text of every step of a creation; none by default.
    std::function<void(const wxString& step)> onStep;

    /// For so long a layer is drawn before a dialog shows how far it is and offers to stop it.
    std::chrono::milliseconds patience{1000};

    /// Enables or disables the tools for frequency and parameter and toggles those that are chosen; an index that is no
    /// tool's chooses none.
    void SetPropagationTools(bool enable, int frequencyIndex, int parameterIndex);

protected:
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
    wxString DefaultPictureName() const;
    void ShowReadOut(const wxPoint& pixel); ///< of a pixel of the map
    void OnCanvasMenu(const wxContextMenuEvent& event);
    void ConnectAntenna(const rotator::Address& rotator);
    void ResetOverlays(); ///< hides them and stops following the clock: the settings have changed

    void TakeCentreFromLocatorField();
    void EnableCreationTools(bool enable); ///< those for creating, saving and options
    void SayFinished();
    void FollowClock(); ///< starts and stops the timers as the settings want it after a creation

    void OnCreationBegun() override;
    void OnNewMap(int side) override { m_canvas->MakeRoomFor(side); }
    void OnStep(const wxString& text) override;
    void OnSun(const wxString& text) override { SetStatusText(text, 1); }
    void OnError(const wxString& text) override;
    void OnWarning(const wxString& text) override;
    void OnRows(int done, int all) override;
    void OnRowsDone() override { m_progress.reset(); }
    void OnPictureChanged() override;
    void OnGreylineShown() override;
    void OnPropagationBegun() override;
    bool OnDrawing(double done) override;
    bool OnWaiting(std::chrono::milliseconds waited) override;
    void OnPropagationEnded() override;

    // While voacapl runs.
    enum class Wait
    {
        None,
        Silent,    ///< short so far
        Shown,     ///< in the status bar
        Abandoned, ///< by Escape
        Closed     ///< and the window with it
    };
    void OnKey(wxKeyEvent& event);

    std::unique_ptr<Configuration> m_settings;
    std::optional<wxProgressDialog> m_progress;       ///< for as long as the base picture is drawn
    std::optional<wxProgressDialog> m_drawing;        ///< for as long as a layer is drawn that takes long
    std::chrono::steady_clock::time_point m_nextLook; ///< when the drawing of a layer is looked after
    Wait m_wait = Wait::None;
    UtcTime m_waitSince{};
    std::optional<ui::CommandsOff> m_commandsOff; ///< for as long as the propagation overlay is made
    wxString m_warning;                           ///< about the propagation overlay
    std::optional<ui::Antenna> m_antenna;         ///< where there is a rotator
};

#pragma once

#include "propagation/Messages.h"
#include "propagation/ResultReader.h"
#include "propagation/VoacapRun.h"
#include "render/MapSurface.h"
#include "render/MapView.h"

/**
 * One propagation overlay: made for one map, used once.
 *
 * Everything happens in the constructor: voacapl is run, its result is read (or that of another run, when the settings
 * name one), and the overlay is put into the picture and shown. Whatever fails is reported to the user and leaves the
 * picture's previous overlay in place but hidden; so does, silently, a result with too few points, and a run that
 * keepWaiting has ended: who ends it says so.
 */
class Propagation
{
public:
    /**
     * @param         view     of the map in the picture.
     * @param[in,out] settings the engine is set to VOACAP when voacapl is run.
     * @pre no other object is at work, see IsBusy(); a second one does nothing.
     */
    Propagation(MapSurface& picture, const MapView& view, Settings& settings, propagation::Reports reports,
                propagation::KeepWaiting keepWaiting = {});
    Propagation(const Propagation&) = delete;
    Propagation& operator=(const Propagation&) = delete;

    /// What is not right about the overlay that was drawn, for the user; empty when all is well.
    const wxString& Warning() const { return m_warning; }

    /// Whether an overlay is being made: keepWaiting may handle events.
    static bool IsBusy();

private:
    void RunAndDraw();
    void DrawResultIn(const wxString& path);
    void Draw(const propagation::ResultGrid& result);

    MapSurface& m_picture;
    const MapView& m_view;
    Settings& m_settings;
    const propagation::Reports m_reports;
    const propagation::KeepWaiting m_keepWaiting;
    const propagation::AreaFiles m_files;
    wxString m_warning;
};

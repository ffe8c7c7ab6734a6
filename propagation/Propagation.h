#pragma once

#include "config/Settings.h"
#include "config/UtcTime.h"
#include "propagation/Progress.h"
#include "render/MapView.h"
#include "render/PictureRows.h"

#include <memory>
#include <vector>

/// One propagation overlay, or why there is none.
struct Propagation
{
    /// None after an error; none either, silently, of a result with too few points, and of a run that Progress has
    /// ended.
    std::unique_ptr<render::PictureRows> overlay;
    std::vector<wxString> errors; ///< messages for the user, in their order
    wxString warning;             ///< what is not right about the overlay; empty when all is well
    int engine;                   ///< what the engine's setting is from now on

    /**
     * Has the engine that the settings choose run, or takes the result of another run when they name one, and makes
     * the overlay of the result.
     *
     * @param[in] view of the map that the overlay is for; the settings may describe another by now.
     * @param[in] now  the time that counts in real time.
     */
    static Propagation Compute(const Settings& settings, const MapView& view, const UtcTime& now,
                               propagation::Progress& progress);
};

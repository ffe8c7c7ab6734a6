#pragma once

#include "config/Choice.h"
#include "config/Settings.h"
#include "config/UtcTime.h"
#include "geo/LatLon.h"
#include "propagation/Progress.h"

#include <optional>
#include <vector>

namespace propagation
{
inline constexpr char kFileOpenError[] = "File open error in Prop";

/// What the run of an engine came to.
struct AreaRun
{
    std::optional<wxString> resultFile; ///< for ReadResult(); none when it failed or when Progress has ended it
    std::vector<wxString> errors;       ///< messages for the user, in their order
    int engine;                         ///< what the engine's setting is from now on
};

/**
 * An engine forecasts over the whole world and leaves an area result behind. It returns when all of its work is done.
 *
 * @param[in] transmitter the centre of the map that the overlay is for; the settings may have another by now.
 * @param[in] now         the time that counts in real time.
 */
using Engine = AreaRun(const Settings& settings, geo::LatLon transmitter, const UtcTime& now, Progress& progress);

Engine RunVoacap;

/// Icepac has no run of its own: VOACAP takes its place, and the setting says so from then on.
inline constexpr config::Choice<Engine*> kEngines[] = {{"Icepac", RunVoacap}, {"Voacap", RunVoacap}};
} // namespace propagation

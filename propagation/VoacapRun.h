#pragma once

#include "config/Choice.h"
#include "config/Settings.h"
#include "geo/Locator.h"
#include "propagation/Messages.h"
#include "propagation/OutsideProgram.h"

#include <limits>

namespace propagation
{
/// In place of an exit status: voacapl was ended before it had done its work.
inline constexpr int kAbandoned = std::numeric_limits<int>::min();

inline constexpr int kIcepac = 0;
inline constexpr int kVoacap = 1; ///< the only one that is run
inline constexpr config::Choice<int> kEngines[] = {{"Icepac", kIcepac}, {"Voacap", kVoacap}};

/// Where an area run keeps its files, below the data directory of voacapl.
struct AreaFiles
{
    explicit AreaFiles(const wxString& directory);

    wxString directory;
    wxString input;
    wxString result;
};

/**
 * Writes the area input file and runs voacapl on it.
 *
 * Returns when voacapl has ended, or when keepWaiting has ended it. A result of an earlier run is removed before
 * voacapl starts, so what is there afterwards is this run's.
 *
 * @param[in]     transmitter the centre of the map that the overlay is for, degrees; the settings may have another by
 *                            now.
 * @param[in,out] settings the engine is set to VOACAP as soon as the input file is open.
 * @return 0 when voacapl ended with exit status 0. Otherwise its exit status, or minus the signal that ended it; -1
 *         when it could not be started, or when the input could not be written, which has been reported to the user;
 *         kAbandoned when keepWaiting has ended it.
 */
int RunVoacap(const AreaFiles& files, Settings& settings, geo::LatLon transmitter, const Reports& reports,
              const KeepWaiting& keepWaiting = {});
} // namespace propagation

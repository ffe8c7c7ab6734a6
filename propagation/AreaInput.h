#pragma once

#include "config/Settings.h"
#include "config/UtcTime.h"
#include "geo/Locator.h"

namespace propagation
{
/// The time that an area run computes. The model knows only the month and the hour.
struct AreaTime
{
    int month; ///< 1..12
    int hour;  ///< 0..23, UTC

    bool operator==(const AreaTime&) const = default;
};

/// The stored month and hour; in real time those of now, the hour rounded up from minute 31 on. Neither day nor month
/// follow when hour 23 is rounded up to 0.
AreaTime AreaTimeOf(const GreyzoneSettings& settings, const UtcTime& now);

/// Points along each side of the world grid, 18..198. A choice outside the table takes the nearest entry, here and in
/// the other tables.
int GridPoints(int choice);

/// Whether the frequency is the user's own, not that of a band.
bool UsesOwnFrequency(const PropagationSettings& settings);

/// The frequency in MHz; the last choice is the user's own.
double FrequencyMHz(const PropagationSettings& settings);

/// The transmitter's power in kW. The table has an entry for 50 W that the list in the options dialog lacks.
double TxPowerKw(int choice);

/// The bracketed names of the two antennas, 21 characters each.
struct AntennaNames
{
    wxString transmitter;
    wxString receiver;
};

/**
 * The area input file of voacapl: one run over the whole world.
 *
 * @param[in] transmitter the map's centre, degrees.
 *
 * voacapl reads fixed columns. A value that is wider than its place moves what follows it; see docs/propagation.md.
 */
wxString AreaInputText(const Settings& settings, geo::LatLon transmitter, const AreaTime& time,
                       const AntennaNames& antennas);
} // namespace propagation

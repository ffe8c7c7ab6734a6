#pragma once

#include "config/Choice.h"
#include "config/Settings.h"
#include "config/UtcTime.h"
#include "geo/Locator.h"

#include <optional>

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

/// Points along each side of the world grid.
inline constexpr config::Choice<int> kGrids[] = {
    {"18 x 18", 18},    {"36 x 36", 36}, {"54 x 54", 54}, {"72 x 72", 72}, {"90 x 90", 90}, {"108 x 108", 108},
    {"126 x 126", 126}, {nullptr, 144},  {nullptr, 162},  {nullptr, 180},  {nullptr, 198}};

/// MHz of a band; none where the user's own frequency counts.
inline constexpr config::Choice<std::optional<double>> kFrequencies[] = {
    {"3.5 MHz", 3.5},   {"7.0 MHz", 7.0},   {"10.1 MHz", 10.1}, {"14.0 MHz", 14.0},    {"18.1 MHz", 18.1},
    {"21.0 MHz", 21.0}, {"24.9 MHz", 24.9}, {"28 MHz", 28.0},   {"User", std::nullopt}};

/// The transmitter's power in kW. From the third entry on a run has less than the label says, and the full power cannot
/// be chosen in the dialog; docs/propagation.md has a table.
inline constexpr config::Choice<double> kTxPowers[] = {{"1 W", 0.001},  {"10 W", 0.01}, {"100 W", 0.05}, {"250 W", 0.1},
                                                       {"500 W", 0.25}, {"1 kW", 0.5},  {nullptr, 1.0}};

/// Points along each side of the world grid for a choice. One outside the table takes the nearest entry, here and in
/// the other tables.
int GridPoints(int choice);

/// Whether the frequency is the user's own, not that of a band.
bool UsesOwnFrequency(const PropagationSettings& settings);

/// The frequency in MHz.
double FrequencyMHz(const PropagationSettings& settings);

/// The transmitter's power in kW.
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

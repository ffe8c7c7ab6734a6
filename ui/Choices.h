#pragma once

#include <wx/arrstr.h>

#include <span>

// The entries of every list of the options dialog. Settings hold the index of the chosen entry, so their order is part
// of the settings file's format.
namespace ui
{
inline constexpr const char* kRadialSteps[] = {"5 deg Radials", "10 deg Radials", "15 deg Radials", "30 deg Radials",
                                               "45 deg Radials"};
inline constexpr const char* kAlignments[] = {
    "Center",          "Left",          "Right",          "Top",          "Bottom",
    "Center with dot", "Left with dot", "Right with dot", "Top with dot", "Bottom with dot"};
inline constexpr const char* kHatchings[] = {"Solid", "Diagonal 1", "Cross Diagonal", "Diagonal 2",
                                             "Cross", "Horizontal", "Vertical"};
inline constexpr const char* kEngines[] = {"Icepac", "Voacap"};
inline constexpr const char* kGrids[] = {"18 x 18", "36 x 36",   "54 x 54",  "72 x 72",
                                         "90 x 90", "108 x 108", "126 x 126"};
inline constexpr const char* kTxPowers[] = {"1 W", "10 W", "100 W", "250 W", "500 W", "1 kW"};
inline constexpr const char* kFrequencies[] = {"3.5 MHz",  "7.0 MHz",  "10.1 MHz", "14.0 MHz", "18.1 MHz",
                                               "21.0 MHz", "24.9 MHz", "28 MHz",   "User"};
inline constexpr const char* kParameters[] = {"SDBW", "SNR", "MUF", "Rel"};
inline constexpr const char* kTimeModes[] = {"Real time", "Once"};
inline constexpr const char* kNorthSouth[] = {"N", "S"};
inline constexpr const char* kEastWest[] = {"E", "W"};

/// What the steps of a colour scale mean, by parameter.
inline constexpr const char* kParameterExplanations[] = {
    "Could be translated to S-units. S9+10dB = -93 dBW\n"
    "S9 = -103 dBW, S8 = -109 dBW\n"
    "S7 = -115 dBW, S6 = -121 dBW\n"
    "S5 = -127 dBW, S4 = -133 dBW\n"
    "S3 = -139 dBW, S2 = -145 dBW\n"
    "S1 = -151 dBW",
    "SNR\nMedian signal-to-noise ratio (dB)",
    "The MUF is defined here as the median maximum usable\n"
    "frequency for a given ionospheric path, month,\n"
    "SSN and hour",
    "Reliability\n"
    "Time availability, % time SNR exceeds required SNR\n"
    "Time availability   SNR > Req SNR\n"
    "0 to 1.0 where 1.0 is 100% reliability.",
};

inline wxArrayString Labels(std::span<const char* const> entries)
{
    wxArrayString labels;
    for (const char* const entry : entries)
        labels.Add(entry);
    return labels;
}

/// "00", "01", ... for the lists of hours and minutes.
inline wxArrayString TwoDigitNumbers(int count)
{
    wxArrayString labels;
    for (int i = 0; i < count; ++i)
        labels.Add(wxString::Format("%02d", i));
    return labels;
}
} // namespace ui

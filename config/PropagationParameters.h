#pragma once

#include <array>
#include <cstddef>

namespace config
{
/// A step of a colour scale: its two keys in "Propagation", each with what it defaults to.
struct ScaleStep
{
    const char* colourKey; ///< before "Colour"
    long colour;
    const char* thresholdKey; ///< before "Value"
    const char* threshold;
};

using ScaleSteps = std::array<ScaleStep, 10>; ///< from the highest down

/// All there is to a parameter that the propagation overlay can show.
struct PropagationParameter
{
    const char* label;       ///< in the options dialog
    const char* legend;      ///< title of the overlay's legend
    const char* suffix;      ///< of the name that a picture with the overlay is saved under
    int tool;                ///< number of its tool in the window
    const char* toolName;    ///< for screen readers, and in the menu of tools that have no room
    std::size_t column;      ///< where its value begins in the lines of a result file
    std::size_t width;       ///< of the value there, in characters
    const char* explanation; ///< what the steps of its scale mean
    ScaleSteps steps;
};

/// "Propagation/Param" is the index of the one that is shown.
inline constexpr std::array<PropagationParameter, 4> kParameters{{
    {.label = "SDBW",
     .legend = "SDBW",
     .suffix = "_SDBW",
     .tool = 1002,
     .toolName = "Signal power (SDBW)",
     .column = 74,
     .width = 6,
     .explanation = "Could be translated to S-units. S9+10dB = -93 dBW\n"
                    "S9 = -103 dBW, S8 = -109 dBW\n"
                    "S7 = -115 dBW, S6 = -121 dBW\n"
                    "S5 = -127 dBW, S4 = -133 dBW\n"
                    "S3 = -139 dBW, S2 = -145 dBW\n"
                    "S1 = -151 dBW",
     // The colours are named by S-units and the thresholds by numbers; files rely on it.
     .steps = {{{"S9P", 255, "S10", "-93"},
                {"S9", 65280, "S09", "-103"},
                {"S8", 16711680, "S08", "-109"},
                {"S7", 65535, "S07", "-115"},
                {"S6", 16776960, "S06", "-121"},
                {"S5", 16711935, "S05", "-127"},
                {"S4", 128, "S04", "-133"},
                {"S3", 32768, "S03", "-139"},
                {"S2", 8388608, "S02", "-145"},
                {"S1", 0, "S01", "-151"}}}},
    {.label = "SNR",
     .legend = "Signal Noice Ratio dB",
     .suffix = "_SNR",
     .tool = 1014,
     .toolName = "Signal-to-noise ratio (SNR)",
     .column = 86,
     .width = 6,
     .explanation = "SNR\nMedian signal-to-noise ratio (dB)",
     .steps = {{{"SNR10", 6579400, "SNR10", "70"},
                {"SNR09", 6604900, "SNR09", "60"},
                {"SNR08", 13132900, "SNR08", "50"},
                {"SNR07", 6605000, "SNR07", "40"},
                {"SNR06", 13158500, "SNR06", "30"},
                {"SNR05", 13133000, "SNR05", "20"},
                {"SNR04", 6579300, "SNR04", "10"},
                {"SNR03", 13158650, "SNR03", "0"},
                {"SNR02", 16409700, "SNR02", "-10"},
                {"SNR01", 0, "SNR01", "-20"}}}},
    {.label = "MUF",
     .legend = "Muf MHz",
     .suffix = "_MUF",
     .tool = 1015,
     .toolName = "Maximum usable frequency (MUF)",
     .column = 26,
     .width = 6,
     .explanation = "The MUF is defined here as the median maximum usable\n"
                    "frequency for a given ionospheric path, month,\n"
                    "SSN and hour",
     .steps = {{{"MUF10", 13133055, "MUF10", "29"},
                {"MUF09", 6593480, "MUF09", "26"},
                {"MUF08", 10209380, "MUF08", "23"},
                {"MUF07", 13147035, "MUF07", "20"},
                {"MUF06", 10197960, "MUF06", "17"},
                {"MUF05", 10209435, "MUF05", "14"},
                {"MUF04", 6592190, "MUF04", "11"},
                {"MUF03", 13155990, "MUF03", "8"},
                {"MUF02", 5949590, "MUF02", "5"},
                {"MUF01", 0, "MUF01", "2"}}}},
    {.label = "Rel",
     .legend = "Reliability",
     .suffix = "_REL",
     .tool = 1016,
     .toolName = "Reliability (Rel)",
     .column = 99,
     .width = 5,
     .explanation = "Reliability\n"
                    "Time availability, % time SNR exceeds required SNR\n"
                    "Time availability   SNR > Req SNR\n"
                    "0 to 1.0 where 1.0 is 100% reliability.",
     .steps = {{{"REL10", 5921535, "REL10", "0.9"},
                {"REL09", 5963610, "REL09", "0.8"},
                {"REL08", 16734810, "REL08", "0.7"},
                {"REL07", 5963775, "REL07", "0.6"},
                {"REL06", 16777050, "REL06", "0.5"},
                {"REL05", 16734975, "REL05", "0.4"},
                {"REL04", 5921408, "REL04", "0.3"},
                {"REL03", 5931098, "REL03", "0.2"},
                {"REL02", 8411738, "REL02", "0.1"},
                {"REL01", 0, "REL01", "0.01"}}}},
}};
} // namespace config

#pragma once

#include "config/UtcTime.h"
#include "rotator/Address.h"

#include <chrono>
#include <optional>
#include <string>

namespace app
{
/// What the user asked for on the command line. File names are bytes as the system passed them.
struct CommandLine
{
    std::optional<std::string> settings;      ///< take the settings from this file
    std::optional<std::string> render;        ///< write the map to this picture, show no window
    bool worldFile = false;                   ///< with render: where the picture lies on the earth, beside it
    bool check = false;                       ///< say what in the settings will not work, show no window
    std::optional<std::string> bearings;      ///< print where the places of this file lie, show no window
    std::optional<UtcTime> time;              ///< draw for this time
    std::chrono::seconds voacaplTimeout{600}; ///< for --render: after it voacapl is ended
    std::optional<std::string> aim;           ///< print the bearing of this place, show no window
    bool longPath = false;                    ///< with aim: the other way round
    std::optional<rotator::Address> rotator;  ///< of the antenna
    std::optional<int> exitStatus;            ///< nothing is left to do: all was printed

    /// Whether the places come from standard input.
    bool AnswersInput() const { return bearings == "-"; }

    bool ShowsWindow() const { return !render && !aim && !check && !bearings; }
};

/**
 * Reads the command line. Help and version go to standard output; wrong use goes to standard error as "kavmap: " and
 * what was wrong. The environment variable KAVMAP_ROTATOR stands in for --rotator. Needs neither toolkit nor display.
 */
CommandLine ParseCommandLine(int argc, char** argv);

/// A time written as YYYY-MM-DDTHH:MM; none for anything else and for dates and times that do not exist.
std::optional<UtcTime> ParseUtcTime(const std::string& text);
} // namespace app

#pragma once

#include <ctime>

/// A moment in UTC as calendar fields, numbered as the settings number them.
struct UtcTime
{
    int year;
    int month; ///< 0..11, January is 0
    int day;   ///< 1..31
    int hour;
    int minute;
    int second;

    bool operator==(const UtcTime&) const = default;
};

/// The calendar fields of seconds since 1970-01-01 00:00 UTC.
UtcTime UtcTimeOf(std::time_t seconds);

/// Now, by the program's clock.
UtcTime UtcNow();

/// The program's clock; tests put one in its place that they can move.
using Clock = std::time_t (*)();

/// Replaces the program's clock and returns the one before.
Clock SetClock(Clock clock);

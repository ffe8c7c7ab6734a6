#pragma once

#include "geo/SunCalc.h"

#include <cmath>
#include <string>

struct Utc
{
    int year;
    int month;
    int day;
    int hour = 0;
    int minute = 0;
    int second = 0;
};

inline std::string Text(const Utc& t)
{
    return std::to_string(t.year) + '-' + std::to_string(t.month) + '-' + std::to_string(t.day) + ' ' +
           std::to_string(t.hour) + ':' + std::to_string(t.minute);
}

inline double DayOf(const Utc& t)
{
    return SunCalc::DayNumber(t.day, t.month, t.year, t.hour, t.minute, t.second);
}

inline SunCalc::Result SunAt(const Utc& t, double lonDeg = 0.0, double latDeg = 0.0)
{
    return SunCalc::Position(DayOf(t), lonDeg, latDeg);
}

/// The shorter way around from one angle to another, -180..180 degrees.
inline double Between(double from, double to)
{
    return std::remainder(to - from, 360.0);
}

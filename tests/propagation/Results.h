#pragma once

#include "propagation/ResultReader.h"

#include <cstdio>
#include <functional>
#include <string>

/// The first three lines of an area result, the number of points as given.
inline std::string ResultHeader(const std::string& points)
{
    return "VOACAPL\nHOME\n" + points + " 36  Latitude Longitude   MUF\n";
}

/// A line of a result with a text put over it at a column.
inline std::string ResultLine(std::size_t column, const std::string& field)
{
    std::string line(170, '-');
    return line.replace(column, field.size(), field);
}

/// A number as results print it, in six characters.
inline std::string SixCharacters(double value)
{
    char text[16];
    std::snprintf(text, sizeof text, "%6.1f", value);
    return text;
}

/// A result whose signal power is a function of row and column.
inline std::string SdbwResult(int points, const std::function<double(int row, int column)>& value)
{
    char count[8];
    std::snprintf(count, sizeof count, "%3d", points);
    std::string text = ResultHeader(count);
    for (int row = 0; row < points; ++row)
        for (int column = 0; column < points; ++column)
            text += ResultLine(74, SixCharacters(value(row, column))) + "\n";
    return text;
}

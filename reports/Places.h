#pragma once

#include "geo/Locator.h"

#include <wx/string.h>

#include <optional>
#include <string_view>
#include <vector>

namespace reports
{
/// A place with the name under which it was found.
struct Place
{
    wxString name;
    geo::LatLon at; ///< -90..90 and -180..180
};

/// The places of a file, in its order, and the lines that should have had one.
struct Places
{
    std::vector<Place> found;
    std::vector<std::size_t> linesWithout; ///< counted from 1
};

/**
 * The place that a line of a label file names: two of its fields, counted without empty ones, are a position.
 *
 * @return none for a line with fewer than six fields, without numbers in the fifth and sixth, or with numbers that are
 *         no position.
 */
std::optional<Place> LabelledPlace(std::wstring_view line);

/// The places of a label file. Blank lines and lines of the type "Country", which no map shows, are passed over.
Places PlacesOfLabels(std::wstring_view text);

/// The squares that a log names, each once, where four characters completed with "LL" are a locator's centre.
Places SquaresOfLog(std::wstring_view text);

/// The places of a label file or of a log: files named .dat and .log are what their names say, any other is a label
/// file if most of its lines name a place as one does.
Places PlacesOf(std::wstring_view text, const wxString& fileName);

/**
 * The place that a user writes: a locator of four or six characters in any case, or latitude and longitude in decimal
 * degrees with blanks, a comma or a semicolon between them.
 *
 * @return none for anything else.
 */
std::optional<Place> WrittenPlace(const wxString& text);
} // namespace reports

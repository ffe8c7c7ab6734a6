#pragma once

#include "geo/Locator.h"

#include <wx/string.h>

#include <vector>

namespace app
{
/**
 * The places that a text may mean: a position, "lat,lon" in decimal degrees, -90..90 and -180..180; a locator of four
 * or six characters; or a label of the shipped files of prefixes, cities and countries. Upper and lower case are the
 * same.
 *
 * @return degrees; none where nothing is known. Several labels of one name that lie close together are one place.
 */
std::vector<geo::LatLon> PlacesNamed(const wxString& text);
} // namespace app

#pragma once

#include "geo/LatLon.h"

#include <array>
#include <optional>
#include <string_view>

namespace geo
{
/// Six characters: field letters, square digits, subsquare letters; longitude before latitude in each pair.
using Locator = std::array<char, 6>;

/**
 * The Maidenhead locator of a position.
 *
 * @return none unless -90 <= lat <= 90 and -180 <= lon <= 180. Longitude +180 is the same as -180; latitude +90 gives
 *         the letter "S", one past the last field.
 */
std::optional<Locator> LocatorOf(LatLon position);

/**
 * The centre of a subsquare.
 *
 * @return none unless the text is exactly six upper-case characters: "A".."R" twice, "0".."9" twice, "A".."X" twice.
 */
std::optional<LatLon> CentreOfLocator(std::string_view locator);
} // namespace geo

#pragma once

#include "geo/AzimuthalProjection.h"
#include "geo/MapFrame.h"

#include <string>

namespace geo
{
/**
 * The six lines of a world file: metres a pixel to the east, two rotations (none), metres a pixel to the south
 * (negative), and the place of the middle of the upper left pixel in metres east and north of the station.
 *
 * A point of the map plane comes out in the pixel that MapFrame::MapToPixel() gives it: the station lies in the upper
 * left corner of pixel (half, half).
 */
std::string WorldFileText(const MapFrame& frame);

/**
 * The projection as a line of well-known text: azimuthal equidistant on the sphere, its centre in degrees.
 *
 * OpenGIS Consortium, OpenGIS Coordinate Transformation Services, revision 1.00 (2001), section 7.
 */
std::string ProjectionText(const AzimuthalProjection& projection);
} // namespace geo

#include "geo/WorldFile.h"

#include <array>
#include <charconv>

namespace geo
{
namespace
{
/// The fewest digits that read back as the same number, without an exponent.
std::string TextOf(double number)
{
    std::array<char, 400> text; // the smallest number has 324 places
    const auto end = std::to_chars(text.data(), text.data() + text.size(), number, std::chars_format::fixed).ptr;
    return {text.data(), end};
}
} // namespace

std::string WorldFileText(const MapFrame& frame)
{
    const double scale = frame.metresPerPixel;
    const double firstPixel = (frame.half - 0.5) * scale;
    std::string lines;
    for (const double number : {scale, 0.0, 0.0, -scale, -firstPixel, firstPixel})
        lines += TextOf(number) + "\n";
    return lines;
}

std::string ProjectionText(const AzimuthalProjection& projection)
{
    return "PROJCS[\"Azimuthal equidistant\",GEOGCS[\"Sphere\",DATUM[\"Sphere\",SPHEROID[\"Sphere\"," +
           TextOf(AzimuthalProjection::kEarthRadius) +
           ",0]],PRIMEM[\"Greenwich\",0],UNIT[\"degree\",0.017453292519943295]],PROJECTION[\"Azimuthal_Equidistant\"],"
           "PARAMETER[\"latitude_of_center\"," +
           TextOf(projection.centreLatDeg) + "],PARAMETER[\"longitude_of_center\"," + TextOf(projection.centreLonDeg) +
           "],PARAMETER[\"false_easting\",0],PARAMETER[\"false_northing\",0],UNIT[\"metre\",1]]\n";
}
} // namespace geo

#include "geo/WorldFile.h"

#include "tests/geo/Centred.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>
#include <vector>

namespace
{
using testing::HasSubstr;

TEST(WorldFile, HasSixLines)
{
    // 20000 km over 440 pixels, cut to whole metres; the middle of the upper left pixel.
    EXPECT_EQ(geo::WorldFileText(MapFrame(900, 20000000, 10)), "45454\n0\n0\n-45454\n-20431573\n20431573\n");
}

TEST(WorldFile, PutsThePointsOfAPixelIntoIt)
{
    for (const int size : {100, 901, 8000})
    {
        const MapFrame frame(size, 20000000, 0);
        std::istringstream lines(geo::WorldFileText(frame));
        std::vector<double> numbers(6);
        for (double& number : numbers)
            lines >> number;
        // As readers of world files do: a pixel reaches half a pixel around its middle.
        const double left = numbers[4] - numbers[0] / 2;
        const double top = numbers[5] - numbers[3] / 2;
        for (const int pixel : {0, 1, size / 2, size - 1})
            for (const double inside : {0.01, 0.5, 0.99})
            {
                const double x = left + (pixel + inside) * numbers[0];
                const double y = top + (pixel + inside) * numbers[3];
                EXPECT_EQ(frame.MapToPixel(x, y), (geo::Pixel{pixel, pixel})) << size;
            }
    }
}

TEST(WorldFile, WritesNoExponents)
{
    EXPECT_THAT(geo::ProjectionText(Centred(1e-7, -179.99999999)), HasSubstr("[\"latitude_of_center\",0.0000001]"));
    EXPECT_THAT(geo::ProjectionText(Centred(1e-7, -179.99999999)),
                HasSubstr("[\"longitude_of_center\",-179.99999999]"));
}

TEST(WorldFile, NamesSphereProjectionAndCentre)
{
    EXPECT_EQ(geo::ProjectionText(Centred(-90, 12.625)),
              "PROJCS[\"Azimuthal equidistant\","
              "GEOGCS[\"Sphere\",DATUM[\"Sphere\",SPHEROID[\"Sphere\",6370997,0]],"
              "PRIMEM[\"Greenwich\",0],UNIT[\"degree\",0.017453292519943295]],"
              "PROJECTION[\"Azimuthal_Equidistant\"],"
              "PARAMETER[\"latitude_of_center\",-90],PARAMETER[\"longitude_of_center\",12.625],"
              "PARAMETER[\"false_easting\",0],PARAMETER[\"false_northing\",0],"
              "UNIT[\"metre\",1]]\n");
}
} // namespace

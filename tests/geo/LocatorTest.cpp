#include "geo/Locator.h"

#include <gtest/gtest.h>

#include <string>

namespace
{
std::string LocatorText(double lat, double lon)
{
    const auto locator = geo::LocatorOf({lat, lon});
    return locator ? std::string(locator->begin(), locator->end()) : "none";
}

TEST(Locator, OfTheDefaultStationIsJO65HQAndBack)
{
    const auto centre = geo::CentreOfLocator("JO65HQ");
    ASSERT_TRUE(centre);
    EXPECT_EQ(centre->lat, 55.6875);
    EXPECT_EQ(centre->lon, 12.625);
    EXPECT_EQ(LocatorText(centre->lat, centre->lon), "JO65HQ");
}

TEST(Locator, StandsForTheCentreOfItsSubsquare)
{
    const auto centre = geo::CentreOfLocator("JO65LL");
    ASSERT_TRUE(centre);
    EXPECT_DOUBLE_EQ(centre->lon, 12 + 11 / 12.0 + 1 / 24.0);
    EXPECT_DOUBLE_EQ(centre->lat, 55 + 11 / 24.0 + 1 / 48.0);
}

TEST(Locator, WrapsAtTheDateLineButNotAtTheNorthPole)
{
    EXPECT_EQ(LocatorText(0.0, 180.0).front(), 'A');
    EXPECT_EQ(LocatorText(0.0, 180.0), LocatorText(0.0, -180.0));
    EXPECT_EQ(LocatorText(90.0, 0.0), "JS00AA");
    EXPECT_EQ(LocatorText(-90.0, -180.0), "AA00AA");
}

TEST(Locator, IsNoneOutsideTheGlobe)
{
    EXPECT_EQ(LocatorText(90.0001, 0.0), "none");
    EXPECT_EQ(LocatorText(-90.0001, 0.0), "none");
    EXPECT_EQ(LocatorText(0.0, 180.0001), "none");
    EXPECT_EQ(LocatorText(0.0, -180.0001), "none");
    EXPECT_EQ(LocatorText(std::stod("nan"), 0.0), "none");
}

TEST(Locator, RefusesWhatIsNotALocator)
{
    for (const char* text : {"jo65hq", "JO65H", "JO65", "JO65HQ0", "", "SA00AA", "AS00AA", "AAA0AA", "AA0AAA", "AA00YA",
                             "AA00AY", "AA00A\xc3", "@A00AA"})
        EXPECT_FALSE(geo::CentreOfLocator(text)) << text;
}

TEST(Locator, OfEverySubsquareCentreIsThatSubsquare)
{
    for (double lat = -90 + 1 / 48.0; lat < 90; lat += 1 / 24.0)
        for (double lon = -180 + 1 / 24.0; lon < 180; lon += 5 / 12.0)
        {
            const std::string locator = LocatorText(lat, lon);
            const auto centre = geo::CentreOfLocator(locator);
            ASSERT_TRUE(centre) << locator;
            ASSERT_NEAR(centre->lat, lat, 1e-9) << locator;
            ASSERT_NEAR(centre->lon, lon, 1e-9) << locator;
        }
}
} // namespace

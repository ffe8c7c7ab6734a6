#include "config/Configuration.h"
#include "config/SettingsFile.h"
#include "tests/support/TemporaryHome.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <random>

namespace
{
using testing::HasSubstr;

/// The centre of the map, saved to a file and loaded again.
class ExactNumbersTest : public testing::Test
{
protected:
    void Save(double lat, double lon)
    {
        settings.centreLat = lat;
        settings.centreLon = lon;
        settings.WriteAllTo(*OpenSettingsFile(home.Path("a.ini")));
    }

    void ExpectTheSameBack(double lat, double lon)
    {
        Save(lat, lon);
        settings.centreLat = settings.centreLon = 1;
        settings.ReadAllFrom(*OpenSettingsFile(home.Path("a.ini")));
        EXPECT_EQ(settings.centreLat, lat);
        EXPECT_EQ(settings.centreLon, lon);
    }

    const TemporaryHome home;
    Configuration settings{"Kavdex"};
};

TEST_F(ExactNumbersTest, AreWrittenWithTheDigitsTheyNeed)
{
    Save(-33.86785, 151.20929);
    EXPECT_THAT(home.Read("a.ini"), HasSubstr("Lat=-33.86785\n"));
    EXPECT_THAT(home.Read("a.ini"), HasSubstr("Lon=151.20929\n"));
    Save(0, -180);
    EXPECT_THAT(home.Read("a.ini"), HasSubstr("Lat=0\n"));
    EXPECT_THAT(home.Read("a.ini"), HasSubstr("Lon=-180\n"));
    Save(0.1, 0.0001);
    EXPECT_THAT(home.Read("a.ini"), HasSubstr("Lat=0.1\n"));
    EXPECT_THAT(home.Read("a.ini"), HasSubstr("Lon=0.0001\n"));
}

TEST_F(ExactNumbersTest, ReadBackTheSame)
{
    ExpectTheSameBack(1.0 / 3, -2.0 / 3 * 180);
    ExpectTheSameBack(1e-300, -1.7976931348623157e308);
    std::mt19937_64 random(20241115);
    std::uniform_real_distribution lat(-90.0, 90.0);
    std::uniform_real_distribution lon(-180.0, 180.0);
    for (int i = 0; i < 20; ++i)
        ExpectTheSameBack(lat(random), lon(random));
}

TEST_F(ExactNumbersTest, SurviveInTheWorkingFile)
{
    {
        Configuration working("Kavdex");
        working.centreLon = 151.2092912345;
        working.WriteAll();
    }
    EXPECT_EQ(Configuration("Kavdex").centreLon, 151.2092912345);
}
} // namespace

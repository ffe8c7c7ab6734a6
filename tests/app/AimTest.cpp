#include "tests/support/ProgramFixture.h"
#include "tests/support/Rotctld.h"

#include <cmath>
#include <numbers>

namespace
{
/// kavmap --aim where there is no display, from a station at 50 north, 10 east.
class AimTest : public ProgramTest
{
protected:
    AimTest() { home.Write("station.ini", "[Center pos]\nLat=50\nLon=10\n"); }

    static int Aim(const std::string& arguments, const std::string& environment = "-u KAVMAP_ROTATOR")
    {
        return Run("-s station.ini --aim " + arguments, "-u DISPLAY -u WAYLAND_DISPLAY " + environment);
    }

    /// The bearing of a place by the formula of the sphere, as it is printed.
    static std::string BearingOf(double latDeg, double lonDeg)
    {
        const double rad = std::numbers::pi / 180;
        const double lat = latDeg * rad;
        const double lon = (lonDeg - 10) * rad;
        const double bearing =
            std::atan2(std::sin(lon) * std::cos(lat),
                       std::cos(50 * rad) * std::sin(lat) - std::sin(50 * rad) * std::cos(lat) * std::cos(lon)) /
            rad;
        return wxString::Format("%.1f\n", bearing < 0 ? bearing + 360 : bearing).utf8_string();
    }

    void ExpectFailure(const std::string& arguments, const std::string& said) const
    {
        EXPECT_EQ(Aim(arguments), 1) << arguments;
        EXPECT_EQ(home.Read("err.txt"), "kavmap: " + said + "\n") << arguments;
        EXPECT_EQ(Out(), "") << arguments;
    }
};

TEST_F(AimTest, PrintsTheBearingOfAPosition)
{
    for (const auto& [text, lat, lon] : {std::tuple("35.7,139.7", 35.7, 139.7),
                                         {"'-33.9, 151.2'", -33.9, 151.2},
                                         {"' 40.7 ,-74'", 40.7, -74.0},
                                         {"90,10", 90.0, 10.0},
                                         {"-90,10", -90.0, 10.0}})
    {
        EXPECT_EQ(Aim(text), 0) << text;
        EXPECT_EQ(Out(), BearingOf(lat, lon)) << text;
        EXPECT_EQ(home.Read("err.txt"), "") << text;
    }
}

TEST_F(AimTest, PrintsTheBearingOfALocator)
{
    for (const auto& [text, lat, lon] : {std::tuple("PM95UQ", 35.6875, 139.7083),
                                         {"pm95uq", 35.6875, 139.7083},
                                         {"PM95", 35.4792, 138.9583}, // stands for PM95LL
                                         {"pm95", 35.4792, 138.9583}})
    {
        EXPECT_EQ(Aim(text), 0) << text;
        EXPECT_EQ(Out(), BearingOf(lat, lon)) << text;
    }
}

TEST_F(AimTest, PrintsTheBearingOfAName)
{
    for (const auto& [text, lat, lon] : {std::tuple("BY", 36.0, 102.0), // as data/prefixes.dat says
                                         {"by", 36.0, 102.0},
                                         {"Tokyo", 35.685, 139.7514},
                                         {"'buenos aires'", -34.6025, -58.3975},
                                         {"India", 22.3583, 79.7149}})
    {
        EXPECT_EQ(Aim(text), 0) << text;
        EXPECT_EQ(Out(), BearingOf(lat, lon)) << text;
        EXPECT_EQ(home.Read("err.txt"), "") << text;
    }
}

TEST_F(AimTest, ACapitalAndItsCountryAreOnePlace)
{
    EXPECT_EQ(Aim("Singapore"), 0);
    EXPECT_EQ(home.Read("err.txt"), "");
}

TEST_F(AimTest, SaysWhichOfSeveralPlacesItIs)
{
    EXPECT_EQ(Aim("Santiago"), 0);
    EXPECT_EQ(Out(), BearingOf(-33.45, -70.667));
    EXPECT_EQ(home.Read("err.txt"),
              "kavmap: warning: 2 places have the name Santiago; this is the one at -33.4500,-70.6670\n");
}

TEST_F(AimTest, TakesTheLongPath)
{
    EXPECT_EQ(Aim("50,-170 --long-path"), 0); // over the pole, and away from it
    EXPECT_EQ(Out(), "180.0\n");
    EXPECT_EQ(Aim("49,10 --long-path"), 0);
    EXPECT_EQ(Out(), "0.0\n");
}

TEST_F(AimTest, RefusesWhatItDoesNotKnow)
{
    for (const char* text : {"Nowhere", "91,0", "0,181", "nan,0", "1,2,3", "1,", ",1", "PM95UQ7", "ZZ99", "Toky"})
        ExpectFailure(text, std::string("not a locator, a position or the name of a place: ") + text);
    ExpectFailure("''", "not a locator, a position or the name of a place: ");
}

TEST_F(AimTest, ThereIsNoBearingOfTheStationAndOfItsAntipode)
{
    for (const char* text : {"50,10", "-50,-170"})
        ExpectFailure(text, std::string("no bearing leads to ") + text + ": it is the station, or just opposite");
}

TEST_F(AimTest, TurnsTheRealRotator)
{
    const Rotctld rotctld;
    EXPECT_EQ(Aim("BY --rotator " + rotctld.Address()), 0);
    EXPECT_EQ(Out(), BearingOf(36, 102));
    EXPECT_EQ(home.Read("err.txt"), "");
}

TEST_F(AimTest, TurnsTheRotatorToWhatItPrints)
{
    FakeRotctld rotctld;
    EXPECT_EQ(Aim("49,10 --rotator " + rotctld.Address()), 0);
    EXPECT_EQ(rotctld.lastOrder, "set_pos 180.0 0");
    EXPECT_EQ(Aim("49,10 --long-path", "KAVMAP_ROTATOR=" + rotctld.Address()), 0);
    EXPECT_EQ(rotctld.lastOrder, "set_pos 0.0 0");
}

TEST_F(AimTest, TellsThatTheRotatorRefuses)
{
    FakeRotctld rotctld;
    rotctld.state.code = -1;
    EXPECT_EQ(Aim("49,10 --rotator " + rotctld.Address()), 1);
    EXPECT_EQ(Out(), "180.0\n");
    EXPECT_EQ(home.Read("err.txt"), "kavmap: Rotator: position out of range\n");
}

TEST_F(AimTest, TellsThatNobodyAnswers)
{
    const std::string address = "127.0.0.1:" + std::to_string(FreePort());
    EXPECT_EQ(Aim("49,10 --rotator " + address), 1);
    EXPECT_EQ(home.Read("err.txt"), "kavmap: Rotator: no answer from " + address + "\n");
}

TEST_F(AimTest, WaitsNoLongerThanItsLimit)
{
    const FakeRotctld silent([](const std::string&) { return ""; });
    EXPECT_EQ(Aim("49,10 --rotator " + silent.Address()), 1);
    EXPECT_EQ(home.Read("err.txt"), "kavmap: Rotator: no answer from " + silent.Address() + "\n");
}
} // namespace

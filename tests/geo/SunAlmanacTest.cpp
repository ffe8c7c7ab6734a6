// The sun against published values and against another method. The bounds are the accuracy that SunCalc.h states.

#include "tests/geo/MeeusSun.h"
#include "tests/geo/SunAtUtc.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>

namespace
{
constexpr double kDeclinationError = 0.007;
constexpr double kRightAscensionError = 0.019;
constexpr double kHourAngleError = 0.010;
constexpr double kSkyError = 0.011;
constexpr double kLongitudeError = 0.019;

/// Julian day of day number 0.
constexpr double kJulianDayOfZero = 2451543.5;

const double kFirstDay = DayOf({1990, 1, 1});
const double kLastDay = DayOf({2051, 1, 1});

/// Apparent minus mean solar time, in minutes.
double EquationOfTime(const Utc& t)
{
    const double meanSun = (t.hour + t.minute / 60.0 + t.second / 3600.0) * 15 - 180;
    return Between(meanSun, SunAt(t).greenwichHourAngle) * 4;
}

// The other method itself, against examples that have all terms: Meeus, example 25.b, and the report named below.
TEST(SunAlmanac, HasAnotherMethodThatIsCloseToTheCompleteTheory)
{
    const meeus::Sun in1992 = meeus::SunAt(2448908.5 - meeus::kDeltaT);
    EXPECT_NEAR(Between(199.906016, in1992.longitude), 0.0, 0.0003);
    EXPECT_NEAR(Between(198.378121, in1992.rightAscension), 0.0, 0.0003);
    EXPECT_NEAR(in1992.declination, -7.783817, 0.0003);

    const meeus::Sun in2003 = meeus::SunAt(2452930.3128472);
    EXPECT_NEAR(Between(11.105902 + 105.1786, in2003.greenwichHourAngle), 0.0, 0.0003);
    EXPECT_NEAR(in2003.declination, -9.31434, 0.0003);
}

struct Season
{
    Utc time;
    double longitude;
};

// 1962, 1996, 2005: Meeus, Astronomical Algorithms, 2nd edition, chapter 27, example 27.a and the table of 1996 to 2005
// (dynamical time less 34, 62 and 65 s). 2000 and 2024: US Naval Observatory, Earth's Seasons. 1990 and 2050: PyEphem
// 4.1.4 (VSOP87), to the minute.
constexpr Season kSeasons[] = {
    {{1962, 6, 21, 21, 24, 8}, 90.0},  {{1990, 3, 20, 21, 19}, 0.0},        {{1990, 6, 21, 15, 33}, 90.0},
    {{1990, 9, 23, 6, 56}, 180.0},     {{1990, 12, 22, 3, 7}, 270.0},       {{1996, 3, 20, 8, 3, 5}, 0.0},
    {{1996, 6, 21, 2, 23, 44}, 90.0},  {{1996, 9, 22, 18, 0, 6}, 180.0},    {{1996, 12, 21, 14, 5, 54}, 270.0},
    {{2000, 3, 20, 7, 35}, 0.0},       {{2000, 6, 21, 1, 48}, 90.0},        {{2000, 9, 22, 17, 28}, 180.0},
    {{2000, 12, 21, 13, 37}, 270.0},   {{2005, 3, 20, 12, 33, 24}, 0.0},    {{2005, 6, 21, 6, 46, 7}, 90.0},
    {{2005, 9, 22, 22, 23, 9}, 180.0}, {{2005, 12, 21, 18, 34, 56}, 270.0}, {{2024, 3, 20, 3, 6}, 0.0},
    {{2024, 6, 20, 20, 51}, 90.0},     {{2024, 9, 22, 12, 44}, 180.0},      {{2024, 12, 21, 9, 21}, 270.0},
    {{2050, 3, 20, 10, 19}, 0.0},      {{2050, 6, 21, 3, 33}, 90.0},        {{2050, 9, 22, 19, 28}, 180.0},
    {{2050, 12, 21, 16, 38}, 270.0},
};

TEST(SunAlmanac, SeasonsBeginWhenThePublishedTablesSay)
{
    for (const auto& [time, longitude] : kSeasons)
    {
        SCOPED_TRACE(Text(time));
        const SunCalc::Result sun = SunAt(time);
        EXPECT_NEAR(Between(longitude, sun.eclipticLongitude), 0.0, kLongitudeError);
        // The obliquity decreases by 47 seconds of arc in a century.
        const double obliquity = 23.4393 - 0.00013 * (time.year - 2000);
        EXPECT_NEAR(sun.declination, obliquity * meeus::Sin(longitude), kDeclinationError);
        EXPECT_NEAR(Between(longitude, sun.rightAscension), 0.0, kRightAscensionError);
    }
}

// Meeus, examples 25.b (apparent place by the complete theory) and 28.a: 1992 October 13, 0h dynamical time.
TEST(SunAlmanac, AgreesWithTheAutumnDayOfMeeus)
{
    constexpr Utc kTime{1992, 10, 12, 23, 59, 1};
    const SunCalc::Result sun = SunAt(kTime);
    EXPECT_NEAR(Between(198.378121, sun.rightAscension), 0.0, kRightAscensionError);
    EXPECT_NEAR(sun.declination, -7.783817, kDeclinationError);
    EXPECT_NEAR(EquationOfTime(kTime), 13 + 42.6 / 60, kHourAngleError * 4);
}

// I. Reda and A. Andreas, Solar Position Algorithm for Solar Radiation Applications, NREL/TP-560-34302 (revised 2008),
// table A5.1: 2003 October 17, 12:30:30 at UTC-7, 1830 m high; refraction there for 820 mbar and 11 degrees Celsius.
TEST(SunAlmanac, AgreesWithTheSolarRadiationReport)
{
    const SunCalc::Result sun = SunAt({2003, 10, 17, 19, 30, 30}, -105.1786, 39.742476);
    EXPECT_NEAR(sun.declination, -9.31434, kDeclinationError);
    EXPECT_NEAR(Between(202.22741, sun.rightAscension), 0.0, kRightAscensionError);
    EXPECT_NEAR(sun.greenwichHourAngle, 11.105902 + 105.1786, kHourAngleError);
    EXPECT_NEAR(sun.azimuth, 194.34024, kSkyError / meeus::Cos(40.0));
    // The report takes the parallax off, 0.0019 degrees, and its thinner air bends less, by 0.0030.
    EXPECT_NEAR(sun.elevation, 90 - 50.11162 + 0.0019 + 0.0030, kSkyError);

    const SunCalc::Result sunrise = SunAt({2003, 10, 17, 13, 12, 43}, -105.1786, 39.742476);
    EXPECT_NEAR(sunrise.trueElevation, -0.8333, kSkyError);
}

TEST(SunAlmanac, StaysNearTheOtherMethodFrom1990To2050)
{
    double declination = 0.0;
    double rightAscension = 0.0;
    double hourAngle = 0.0;
    double longitude = 0.0;
    for (double d = kFirstDay; d < kLastDay; d += 0.3)
    {
        const SunCalc::Result sun = SunCalc::Position(d, 0.0, 0.0);
        const meeus::Sun other = meeus::SunAt(kJulianDayOfZero + d);
        const auto grow = [](double& worst, double error) { worst = std::max(worst, std::fabs(error)); };
        grow(declination, sun.declination - other.declination);
        grow(rightAscension, Between(sun.rightAscension, other.rightAscension));
        grow(hourAngle, Between(sun.greenwichHourAngle, other.greenwichHourAngle));
        grow(longitude, Between(sun.eclipticLongitude, other.longitude));
    }
    RecordProperty("declination", std::to_string(declination));
    RecordProperty("rightAscension", std::to_string(rightAscension));
    RecordProperty("hourAngle", std::to_string(hourAngle));
    RecordProperty("longitude", std::to_string(longitude));
    EXPECT_LT(declination, kDeclinationError);
    EXPECT_LT(rightAscension, kRightAscensionError);
    EXPECT_LT(hourAngle, kHourAngleError);
    EXPECT_LT(longitude, kLongitudeError);
}

TEST(SunAlmanac, StandsWhereTheOtherMethodSeesItFromAnyPlace)
{
    double worst = 0.0;
    for (double d = kFirstDay; d < kLastDay; d += 1.3)
    {
        const meeus::Sun other = meeus::SunAt(kJulianDayOfZero + d);
        for (const double lat : {-89.0, -33.9, 0.0, 55.6875, 89.0})
            for (const double lon : {-180.0, -105.2, 0.0, 12.625, 151.2})
            {
                const SunCalc::Result sun = SunCalc::Position(d, lon, lat);
                const meeus::Horizontal seen = meeus::FromPlace(other, lon, lat);
                const double across = Between(sun.azimuth, seen.azimuth) * meeus::Cos(seen.elevation);
                worst = std::max(worst, std::hypot(across, sun.trueElevation - seen.elevation));
            }
    }
    RecordProperty("worst", std::to_string(worst));
    EXPECT_LT(worst, kSkyError);
}
} // namespace

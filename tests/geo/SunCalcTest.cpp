#include "tests/geo/MeeusSun.h"
#include "tests/geo/SunAtUtc.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <limits>
#include <string>

namespace
{
constexpr int kMinInt = std::numeric_limits<int>::min();
constexpr int kMaxInt = std::numeric_limits<int>::max();

TEST(SunCalcDayNumber, CountsFromTheLastMidnightOf1999)
{
    EXPECT_EQ(DayOf({2000, 1, 1}), 1.0);
    EXPECT_EQ(DayOf({1999, 12, 31, 12}), 0.5);
    EXPECT_EQ(DayOf({1990, 4, 19}), -3543.0);
    EXPECT_DOUBLE_EQ(DayOf({2024, 2, 29, 23, 59, 59}), 8827 - 1 / 86400.0);
}

TEST(SunCalcDayNumber, FollowsTheCalendarFromMarch1900ToFebruary2100)
{
    using namespace std::chrono;
    const sys_days zero = 1999y / December / 31;
    for (sys_days day = 1900y / March / 1; day <= sys_days(2100y / February / 28); day += days(1))
    {
        const year_month_day date(day);
        const Utc midnight{int(date.year()), int(unsigned(date.month())), int(unsigned(date.day()))};
        ASSERT_EQ(DayOf(midnight), (day - zero).count()) << Text(midnight);
    }
}

TEST(SunCalcDayNumber, LetsDayAndTimeRunOver)
{
    EXPECT_EQ(DayOf({2023, 2, 31}), DayOf({2023, 3, 3}));
    EXPECT_EQ(DayOf({2023, 3, 0}), DayOf({2023, 2, 28}));
    EXPECT_EQ(DayOf({2023, 3, 1, 99}), DayOf({2023, 3, 5, 3}));
    EXPECT_DOUBLE_EQ(DayOf({2023, 3, 1, 0, -1}), DayOf({2023, 2, 28, 23, 59}));
}

TEST(SunCalcDayNumber, TakesQuotientsTowardZeroForMonthsAndYearsThatDoNotExist)
{
    EXPECT_EQ(DayOf({2023, 13, 1}), 367 * 2023 - 7 * 2024 / 4 + 275 * 13 / 9 + 1 - 730530);
    EXPECT_EQ(DayOf({2023, 0, 1}), 367 * 2023 - 7 * 2023 / 4 + 1 - 730530);
    EXPECT_EQ(DayOf({2023, -1, 1}), 367 * 2023 - 7 * 2023 / 4 - 30 + 1 - 730530);
    EXPECT_EQ(DayOf({0, 1, 1}), 30 + 1 - 730530);
    EXPECT_EQ(DayOf({-1, 1, 1}), -367 + 1 + 30 + 1 - 730530);
    EXPECT_EQ(DayOf({9999, 12, 31}), 367 * 9999 - 7 * 10000 / 4 + 275 * 12 / 9 + 31 - 730530);
}

TEST(SunCalcDayNumber, DoesNotOverflow)
{
    EXPECT_DOUBLE_EQ(SunCalc::DayNumber(1, 1, kMaxInt, 0, 0, 0), 365.25 * kMaxInt - 730498.75);
    EXPECT_DOUBLE_EQ(SunCalc::DayNumber(1, 1, kMinInt, 0, 0, 0), 365.25 * kMinInt - 730499.0);
    for (const int value : {kMinInt, kMaxInt})
        EXPECT_TRUE(std::isfinite(SunCalc::DayNumber(value, value, value, value, value, value))) << value;
}

TEST(SunCalcHelpers, ReduceRemovesWholeTurnsAndKeepsTheSign)
{
    EXPECT_EQ(SunCalc::Reduce(725.0), 5.0);
    EXPECT_EQ(SunCalc::Reduce(-725.0), -5.0);
    EXPECT_EQ(SunCalc::Reduce(-0.25), -0.25);
    EXPECT_EQ(SunCalc::Reduce(359.75), 359.75);
    EXPECT_EQ(SunCalc::Reduce(360.0), 0.0);
    EXPECT_EQ(SunCalc::Reduce(-360.0), 0.0);
}

TEST(SunCalcHelpers, ConvertAngles)
{
    EXPECT_EQ(SunCalc::DegToRad(180.0), 3.141592653589793);
    EXPECT_EQ(SunCalc::RadToDeg(3.141592653589793), 180.0);
    EXPECT_DOUBLE_EQ(SunCalc::DegToRad(-57.29577951308232), -1.0);
}

TEST(SunCalcHelpers, IntegerQuotientTruncatesTowardZero)
{
    EXPECT_EQ(SunCalc::IntegerQuotient(7, 4), 1.0);
    EXPECT_EQ(SunCalc::IntegerQuotient(-7, 4), -1.0);
    EXPECT_EQ(SunCalc::IntegerQuotient(8, 4), 2.0);
    EXPECT_EQ(SunCalc::IntegerQuotient(-3, 4), 0.0);
}

TEST(SunCalcRefraction, HasTwoFormulasThatMeetAt10Point2Degrees)
{
    EXPECT_DOUBLE_EQ(SunCalc::Refraction(45.0), 45.01617);
    EXPECT_NEAR(SunCalc::Refraction(0.0), 0.49224, 1e-5);
    EXPECT_DOUBLE_EQ(SunCalc::Refraction(-0.589), -0.589 + 0.58804392);
    EXPECT_DOUBLE_EQ(SunCalc::Refraction(-1.589), -1.589 + 0.436099178101);

    const double step = SunCalc::Refraction(std::nextafter(10.2, 11.0)) - SunCalc::Refraction(10.2);
    RecordProperty("step", std::to_string(step));
    EXPECT_NE(step, 0.0);
    EXPECT_LT(std::fabs(step), 0.00001);
}

TEST(SunCalcRefraction, NeverLowersTheSun)
{
    for (int i = -9000; i <= 9000; ++i)
        ASSERT_GE(SunCalc::Refraction(i / 100.0), i / 100.0);
}

TEST(SunCalcRefraction, StaysNearSaemundssonsFormulaAboveTheHorizon)
{
    double worst = 0.0;
    for (double h = -0.5; h <= 90.0; h += 0.01)
        worst = std::max(worst, std::fabs(SunCalc::Refraction(h) - h - meeus::RefractionAt(h)));
    RecordProperty("worst", std::to_string(worst));
    EXPECT_LT(worst, 0.011);
}

TEST(SunCalcPosition, StartsFromTheElementsOfDayZero)
{
    const SunCalc::Result sun = SunCalc::Position(0.0, 0.0, 0.0);
    EXPECT_EQ(sun.meanAnomaly, 356.047);
    EXPECT_EQ(sun.perihelion, 282.9404);
    EXPECT_EQ(sun.eccentricity, 0.016709);
    EXPECT_EQ(sun.obliquity, 23.4393);
    EXPECT_NEAR(sun.meanLongitude, 278.9874, 1e-10);
    EXPECT_NEAR(sun.gmst0, 98.9874, 1e-10);
}

// Paul Schlyter, Computing planetary positions - a tutorial with worked examples, at 15 E 60 N.
TEST(SunCalcPosition, AgreesWithSchlytersWorkedExample)
{
    const SunCalc::Result sun = SunAt({1990, 4, 19}, 15.0, 60.0);
    EXPECT_NEAR(sun.perihelion, 282.7735, 5e-5);
    EXPECT_NEAR(sun.eccentricity, 0.016713, 5e-7);
    EXPECT_NEAR(sun.meanAnomaly, 104.0653 - 360, 5e-5);
    EXPECT_NEAR(sun.meanLongitude, 26.8388, 5e-5);
    EXPECT_NEAR(sun.obliquity, 23.4406, 5e-5);
    EXPECT_NEAR(sun.eclipticLongitude, 28.6869, 1e-4);
    EXPECT_NEAR(sun.rightAscension, 26.6580, 1e-4);
    EXPECT_NEAR(sun.declination, 11.0084, 1e-4);
    EXPECT_NEAR(sun.gmst0, 206.8388, 1e-4);
    EXPECT_NEAR(sun.greenwichHourAngle, 195.1808 - 15, 1e-4);
    EXPECT_NEAR(sun.azimuth, 15.6767, 1e-4);
    EXPECT_NEAR(sun.trueElevation, -17.9570, 1e-4);
}

TEST(SunCalcPosition, HasANegativeGreenwichHourAngleForANegativeLocalOneAtLongitudeZero)
{
    // Before 2000 the time of day counts back from the next midnight.
    EXPECT_NEAR(SunAt({1990, 4, 19, 6}).greenwichHourAngle, -90.0, 0.5);
    EXPECT_NEAR(SunAt({1990, 4, 19, 18}).greenwichHourAngle, 90.0, 0.5);
    EXPECT_NEAR(SunAt({2020, 4, 19, 6}).greenwichHourAngle, 270.0, 0.5);
    for (double d = -4000.0; d < 20000.0; d += 0.37)
        ASSERT_LT(std::fabs(SunCalc::Position(d, 0.0, 0.0).greenwichHourAngle), 360.0) << d;
}

TEST(SunCalcPosition, HasTheSameGreenwichHourAngleAndSubSolarPointForEveryObserver)
{
    for (const Utc& t : {Utc{1990, 4, 19, 6}, Utc{2020, 4, 19, 6}, Utc{2024, 2, 11}})
    {
        const SunCalc::Result atZero = SunAt(t);
        for (const double lon : {-180.0, -105.1786, -0.5, 12.625, 180.0})
        {
            const SunCalc::Result elsewhere = SunAt(t, lon, 55.6875);
            EXPECT_NEAR(elsewhere.greenwichHourAngle, atZero.greenwichHourAngle, 1e-12) << Text(t) << ' ' << lon;
            EXPECT_EQ(elsewhere.declination, atZero.declination);
        }
        EXPECT_EQ(atZero.SubSolarPoint().lat, atZero.declination);
        EXPECT_EQ(atZero.SubSolarPoint().lon, -atZero.greenwichHourAngle);
    }
    // Still morning at the date line, the hour angle there negative; the one at Greenwich is not.
    EXPECT_LT(SunAt({2024, 2, 11}, -180.0, 55.0).azimuth, 180.0);
    EXPECT_NEAR(SunAt({2024, 2, 11}, -180.0, 55.0).greenwichHourAngle, 176.45, 0.01);
}

TEST(SunCalcPosition, PutsTheSunInTheZenithOfTheSubSolarPoint)
{
    for (double d = -3650.0; d < 18600.0; d += 0.37)
    {
        const geo::LatLon place = SunCalc::Position(d, 0.0, 0.0).SubSolarPoint();
        const SunCalc::Result overhead = SunCalc::Position(d, place.lon, place.lat);
        ASSERT_NEAR(overhead.trueElevation, 90.0, 1e-5) << d;
        ASSERT_NEAR(overhead.elevation, 90.0, 1e-5) << d;
    }
}

TEST(SunCalcPosition, KeepsTheSunAtItsDeclinationAroundThePoles)
{
    const SunCalc::Result north = SunAt({2024, 5, 1, 12}, 12.625, 90.0);
    EXPECT_NEAR(north.trueElevation, north.declination, 1e-10);
    const SunCalc::Result south = SunAt({2024, 5, 1, 12}, 12.625, -90.0);
    EXPECT_NEAR(south.trueElevation, -south.declination, 1e-10);
}

TEST(SunCalcPosition, StaysInItsRangesAndNeverReportsTheSunTooLow)
{
    for (double d = -40000.0; d < 3000000.0; d += 1234.567)
        for (const double lat : {-90.0, -33.9, 0.0, 55.6875, 90.0})
            for (const double lon : {-180.0, 0.0, 12.625, 180.0})
            {
                const SunCalc::Result sun = SunCalc::Position(d, lon, lat);
                ASSERT_GE(sun.elevation, sun.trueElevation);
                ASSERT_LE(std::fabs(sun.trueElevation), 90.0);
                ASSERT_GE(sun.azimuth, 0.0);
                ASSERT_LE(sun.azimuth, 360.0);
                ASSERT_LE(std::fabs(sun.declination), 23.5);
                ASSERT_LE(std::fabs(sun.rightAscension), 180.0);
                for (const double angle : {sun.eclipticLongitude, sun.gmst0, sun.meanAnomaly, sun.perihelion,
                                           sun.meanLongitude, sun.greenwichHourAngle})
                    ASSERT_LT(std::fabs(angle), 360.0);
            }
}

TEST(SunCalcPosition, TakesAnyNumber)
{
    for (const int value : {kMinInt, -1, 0, 9999, kMaxInt})
    {
        const SunCalc::Result sun = SunAt({value, value, value, value, value, value}, 12.625, 55.6875);
        EXPECT_EQ(std::isfinite(sun.greenwichHourAngle), std::abs(value / 2) < 10000) << value;
    }
    EXPECT_TRUE(std::isnan(SunCalc::Position(std::nan(""), 0.0, 0.0).declination));
    EXPECT_TRUE(std::isnan(SunCalc::Position(std::numeric_limits<double>::infinity(), 0.0, 0.0).elevation));
    EXPECT_TRUE(std::isnan(SunCalc::Position(0.0, std::nan(""), 0.0).azimuth));
    EXPECT_TRUE(std::isnan(SunCalc::Refraction(std::nan(""))));
}
} // namespace

// Whole results at many times and places, worked out beforehand from the formulas by another program.

#include "geo/SunCalc.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>

namespace
{
struct Seen
{
    double day;
    double lonDeg;
    double latDeg;
    // In the order of SunCalc::Result.
    std::array<double, 13> values;
};

constexpr Seen kSeen[] = {
    {9800.3125,
     12.625,
     55.6875,
     {8.65881842910239, 130.455242271783, -13.8135505046125, 216.893364267442, -145.444153949328, 38.6394643975001,
      295.237533380781, 283.401931016719, 0.0166977198403125, 23.4358081486562, 8.55889037352023, 218.6394643975,
      296.583618346829}},
    {-3543.0,
     15.0,
     60.0,
     {-17.1415256208062, 15.676697321318, 11.0083747350256, 28.6869894265287, 26.6580776793343, 206.838831864,
      -255.9347158655, 282.7735477295, 0.016713077993, 23.4405623709, -17.957006397289, 26.838831864,
      180.180754184666}},
    {-25000.71875,
     -105.1786,
     -33.9,
     {1681.02812218125, 201.6869846734, 20.8429501819083, 116.598124011527, 118.625415078034, 297.095165965749,
      -164.667862685797, 281.763028651547, 0.0167377758272813, 23.4482077560906, -76.0788279948179, 117.095165965749,
      -80.2802491122848}},
    {1000000.25,
     151.2,
     0.0,
     {23.4358464103101, 247.258656789382, -20.7800827477934, 244.810881697492, -117.079085178132, 66.585811838064,
      276.551900064689, 330.033911773375, 0.01555799971225, 23.082999910925, 23.3984770197928, 246.585811838064,
      273.664897016196}},
    {2900000.625,
     -180.0,
     89.0,
     {-18.9353777448417, 46.8056889186046, -21.7522514094105, 256.472953318733, -104.586205078936, 76.9242295948603,
      197.412650161423, 59.5115794334375, 0.013371099280625, 22.4060297773125, -22.4386137726008, 256.92422959486,
      46.5104346737958}},
    {-1900000.4,
     30.0,
     -20.0,
     {31.2300638885029, 253.270423280847, -24.114189180057, 270.729857047043, -89.2003565329574, 88.6243410592915,
      -284.838390103308, 193.4627311626, 0.0188959004604, 24.11627014252, 31.2033675862589, -91.3756589407085,
      33.8246976257766}},
    {18262.9,
     -70.5,
     -52.0,
     {28.4886899324293, 268.246596732486, -23.0833879624485, 279.629059188416, -79.5238208564116, 99.7664248407992,
      355.965960959649, 283.80046388115, 0.0166879794021, 23.43279292873, 28.4588574316767, 279.766424840799,
      143.290245697735}},
    {-1200000.75,
     100.0,
     45.0,
     {66.7833078710889, 205.795355277953, 23.5012359953752, 99.7497180962411, 100.641432994304, 281.425764486046,
      -125.002400193829, 226.428164679875, 0.01809020086325, 23.866860267225, 66.7763695047648, 101.425764486046,
      -89.2156685082582}},
};

TEST(SunTable, HasEveryValueAtEveryTimeAndPlace)
{
    for (const auto& [day, lonDeg, latDeg, values] : kSeen)
    {
        SCOPED_TRACE(day);
        const SunCalc::Result sun = SunCalc::Position(day, lonDeg, latDeg);
        // The sky multiplies the refraction far below the horizon.
        EXPECT_NEAR(sun.elevation, values[0], 1e-6);
        EXPECT_NEAR(sun.azimuth, values[1], 1e-8);
        EXPECT_NEAR(sun.declination, values[2], 1e-8);
        EXPECT_NEAR(sun.eclipticLongitude, values[3], 1e-8);
        EXPECT_NEAR(sun.rightAscension, values[4], 1e-8);
        EXPECT_NEAR(sun.gmst0, values[5], 1e-8);
        EXPECT_NEAR(sun.meanAnomaly, values[6], 1e-8);
        EXPECT_NEAR(sun.perihelion, values[7], 1e-8);
        EXPECT_NEAR(sun.eccentricity, values[8], 1e-12);
        EXPECT_NEAR(sun.obliquity, values[9], 1e-8);
        EXPECT_NEAR(sun.trueElevation, values[10], 1e-8);
        EXPECT_NEAR(sun.meanLongitude, values[11], 1e-8);
        EXPECT_NEAR(sun.greenwichHourAngle, values[12], 1e-8);
    }
}

TEST(SunTable, HasBothFormulasOfTheRefraction)
{
    constexpr std::array<double, 2> kRefracted[] = {
        {-20.0, -18.317907586791897},
        {-3.0, -2.7031885213891425},
        {1.0, 1.3688865544258335},
        {5.0, 5.1603797631297201},
        {9.5, 9.5915249120273511},
        {10.15, 10.239808280476383},
        {10.2, 10.289863335669581},
        {10.25, 10.33942127144072},
        {30.0, 30.02800726155839},
        {75.0, 75.004332738441605},
        {10.200000000000001, 10.289869081616757},
    };
    for (const auto& [trueElevation, elevation] : kRefracted)
        EXPECT_NEAR(SunCalc::Refraction(trueElevation), elevation, 1e-10) << trueElevation;
}

TEST(SunTable, PutsTheSunAtTheNadirOnTheOtherSideOfTheEarth)
{
    for (double day = -3650.0; day < 18600.0; day += 0.37)
    {
        const geo::LatLon place = SunCalc::Position(day, 0.0, 0.0).SubSolarPoint();
        ASSERT_NEAR(SunCalc::Position(day, place.lon + 180.0, -place.lat).trueElevation, -90.0, 1e-5) << day;
    }
}
} // namespace

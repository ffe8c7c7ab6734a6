#include "propagation/AreaInput.h"
#include "tests/support/TemporaryHome.h"

#include <gtest/gtest.h>

#include <climits>

namespace
{
using namespace propagation;

TEST(AreaTables, ListEveryGrid)
{
    for (int choice = 0; choice <= 10; ++choice)
        EXPECT_EQ(GridPoints(choice), 18 * (choice + 1));
}

TEST(AreaTables, ListEveryPower)
{
    const double expected[] = {0.001, 0.01, 0.05, 0.1, 0.25, 0.5, 1.0};
    for (int choice = 0; choice < 7; ++choice)
        EXPECT_EQ(TxPowerKw(choice), expected[choice]) << choice;
    EXPECT_EQ(TxPowerKw(INT_MIN), 0.001);
    EXPECT_EQ(TxPowerKw(INT_MAX), 1.0);
}

TEST(AreaTime, RoundsEveryHourFromMinuteThirtyOne)
{
    for (int month = 0; month < 12; ++month)
        for (int hour = 0; hour < 24; ++hour)
            for (int minute = 0; minute < 60; ++minute)
            {
                const int rounded = minute <= 30 ? hour : hour == 23 ? 0 : hour + 1;
                ASSERT_EQ(AreaTimeOf({}, {2026, month, 31, hour, minute, 59}), (AreaTime{month + 1, rounded}))
                    << month << ", " << hour << ':' << minute;
            }
}

TEST(AreaTime, IsTheStoredHourOfTheStoredMonthWhateverTheMinute)
{
    GreyzoneSettings stored;
    stored.timeMode = kOnce;
    for (int month = 0; month < 12; ++month)
        for (int hour = 0; hour < 24; ++hour)
        {
            stored.once = {2020, month, 24, hour, 59, 59};
            ASSERT_EQ(AreaTimeOf(stored, {2026, 5, 10, 13, 31, 0}), (AreaTime{month + 1, hour}));
        }
}

TEST(AreaInputText, HasEverySettingInItsOwnPlace)
{
    const TemporaryHome home;
    Settings settings = DefaultSettings();
    PropagationSettings& p = settings.propagation;
    p.engine = 0;
    p.parameter = 2;
    p.grid = 4;
    p.sunspotNumber = 83;
    p.frequency = 2;
    p.userFrequencyMHz = "1.9";
    p.manMadeNoise = "151.4";
    p.minTakeOffAngle = "2.25";
    p.requiredReliability = "61";
    p.requiredSnr = "47";
    p.multipathPowerTolerance = "5.125";
    p.maxMultipathDelay = "0.875";
    p.layerMultipliers = {"0.91", "0.82", "0.73", "0.64"};
    p.receiver = {"1.5", "123.5", ""};
    p.transmitter = {"3.375", "67.5", ""};
    p.txPower = 4;
    settings.centreLat = 1.5; // the map's centre is told, it need not be this
    settings.centreLon = 2.5;
    EXPECT_EQ(AreaInputText(settings, {-41.284, 174.776}, {7, 5}, {"txdir   \\tx.ant      ", "rxdir   \\rx.ant      "})
                  .utf8_string(),
              "Model    :VOACAP\n"
              "Colors   :Black    :Blue     :Ignore   :Ignore   :Red      :Black with shading\n"
              "Cities   :Receive.cty\n"
              "Nparms   :    1\n"
              "Parameter:SDBW     0\n"
              "Method   :   30\n"
              "Coeffs   :CCIR\n"
              "Transmit : 41.28S    174.78E   HOME                 Short\n"
              "Area     :    -180.0     180.0     -90.0      90.0\n"
              "Gridsize : 90    1\n"
              "Months   :  7.00   0.00   0.00   0.00   0.00   0.00   0.00   0.00   0.00\n"
              "Ssns     :     83      0      0      0      0      0      0      0      0\n"
              "Hours    :     05      0      0      0      0      0      0      0      0\n"
              "Freqs    : 10.100  0.000  0.000  0.000  0.000  0.000  0.000  0.000  0.000\n"
              "System   :  151     2.250   61   47     5.125     0.875\n"
              "Fprob    : 0.91 0.82 0.73 0.64\n"
              "Rec Ants :[rxdir   \\rx.ant      ]  gain=   1.5   123.5\n"
              "Tx Ants  :[txdir   \\tx.ant      ]  3.375 67.5  0.250\n");
}
} // namespace

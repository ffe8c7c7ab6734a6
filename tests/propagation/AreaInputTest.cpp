#include "propagation/AreaInput.h"

#include "propagation/NumberOf.h"
#include "tests/support/TemporaryHome.h"

#include <gtest/gtest.h>

#include <wx/tokenzr.h>

#include <fstream>
#include <iterator>

namespace
{
using namespace propagation;

const AntennaNames kSamples{"samples \\sample.00   ", "samples \\sample.00   "};

class AreaInputTest : public testing::Test
{
protected:
    const TemporaryHome home;
    Settings settings = DefaultSettings();

    geo::LatLon Centre() const { return {settings.centreLat, settings.centreLon}; }

    /// A line of the input, counted from 1.
    std::string Line(std::size_t number, const AreaTime& time = {11, 12}) const
    {
        const wxString text = AreaInputText(settings, Centre(), time, kSamples);
        EXPECT_TRUE(text.EndsWith("\n"));
        const wxArrayString lines = wxStringTokenize(text, "\n", wxTOKEN_RET_EMPTY);
        EXPECT_EQ(lines.size(), 18u);
        return lines[number - 1].utf8_string();
    }
};

TEST_F(AreaInputTest, IsCharacterByCharacterWhatVoacaplWasSeenToAccept)
{
    std::ifstream file(KAV_TEST_DATA "/area_36x36.voa", std::ios::binary);
    const std::string real{std::istreambuf_iterator<char>(file), {}};
    ASSERT_EQ(real.size(), 801u);
    EXPECT_EQ(AreaInputText(settings, Centre(), {11, 12}, kSamples).utf8_string(), real);
}

TEST_F(AreaInputTest, NamesTheHemisphereByALetter)
{
    settings.centreLat = -33.5;
    settings.centreLon = -70.25;
    EXPECT_EQ(Line(8), "Transmit : 33.50S    70.25W   HOME                 Short");
    settings.centreLat = 0;
    settings.centreLon = 0;
    EXPECT_EQ(Line(8), "Transmit : 0.00N    0.00E   HOME                 Short");
    settings.centreLat = 90;
    settings.centreLon = -180;
    EXPECT_EQ(Line(8), "Transmit : 90.00N    180.00W   HOME                 Short");
}

TEST_F(AreaInputTest, TakesTheGridFromTheTable)
{
    EXPECT_EQ(Line(10), "Gridsize : 36    1");
    settings.propagation.grid = 0;
    EXPECT_EQ(Line(10), "Gridsize : 18    1");
    settings.propagation.grid = 10;
    EXPECT_EQ(Line(10), "Gridsize : 198    1");
}

TEST_F(AreaInputTest, WritesTheTime)
{
    EXPECT_EQ(Line(11, {1, 0}), "Months   :  1.00   0.00   0.00   0.00   0.00   0.00   0.00   0.00   0.00");
    EXPECT_EQ(Line(13, {1, 0}), "Hours    :     00      0      0      0      0      0      0      0      0");
    EXPECT_EQ(Line(13, {1, 23}), "Hours    :     23      0      0      0      0      0      0      0      0");
}

TEST_F(AreaInputTest, WritesTheSunspotNumber)
{
    settings.propagation.sunspotNumber = 7;
    EXPECT_EQ(Line(12), "Ssns     :      7      0      0      0      0      0      0      0      0");
    settings.propagation.sunspotNumber = 200;
    EXPECT_EQ(Line(12), "Ssns     :     200      0      0      0      0      0      0      0      0");
}

TEST_F(AreaInputTest, TakesTheFrequencyFromTheTableOrTheUser)
{
    settings.propagation.frequency = 0;
    EXPECT_EQ(Line(14), "Freqs    : 3.500  0.000  0.000  0.000  0.000  0.000  0.000  0.000  0.000");
    settings.propagation.frequency = 8;
    settings.propagation.userFrequencyMHz = "5.357";
    EXPECT_EQ(Line(14), "Freqs    : 5.357  0.000  0.000  0.000  0.000  0.000  0.000  0.000  0.000");
    settings.propagation.userFrequencyMHz = "forty";
    EXPECT_EQ(Line(14), "Freqs    : 0.000  0.000  0.000  0.000  0.000  0.000  0.000  0.000  0.000");
}

TEST_F(AreaInputTest, WritesTheSystemValuesAndMultipliers)
{
    PropagationSettings& p = settings.propagation;
    p.manMadeNoise = "145";
    p.minTakeOffAngle = "0.1";
    p.requiredReliability = "50";
    p.requiredSnr = "-3";
    p.multipathPowerTolerance = "10";
    p.maxMultipathDelay = "15";
    p.layerMultipliers = {"1", "0.5", "", "0.7"};
    EXPECT_EQ(Line(15), "System   :  145     0.100   50   -3     10.000     15.000");
    EXPECT_EQ(Line(16), "Fprob    : 1.00 0.50 0.00 0.70");
}

TEST_F(AreaInputTest, WritesTheReceiverBeforeTheTransmitterThatCarriesThePower)
{
    settings.propagation.receiver = {"2.15", "270", ""};
    settings.propagation.transmitter = {"-1.25", "45.5", ""};
    settings.propagation.txPower = 6;
    const AntennaNames names{"tx      \\a           ", "rx      \\b           "};
    const wxString text = AreaInputText(settings, Centre(), {1, 1}, names);
    EXPECT_TRUE(text.EndsWith("Rec Ants :[rx      \\b           ]  gain=   2.1   270.0\n"
                              "Tx Ants  :[tx      \\a           ]  -1.250 45.5  1.000\n"))
        << text;
}

TEST_F(AreaInputTest, SurvivesAnyNumber)
{
    PropagationSettings& p = settings.propagation;
    p.manMadeNoise = "1e308";
    p.receiver.gain = "nan";
    p.transmitter.gain = "-inf";
    p.sunspotNumber = LONG_MIN;
    p.grid = p.frequency = p.txPower = INT_MAX;
    settings.centreLat = -1e300;
    EXPECT_GT(AreaInputText(settings, Centre(), {INT_MIN, INT_MAX}, kSamples).length(), 1400u);
}

TEST(AreaTables, GiveTheNearestEntryForAnIndexOutside)
{
    EXPECT_EQ(GridPoints(-1), 18);
    EXPECT_EQ(GridPoints(INT_MIN), 18);
    EXPECT_EQ(GridPoints(6), 126);
    EXPECT_EQ(GridPoints(11), 198);
    EXPECT_EQ(GridPoints(INT_MAX), 198);
    EXPECT_EQ(TxPowerKw(-1), 0.001);
    EXPECT_EQ(TxPowerKw(2), 0.05);
    EXPECT_EQ(TxPowerKw(3), 0.1);
    EXPECT_EQ(TxPowerKw(7), 1.0);
    PropagationSettings settings;
    settings.userFrequencyMHz = "10.5";
    for (const auto& [index, mhz] : {std::pair{-1, 3.5},
                                     {0, 3.5},
                                     {1, 7.0},
                                     {2, 10.1},
                                     {3, 14.0},
                                     {4, 18.1},
                                     {5, 21.0},
                                     {6, 24.9},
                                     {7, 28.0},
                                     {8, 10.5},
                                     {9, 10.5},
                                     {INT_MAX, 10.5}})
    {
        settings.frequency = index;
        EXPECT_EQ(FrequencyMHz(settings), mhz) << index;
    }
}

TEST(AreaTime, RoundsTheHourInRealTime)
{
    const GreyzoneSettings realTime;
    EXPECT_EQ(AreaTimeOf(realTime, {2026, 5, 10, 13, 30, 59}), (AreaTime{6, 13}));
    EXPECT_EQ(AreaTimeOf(realTime, {2026, 5, 10, 13, 31, 0}), (AreaTime{6, 14}));
    EXPECT_EQ(AreaTimeOf(realTime, {2026, 0, 31, 23, 30, 0}), (AreaTime{1, 23}));
}

TEST(AreaTime, KeepsTheMonthWhenMidnightIsRoundedTo)
{
    EXPECT_EQ(AreaTimeOf({}, {2026, 0, 31, 23, 45, 0}), (AreaTime{1, 0}));
    EXPECT_EQ(AreaTimeOf({}, {2026, 11, 31, 23, 59, 0}), (AreaTime{12, 0}));
}

TEST(AreaTime, IsTheStoredOneOtherwise)
{
    GreyzoneSettings stored;
    stored.once = {2020, 11, 24, 18, 45, 0};
    for (const int mode : {1, 2, -1})
    {
        stored.timeMode = mode;
        EXPECT_EQ(AreaTimeOf(stored, {2026, 5, 10, 13, 31, 0}), (AreaTime{12, 18}));
    }
    stored.once.month = INT_MAX;
    EXPECT_EQ(AreaTimeOf(stored, {}).month, INT_MAX);
}

TEST(NumberOf, IsTheNumberAtTheBeginningOrZero)
{
    for (const auto& [text, number] : {std::pair{"3.0", 3.0},
                                       {" -7.25 ", -7.25},
                                       {"3.0 dBi", 3.0},
                                       {"3,5", 3.0},
                                       {"+4", 4.0},
                                       {"1e3", 1000.0},
                                       {"", 0.0},
                                       {"   ", 0.0},
                                       {"abc", 0.0},
                                       {".", 0.0},
                                       {"-", 0.0},
                                       {"1e999", 0.0}})
        EXPECT_EQ(NumberOf(text), number) << text;
}
} // namespace

#include "propagation/ResultReader.h"

#include "tests/propagation/Results.h"
#include "tests/support/ScarceMemory.h"
#include "tests/support/TemporaryHome.h"

#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>
#include <random>
#include <sys/stat.h>

namespace
{
using namespace propagation;

class ResultReaderTest : public testing::Test
{
protected:
    const TemporaryHome home;

    std::optional<ResultGrid> Read(const std::string& bytes, Parameter parameter = Parameter::Sdbw) const
    {
        LineReader file(home.Write("result.vg1", bytes));
        EXPECT_TRUE(file.IsOk());
        return ReadResult(file, parameter);
    }

    /// The first value of a result of 18 points whose first line is given.
    double FirstValue(const std::string& line, Parameter parameter = Parameter::Sdbw) const
    {
        return Read(ResultHeader(" 18") + line + "\n", parameter)->values[0];
    }
};

TEST_F(ResultReaderTest, ReadsARealResult)
{
    LineReader file(KAV_TEST_DATA "/area_36x36.vg1");
    ASSERT_TRUE(file.IsOk());
    const auto grid = ReadResult(file, Parameter::Sdbw);
    ASSERT_TRUE(grid);
    EXPECT_EQ(grid->points, 36);
    ASSERT_EQ(grid->values.size(), 1296u);
    EXPECT_EQ(grid->values[0], -183.2);
    EXPECT_EQ(grid->minimum, *std::ranges::min_element(grid->values));
    EXPECT_EQ(grid->maximum, *std::ranges::max_element(grid->values));
}

TEST_F(ResultReaderTest, FindsEachParameterAtItsPlace)
{
    const std::string line =
        ResultLine(26, " 17.51").replace(74, 6, "-183.2").replace(86, 6, " -12.6").replace(99, 5, "0.875");
    EXPECT_EQ(FirstValue(line, Parameter::Sdbw), -183.2);
    EXPECT_EQ(FirstValue(line, Parameter::Snr), -12.6);
    EXPECT_EQ(FirstValue(line, Parameter::Muf), 17.51);
    EXPECT_EQ(FirstValue(line, Parameter::Rel), 0.875);
}

TEST_F(ResultReaderTest, ReadsExactlyTheCharactersOfAField)
{
    for (const auto& [parameter, start, value] : {std::tuple{Parameter::Sdbw, 74, 456789.0},
                                                  {Parameter::Snr, 86, 678901.0},
                                                  {Parameter::Muf, 26, 678901.0},
                                                  {Parameter::Rel, 99, 90123.0}})
    {
        std::string digits;
        for (int i = 0; i < 170; ++i)
            digits += static_cast<char>('0' + i % 10);
        const auto column = static_cast<std::size_t>(start);
        EXPECT_EQ(FirstValue(digits, parameter), value) << start;
        digits[column] = '-';
        EXPECT_EQ(FirstValue(digits, parameter), -std::fmod(value, parameter == Parameter::Rel ? 1e4 : 1e5)) << start;
    }
}

TEST_F(ResultReaderTest, ReadsFieldsThatTouchTheirNeighbours)
{
    EXPECT_EQ(FirstValue(ResultLine(68, " -56.1-183.2-170.6")), -183.2);
}

TEST_F(ResultReaderTest, NeedsEighteenPoints)
{
    EXPECT_TRUE(Read(ResultHeader(" 18")));
    EXPECT_FALSE(Read(ResultHeader(" 17")));
    EXPECT_FALSE(Read(ResultHeader("-36")));
    EXPECT_FALSE(Read(ResultHeader("abc")));
    EXPECT_FALSE(Read(ResultHeader("   ")));
    EXPECT_FALSE(Read(ResultHeader(" a36")));
}

TEST_F(ResultReaderTest, TakesTheCountFromThreeCharacters)
{
    EXPECT_EQ(Read(ResultHeader("0364"))->points, 36);
    EXPECT_EQ(Read(ResultHeader("36 "))->points, 36);
    EXPECT_EQ(Read(ResultHeader("36x"))->points, 36);
    EXPECT_EQ(Read(ResultHeader("999"))->points, 999);
    EXPECT_EQ(Read(ResultHeader("999"))->values.size(), 998001u);
}

TEST_F(ResultReaderTest, GivesNothingForFilesWithoutAThirdLine)
{
    for (const char* text : {"", "\n", "36", "one\ntwo\n", "one\n36 36\n", "\n\n\n"})
        EXPECT_FALSE(Read(text)) << text;
    EXPECT_EQ(Read("one\ntwo\n 36")->points, 36);
}

TEST_F(ResultReaderTest, StoresTheValuesInTheOrderOfTheFile)
{
    const auto grid = Read(SdbwResult(18, [](int row, int column) { return row * 18 + column - 200; }));
    for (std::size_t i = 0; i < 324; ++i)
        EXPECT_EQ(grid->values[i], static_cast<double>(i) - 200);
    EXPECT_EQ(grid->minimum, -200);
    EXPECT_EQ(grid->maximum, 123);
}

TEST_F(ResultReaderTest, LeavesWhatAShortFileLacksAtZero)
{
    const auto grid = Read(ResultHeader(" 18") + ResultLine(74, "-100.0") + "\n" + ResultLine(74, "-120.0") + "\n");
    EXPECT_EQ(grid->values[1], -120);
    EXPECT_EQ(grid->values[2], 0);
    EXPECT_EQ(grid->values[323], 0);
    EXPECT_EQ(grid->minimum, -120);
    EXPECT_EQ(grid->maximum, -100);
}

TEST_F(ResultReaderTest, StartsFromFixedLimitsWhenThereAreNoValues)
{
    const auto grid = Read(ResultHeader(" 18"));
    EXPECT_EQ(grid->minimum, 999.0);
    EXPECT_EQ(grid->maximum, -999.0);
}

TEST_F(ResultReaderTest, CountsALastLineWithoutALineFeedOnlyIfTheFieldIsWhole)
{
    const std::string header = ResultHeader(" 18");
    EXPECT_EQ(Read(header + ResultLine(74, "-183.2"))->values[0], -183.2);
    EXPECT_EQ(Read(header + ResultLine(74, "-183.2").substr(0, 80))->minimum, -183.2);
    EXPECT_EQ(Read(header + ResultLine(74, "-183.2").substr(0, 78))->minimum, 999.0);
}

TEST_F(ResultReaderTest, TakesWhatThereIsOfALineThatIsTooShort)
{
    EXPECT_EQ(FirstValue(""), 0);
    EXPECT_EQ(FirstValue(std::string(74, ' ')), 0);
    EXPECT_EQ(FirstValue(ResultLine(74, "-183.2").substr(0, 78)), -183);
}

TEST_F(ResultReaderTest, TakesUnreadableFieldsAsZero)
{
    for (const char* field : {"      ", "******", "abcdef", "------", ".     ", "1e999 ", "\t\t\t\t\t\t"})
        EXPECT_EQ(FirstValue(ResultLine(74, field)), 0) << field;
    EXPECT_EQ(FirstValue(ResultLine(74, std::string("\0-12.0", 6))), 0);
}

TEST_F(ResultReaderTest, ReadsNumbersAsTheToolkitDoes)
{
    for (const auto& [field, value] : {std::pair{"  12.5", 12.5},
                                       {"12.5  ", 12.5},
                                       {"12.5\r ", 12.5},
                                       {"12.5**", 12.5},
                                       {"+12.50", 12.5},
                                       {"1e308 ", 1e308},
                                       {"1e-320", 0.0},
                                       {"-1e308", -1e308}})
        EXPECT_EQ(FirstValue(ResultLine(74, field)), value) << field;
    EXPECT_TRUE(std::isnan(FirstValue(ResultLine(74, "   NaN"))));
    EXPECT_TRUE(std::isinf(FirstValue(ResultLine(74, "   inf"))));
}

TEST_F(ResultReaderTest, LeavesWhatIsNotANumberOutOfTheRange)
{
    const auto grid = Read(ResultHeader(" 18") + ResultLine(74, "   nan") + "\n" + ResultLine(74, "  -5.0") + "\n");
    EXPECT_EQ(grid->minimum, -5);
    EXPECT_EQ(grid->maximum, -5);
}

TEST_F(ResultReaderTest, ReadsLinesThatEndInCarriageReturnAndLineFeed)
{
    const std::string lineFeeds = SdbwResult(18, [](int row, int column) { return row - 10 * column; });
    std::string both;
    for (const char c : lineFeeds)
        both += c == '\n' ? std::string("\r\n") : std::string(1, c);
    EXPECT_EQ(Read(both)->values, Read(lineFeeds)->values);
}

TEST_F(ResultReaderTest, ReadsLinesAcrossItsBlocksWhateverTheirLength)
{
    for (const std::size_t length : {104, 127, 128, 129, 1000, 65535, 65536, 65537, 200000})
    {
        std::string text = ResultHeader(" 18");
        for (int i = 0; i < 5; ++i)
        {
            std::string line = ResultLine(74, SixCharacters(-i - 1));
            line.resize(length, 'x');
            text += line + "\n";
        }
        const auto grid = Read(text);
        for (std::size_t i = 0; i < 5; ++i)
            EXPECT_EQ(grid->values[i], -static_cast<double>(i) - 1) << length;
    }
}

TEST_F(ResultReaderTest, NeedsNoMemoryForLongLinesAndLongFiles)
{
    const std::string text = ResultHeader(" 18") + ResultLine(74, "-183.2");
    const wxString path = home.Write("huge", text);
    for (const std::string& ending : {std::string(), std::string("\n")})
    {
        home.Write("huge", text + ending);
        std::filesystem::resize_file(path.utf8_string(), 150 << 20); // filled with what is not a line feed
        const ScarceMemory memory;
        LineReader file(path);
        const auto grid = ReadResult(file, Parameter::Sdbw);
        ASSERT_TRUE(grid);
        EXPECT_EQ(grid->values[0], -183.2);
        EXPECT_EQ(grid->values[1], 0.0);
    }
}

TEST_F(ResultReaderTest, SurvivesNoise)
{
    std::mt19937 random(1);
    std::string noise(3 << 20, ' ');
    for (char& c : noise)
        c = static_cast<char>(random());
    EXPECT_FALSE(Read("\n\n\n" + noise));
    const auto grid = Read(ResultHeader("999") + noise);
    ASSERT_TRUE(grid);
    EXPECT_EQ(grid->values.size(), 998001u);
    EXPECT_EQ(grid->values.back(), 0.0);
}

TEST_F(ResultReaderTest, OpensOnlyOrdinaryFiles)
{
    EXPECT_FALSE(LineReader(home.Path("none")).IsOk());
    EXPECT_FALSE(LineReader("").IsOk());
    EXPECT_FALSE(LineReader(home.Path("")).IsOk());
    EXPECT_FALSE(LineReader("/dev/zero").IsOk());
    ASSERT_EQ(mkfifo(home.Path("pipe").fn_str(), 0600), 0);
    EXPECT_FALSE(LineReader(home.Path("pipe")).IsOk());
    const wxString name = wxString::FromUTF8("blåbær 地図.vg1");
    home.Write(name, "x");
    EXPECT_TRUE(LineReader(home.Path(name)).IsOk());
}

TEST(ParameterOf, IsSignalPowerForAnythingUnknown)
{
    EXPECT_EQ(ParameterOf(1), Parameter::Snr);
    EXPECT_EQ(ParameterOf(2), Parameter::Muf);
    EXPECT_EQ(ParameterOf(3), Parameter::Rel);
    for (const int other : {0, 4, 5, -1, INT_MAX, INT_MIN})
        EXPECT_EQ(ParameterOf(other), Parameter::Sdbw);
}
} // namespace

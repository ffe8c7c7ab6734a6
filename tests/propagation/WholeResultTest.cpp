#include "propagation/ResultReader.h"
#include "tests/propagation/Results.h"
#include "tests/support/TemporaryHome.h"

#include <gtest/gtest.h>

namespace
{
using namespace propagation;

class WholeResultTest : public testing::Test
{
protected:
    /// How many points of a result have no value.
    std::size_t WithoutValue(const std::string& bytes, Parameter parameter = Parameter::Sdbw) const
    {
        LineReader file(home.Write("result.vg1", bytes));
        return ReadResult(file, parameter)->withoutValue;
    }

    const TemporaryHome home;
};

TEST_F(WholeResultTest, HasAValueForEveryPoint)
{
    EXPECT_EQ(WithoutValue(SdbwResult(18, [](int, int) { return 0; })), 0u);
    for (const Parameter parameter : {Parameter::Sdbw, Parameter::Snr, Parameter::Muf, Parameter::Rel})
    {
        LineReader file(KAV_TEST_DATA "/area_36x36.vg1");
        EXPECT_EQ(ReadResult(file, parameter)->withoutValue, 0u);
    }
}

TEST_F(WholeResultTest, CountsTheLinesThatAreMissing)
{
    const std::string line = ResultLine(74, "-100.0") + "\n";
    std::string text = ResultHeader(" 18");
    EXPECT_EQ(WithoutValue(text), 324u);
    for (int i = 0; i < 100; ++i)
        text += line;
    EXPECT_EQ(WithoutValue(text), 224u);
    EXPECT_EQ(WithoutValue(text + line.substr(0, 80)), 223u);
    EXPECT_EQ(WithoutValue(text + line.substr(0, 79)), 224u); // a value cut in two is none
}

TEST_F(WholeResultTest, CountsTheFieldsThatHoldNoNumber)
{
    const char* const fields[] = {"******", "      ", "abcdef", "  -   ", "9e9999"};
    std::string text = ResultHeader(" 18");
    for (const char* const field : fields)
        text += ResultLine(74, field) + "\n";
    text += "short\n\n";
    for (int i = 0; i < 317; ++i)
        text += ResultLine(74, "   0.0") + "\n";
    EXPECT_EQ(WithoutValue(text), 7u);
    LineReader file(home.Path("result.vg1"));
    const auto grid = ReadResult(file, Parameter::Sdbw);
    EXPECT_EQ(grid->values, std::vector<double>(324, 0.0));
    EXPECT_EQ(grid->maximum, 0.0);
}
} // namespace

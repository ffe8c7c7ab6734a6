#include "rotator/Protocol.h"

#include <gtest/gtest.h>

namespace
{
using rotator::AzimuthIn;
using rotator::RangeIn;
using rotator::ReadReply;
using rotator::Reply;

// As Hamlib 4.5.4 answers.
constexpr const char* kPosition = "get_pos:\nAzimuth: 7.33\nElevation: 0.00\nRPRT 0\n";
constexpr const char* kState = "dump_state:\nrotctld Protocol Ver: 1\nRotor Model: 1\nMinimum Azimuth: -180.000000\n"
                               "Maximum Azimuth: 450.000000\nMinimum Elevation: 0.000000\n"
                               "Maximum Elevation: 90.000000\nSouth Zero: 0\nrot_type=AzEl\ndone\nRPRT 0\n";

Reply Body(const std::string& body)
{
    return {0, body, 0};
}

TEST(RotatorProtocol, AnAnswerIsNotWholeBeforeItsLastLineEnds)
{
    const std::string whole = kPosition;
    for (std::size_t length = 0; length < whole.size(); ++length)
        EXPECT_FALSE(ReadReply(whole.substr(0, length))) << length;
    EXPECT_EQ(ReadReply(whole)->length, whole.size());
}

TEST(RotatorProtocol, AnAnswerEndsWithItsCode)
{
    const auto reply = ReadReply("set_pos: 500 0\nRPRT -1\nget_pos:\nRPRT 0\n");
    ASSERT_TRUE(reply);
    EXPECT_EQ(reply->code, -1);
    EXPECT_EQ(reply->body, "set_pos: 500 0\n");
    EXPECT_EQ(reply->length, 23u);
    EXPECT_EQ(ReadReply("RPRT -6\n")->code, -6);
    EXPECT_EQ(ReadReply("stop:\r\nRPRT 0\r\n")->code, 0);
    EXPECT_FALSE(ReadReply("an RPRT 0\n")); // not at the beginning of a line
}

TEST(RotatorProtocol, ACodeThatIsNoNumberIsAProtocolError)
{
    for (const char* text : {"RPRT \n", "RPRT x\n", "RPRT 0x\n", "RPRT 99999999999999999999\n", "RPRT 0 0\n"})
        EXPECT_EQ(ReadReply(text)->code, -8) << text;
}

TEST(RotatorProtocol, FindsTheAzimuth)
{
    EXPECT_EQ(AzimuthIn(*ReadReply(kPosition)), 7.33);
    EXPECT_EQ(AzimuthIn(Body("Azimuth: -138.5\r\n")), -138.5);
    EXPECT_EQ(AzimuthIn(Body("Azimuth: 401")), 401);
}

TEST(RotatorProtocol, AnAzimuthIsAFiniteNumberInItsLine)
{
    for (const char* text : {"", "get_pos:\n", "Azimuth: \n", "Azimuth: x\n", "Azimuth: 7.3.3\n", "Azimuth: nan\n",
                             "Azimuth: inf\n", "Azimuth: 1e999\n", "Minimum Azimuth: 7\n", "Azimuth:\n7\n"})
        EXPECT_FALSE(AzimuthIn(Body(text))) << text;
}

TEST(RotatorProtocol, FindsTheRange)
{
    const auto range = RangeIn(*ReadReply(kState));
    ASSERT_TRUE(range);
    EXPECT_EQ(range->min, -180);
    EXPECT_EQ(range->max, 450);
}

TEST(RotatorProtocol, ARangeHasTwoEnds)
{
    for (const char* text : {"", "Minimum Azimuth: 0\n", "Maximum Azimuth: 0\n",
                             "Minimum Azimuth: 360\nMaximum Azimuth: 0\n", "Minimum Azimuth: 0\nMaximum Azimuth: 0\n"})
        EXPECT_FALSE(RangeIn(Body(text))) << text;
}

TEST(RotatorProtocol, CommandsAreLinesInTheExtendedForm)
{
    EXPECT_EQ(rotator::TurnCommand(41.5), "+\\set_pos 41.5 0\n");
    EXPECT_EQ(rotator::TurnCommand(-138.5), "+\\set_pos -138.5 0\n");
    EXPECT_STREQ(rotator::kAskPosition, "+\\get_pos\n");
    EXPECT_STREQ(rotator::kStop, "+\\stop\n");
}

TEST(RotatorProtocol, NamesErrors)
{
    EXPECT_EQ(rotator::ErrorText(-1), "position out of range");
    EXPECT_EQ(rotator::ErrorText(-5), "it does not answer its rotctld");
    EXPECT_EQ(rotator::ErrorText(-6), "rotctld can't reach it");
    EXPECT_EQ(rotator::ErrorText(-8), "protocol error");
    EXPECT_EQ(rotator::ErrorText(-77), "error -77");
    EXPECT_EQ(rotator::ErrorText(3), "error 3");
}
} // namespace

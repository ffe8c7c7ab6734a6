#include "tests/rotator/RotatorFixture.h"

#include <gmock/gmock.h>

namespace
{
using testing::ElementsAre;

/// What answers is no rotctld, or one in trouble.
class UnfitRotctld : public RotatorFixture
{
protected:
    /// Everything goes well until the order to turn, which is answered so.
    void ObeyBut(const std::string& answerToOrder)
    {
        server.emplace(
            [this, answerToOrder](const std::string& command)
            {
                ++commands;
                return command.starts_with("set_pos") ? answerToOrder : server->Obey(command);
            });
        Use(server->Address());
        ASSERT_TRUE(AwaitBearing());
    }

    void AnswerAlways(const std::string& answer)
    {
        server.emplace(
            [this, answer](const std::string&)
            {
                ++commands;
                return answer;
            });
        Use(server->Address());
    }

    std::string NoAnswer() const { return "Rotator: no answer from " + server->Address(); }

    std::atomic<int> commands = 0;
    std::optional<FakeRotctld> server;
};

TEST_F(UnfitRotctld, NobodyThereIsToldAtOnce)
{
    const std::string address = "127.0.0.1:" + std::to_string(FreePort());
    Use(address);
    antenna->Turn(41.5, now);
    ASSERT_TRUE(AwaitNews(1));
    EXPECT_THAT(news, ElementsAre("Rotator: no answer from " + address));
    EXPECT_TRUE(hasFailed);
    // Trying again is quiet.
    now += Rotator::kRetryPause;
    StepOften();
    EXPECT_EQ(news.size(), 1u);
}

TEST_F(UnfitRotctld, AnUnknownHostIsToldToo)
{
    Use("no-such-host.invalid");
    antenna->Turn(41.5, now);
    ASSERT_TRUE(AwaitNews(1));
    EXPECT_EQ(news[0], "Rotator: no answer from no-such-host.invalid:4533");
}

TEST_F(UnfitRotctld, ALookUpThatLastsCanBeLeft)
{
    // Destroyed while the name is being looked up.
    for (int i = 0; i < 20; ++i)
    {
        Use("no-such-host.invalid");
        antenna->Step(now);
    }
    EXPECT_TRUE(news.empty());
}

TEST_F(UnfitRotctld, NoAnswerToAnOrderIsToldWhenItsTimeIsUp)
{
    ObeyBut("");
    antenna->Turn(41.5, now);
    ASSERT_TRUE(Await([this] { return commands == 3; }));
    now += Rotator::kLimit - std::chrono::milliseconds(1);
    StepOften();
    EXPECT_TRUE(news.empty());
    EXPECT_TRUE(antenna->Bearing());
    now += std::chrono::milliseconds(1);
    ASSERT_TRUE(AwaitNews(1));
    EXPECT_THAT(news, ElementsAre(NoAnswer()));
    EXPECT_FALSE(antenna->Bearing());
    EXPECT_FALSE(antenna->Target());
}

TEST_F(UnfitRotctld, HalfALineIsNoAnswer)
{
    ObeyBut("set_pos: 41.5 0\nRPRT 0");
    antenna->Turn(41.5, now);
    ASSERT_TRUE(Await([this] { return commands == 3; }));
    StepOften();
    EXPECT_TRUE(news.empty());
    now += Rotator::kLimit;
    ASSERT_TRUE(AwaitNews(1));
    EXPECT_EQ(news[0], NoAnswer());
}

TEST_F(UnfitRotctld, AnOrderWaitsForSlowAnswersNoLongerThanItsTime)
{
    std::atomic<bool> mayAnswer = false;
    server.emplace(
        [&](const std::string& command) -> std::string
        {
            ++commands;
            while (!mayAnswer)
                std::this_thread::sleep_for(std::chrono::milliseconds(5));
            return command == "dump_state" ? server->Obey(command) : "";
        });
    Use(server->Address());
    antenna->Turn(41.5, now);
    ASSERT_TRUE(Await([this] { return commands == 1; }));
    now += Rotator::kLimit - std::chrono::seconds(1);
    mayAnswer = true;
    ASSERT_TRUE(Await([this] { return commands == 2; })); // where it points
    now += std::chrono::seconds(1);
    ASSERT_TRUE(AwaitNews(1));
    EXPECT_EQ(news[0], NoAnswer());
}

TEST_F(UnfitRotctld, ALostRotatorHasNoTarget)
{
    server.emplace();
    Use(server->Address());
    antenna->Turn(41.5, now);
    ASSERT_TRUE(AwaitNews(1));
    ASSERT_TRUE(antenna->Target());
    server->End();
    ASSERT_TRUE(Await([this] { return !antenna->Bearing(); }));
    EXPECT_FALSE(antenna->Target());
}

TEST_F(UnfitRotctld, GarbageInPlaceOfACodeIsAProtocolError)
{
    ObeyBut("\xFF\x01;;\nRPRT \xFF\n");
    antenna->Turn(41.5, now);
    ASSERT_TRUE(AwaitNews(1));
    EXPECT_EQ(news[0], "Rotator: protocol error");
}

TEST_F(UnfitRotctld, GarbageInPlaceOfAPositionIsNone)
{
    AnswerAlways("Azimuth: north\nRPRT 0\n");
    antenna->Turn(41.5, now);
    ASSERT_TRUE(AwaitNews(1));
    EXPECT_EQ(news[0], "Antenna to 41.5 degs");
    EXPECT_FALSE(antenna->Bearing());
}

TEST_F(UnfitRotctld, WhatNobodyAskedForEndsTheConnection)
{
    AnswerAlways("RPRT 0\nRPRT 0\n");
    antenna->Turn(41.5, now);
    ASSERT_TRUE(AwaitNews(1));
    EXPECT_EQ(news[0], NoAnswer());
}

TEST_F(UnfitRotctld, ClosingAtOnceIsNoAnswer)
{
    AnswerAlways(FakeRotctld::kClose);
    antenna->Turn(41.5, now);
    ASSERT_TRUE(AwaitNews(1));
    EXPECT_EQ(news[0], NoAnswer());
}

TEST_F(UnfitRotctld, AnswersForEverAreNoAnswer)
{
    AnswerAlways(FakeRotctld::kForEver);
    antenna->Turn(41.5, now);
    ASSERT_TRUE(AwaitNews(1)); // before its time is up
    EXPECT_EQ(news[0], NoAnswer());
}

TEST_F(UnfitRotctld, ALostConnectionIsToldOnceAndTriedAgainEverySoOften)
{
    AnswerAlways(FakeRotctld::kClose);
    ASSERT_TRUE(AwaitNews(1));
    EXPECT_EQ(server->connections, 1);
    now += Rotator::kRetryPause - std::chrono::milliseconds(1);
    StepOften();
    EXPECT_EQ(server->connections, 1);
    now += std::chrono::milliseconds(1);
    ASSERT_TRUE(Await([this] { return server->connections == 2; }));
    ASSERT_TRUE(AwaitInTime([this] { return server->connections == 3; }));
    EXPECT_EQ(news.size(), 1u);
}

TEST_F(UnfitRotctld, ALossIsToldAnewAfterAnAnswer)
{
    std::optional<Rotctld> rotctld(std::in_place);
    const int port = rotctld->port;
    Use(rotctld->Address());
    ASSERT_TRUE(AwaitBearing());
    rotctld.reset();
    ASSERT_TRUE(AwaitInTime([this] { return !news.empty(); }));
    EXPECT_FALSE(antenna->Bearing());
    rotctld.emplace(port);
    ASSERT_TRUE(AwaitInTime([this] { return antenna->Bearing().has_value(); }));
    rotctld.reset();
    ASSERT_TRUE(AwaitInTime([this] { return news.size() == 2; }));
}

TEST_F(UnfitRotctld, AnOrderThatFailedIsNotSentLater)
{
    const int port = FreePort();
    Use("127.0.0.1:" + std::to_string(port));
    antenna->Turn(41.5, now);
    ASSERT_TRUE(AwaitNews(1));
    const Rotctld rotctld(port);
    ASSERT_TRUE(AwaitInTime([this] { return antenna->Bearing().has_value(); }));
    now += Rotator::kPositionPeriod;
    StepOften();
    EXPECT_EQ(antenna->Bearing(), 0);
    EXPECT_FALSE(antenna->Target());
    EXPECT_EQ(news.size(), 1u);
}

TEST_F(UnfitRotctld, AnOrderTriesAtOnceWhateverThePause)
{
    const int port = FreePort();
    Use("127.0.0.1:" + std::to_string(port));
    ASSERT_TRUE(AwaitNews(1));
    const Rotctld rotctld(port);
    antenna->Turn(41.5, now);
    ASSERT_TRUE(AwaitNews(2));
    EXPECT_EQ(news.back(), "Antenna to 41.5 degs");
}
} // namespace

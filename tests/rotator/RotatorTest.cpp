#include "tests/rotator/RotatorFixture.h"

#include <gmock/gmock.h>

#include <algorithm>

namespace
{
using testing::ElementsAre;

/// A rotctld that obeys: the real one, or one with a rotator that a test sets.
class RotatorTest : public RotatorFixture
{
protected:
    /// Where it points a little later.
    double NextBearing()
    {
        now += Rotator::kPositionPeriod;
        StepOften();
        return antenna->Bearing().value_or(-1);
    }
};

TEST_F(RotatorTest, TurnsTheRealOne)
{
    const Rotctld rotctld;
    Use(rotctld.Address());
    ASSERT_TRUE(AwaitBearing());
    EXPECT_EQ(antenna->Bearing(), 0);
    antenna->Turn(12.5, now);
    ASSERT_TRUE(AwaitNews(1));
    EXPECT_THAT(news, ElementsAre("Antenna to 12.5 degs"));
    EXPECT_FALSE(hasFailed);
    EXPECT_EQ(antenna->Target(), 12.5);
    // It follows until it is there.
    std::vector<double> seen;
    ASSERT_TRUE(AwaitInTime(
        [&]
        {
            seen.push_back(*antenna->Bearing());
            return !antenna->Target();
        }));
    EXPECT_TRUE(std::ranges::is_sorted(seen));
    EXPECT_GT(seen.back(), 11.5);
    EXPECT_LE(seen.back(), 12.6);
}

TEST_F(RotatorTest, StopsTheRealOne)
{
    const Rotctld rotctld;
    Use(rotctld.Address());
    antenna->Turn(180, now);
    ASSERT_TRUE(AwaitNews(1));
    ASSERT_TRUE(AwaitInTime([this] { return antenna->Bearing().value_or(0) > 1; }));
    antenna->Stop(now);
    ASSERT_TRUE(AwaitNews(2));
    EXPECT_EQ(news.back(), "Antenna stopped");
    EXPECT_FALSE(antenna->Target());
    EXPECT_LT(NextBearing(), 170);
    EXPECT_EQ(NextBearing(), NextBearing());
}

TEST_F(RotatorTest, TakesTheNearerWayOnTheRealOne)
{
    const Rotctld rotctld;
    Use(rotctld.Address());
    antenna->Turn(350, now); // at azimuth -10
    ASSERT_TRUE(AwaitInTime([this] { return !news.empty() && !antenna->Target(); }));
    EXPECT_NEAR(*antenna->Bearing(), 350, 1.1);
}

TEST_F(RotatorTest, TellsARefusal)
{
    FakeRotctld rotctld;
    rotctld.state.code = -1;
    Use(rotctld.Address());
    antenna->Turn(41.5, now);
    ASSERT_TRUE(AwaitNews(1));
    EXPECT_THAT(news, ElementsAre("Rotator: position out of range"));
    EXPECT_TRUE(hasFailed);
    EXPECT_FALSE(antenna->Target());
    antenna->Stop(now);
    ASSERT_TRUE(AwaitNews(2));
    EXPECT_EQ(news.back(), "Rotator: position out of range");
    EXPECT_EQ(rotctld.connections, 1); // which is no reason to leave
}

TEST_F(RotatorTest, SendsTheAzimuthThatTurnsLess)
{
    FakeRotctld rotctld;
    rotctld.state.azimuth = 350;
    rotctld.state.min = 0;
    Use(rotctld.Address());
    antenna->Turn(41.5, now);
    ASSERT_TRUE(AwaitNews(1));
    EXPECT_EQ(rotctld.lastOrder, "set_pos 401.5 0");
    EXPECT_EQ(news.back(), "Antenna to 41.5 degs");
    EXPECT_EQ(antenna->Target(), 41.5);
}

TEST_F(RotatorTest, PointsAtBearings)
{
    FakeRotctld rotctld;
    Use(rotctld.Address());
    for (const auto& [azimuth, bearing] : {std::pair(-90.0, 270.0), {440.0, 80.0}, {359.5, 359.5}, {360.0, 0.0}})
    {
        rotctld.state.azimuth = azimuth;
        EXPECT_TRUE(AwaitInTime([&, wanted = bearing] { return antenna->Bearing() == wanted; })) << azimuth;
    }
}

TEST_F(RotatorTest, AsksForThePositionOnceASecond)
{
    FakeRotctld rotctld;
    Use(rotctld.Address());
    ASSERT_TRUE(AwaitBearing());
    now += std::chrono::milliseconds(999);
    StepOften();
    EXPECT_EQ(rotctld.positions, 1);
    now += std::chrono::milliseconds(1);
    ASSERT_TRUE(Await([&] { return rotctld.positions == 2; }));
    StepOften();
    EXPECT_EQ(rotctld.positions, 2);
}

TEST_F(RotatorTest, AnAntennaThatComesToRestElsewhereHasNoTarget)
{
    FakeRotctld rotctld; // says yes and does not move
    Use(rotctld.Address());
    antenna->Turn(90, now);
    ASSERT_TRUE(AwaitNews(1));
    EXPECT_EQ(antenna->Target(), 90);
    EXPECT_TRUE(AwaitInTime([this] { return !antenna->Target(); }));
}

TEST_F(RotatorTest, TheLastOrderCounts)
{
    FakeRotctld rotctld;
    Use(rotctld.Address());
    antenna->Turn(10, now);
    antenna->Turn(20, now);
    ASSERT_TRUE(AwaitNews(1));
    StepOften();
    EXPECT_THAT(news, ElementsAre("Antenna to 20.0 degs"));
    EXPECT_EQ(rotctld.orders, 1);
}

TEST_F(RotatorTest, FindsARotctldThatWasStartedLater)
{
    const int port = FreePort();
    Use("localhost:" + std::to_string(port));
    ASSERT_TRUE(AwaitNews(1));
    const Rotctld rotctld(port);
    EXPECT_TRUE(AwaitInTime([this] { return antenna->Bearing().has_value(); }));
    EXPECT_EQ(news.size(), 1u);
}
} // namespace

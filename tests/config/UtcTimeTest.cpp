#include "config/UtcTime.h"

#include <gtest/gtest.h>

namespace
{
TEST(UtcTime, CountsMonthsFromZero)
{
    EXPECT_EQ(UtcTimeOf(0), (UtcTime{1970, 0, 1, 0, 0, 0}));
    EXPECT_EQ(UtcTimeOf(951827696), (UtcTime{2000, 1, 29, 12, 34, 56}));
}

TEST(UtcTime, FollowsTheClockThatIsSet)
{
    const Clock before = SetClock([] { return std::time_t{1793446245}; });
    EXPECT_EQ(UtcNow(), (UtcTime{2026, 9, 31, 11, 30, 45}));
    EXPECT_NE(SetClock(before), before);
}

TEST(UtcTime, IsTheSystemsTimeUnlessAClockIsSet)
{
    const std::time_t earliest = std::time(nullptr);
    const UtcTime now = UtcNow();
    std::time_t second = earliest;
    while (!(UtcTimeOf(second) == now) && second <= std::time(nullptr))
        ++second;
    EXPECT_EQ(UtcTimeOf(second), now) << "at " << earliest;
}
} // namespace

#include "geo/Truncate.h"

#include <gtest/gtest.h>

#include <cmath>

namespace
{
constexpr auto kMin32 = std::numeric_limits<std::int32_t>::min();
constexpr auto kMax32 = std::numeric_limits<std::int32_t>::max();
constexpr auto kMin64 = std::numeric_limits<std::int64_t>::min();

// A compiler refuses here what is undefined, even where the hardware happens to give the right thing.
static_assert(geo::TruncateToInt32(2147483648.0) == kMin32);
static_assert(geo::TruncateToInt64(9223372036854775808.0) == kMin64);

TEST(Truncate, GoesTowardZeroOnBothSides)
{
    EXPECT_EQ(geo::TruncateToInt32(2.9), 2);
    EXPECT_EQ(geo::TruncateToInt32(-2.9), -2);
    EXPECT_EQ(geo::TruncateToInt32(-0.9), 0);
}

TEST(Truncate, KeepsTheLargestValuesThatFit)
{
    EXPECT_EQ(geo::TruncateToInt32(2147483647.9), kMax32);
    EXPECT_EQ(geo::TruncateToInt32(-2147483648.0), kMin32);
    EXPECT_EQ(geo::TruncateToInt64(9223372036854774784.0), 9223372036854774784);
}

TEST(Truncate, GivesTheSmallestIntegerForWhatDoesNotFit)
{
    EXPECT_EQ(geo::TruncateToInt32(2147483648.0), kMin32);
    EXPECT_EQ(geo::TruncateToInt32(-1e300), kMin32);
    EXPECT_EQ(geo::TruncateToInt32(INFINITY), kMin32);
    EXPECT_EQ(geo::TruncateToInt32(NAN), kMin32);
    EXPECT_EQ(geo::TruncateToInt64(9223372036854775808.0), kMin64);
    EXPECT_EQ(geo::TruncateToInt64(NAN), kMin64);
}
} // namespace

#pragma once

#include <cstdint>
#include <limits>

namespace geo
{
/**
 * Truncates toward zero to an integer, whatever the value: what does not fit, NaN included, becomes the smallest
 * integer.
 *
 * A plain conversion of such values is undefined in C++. The smallest integer is what x86-64 hardware gives; it lies
 * outside every range that the callers test for ("1 <= distance < limit", "inside the picture").
 */
template <class Integer>
constexpr Integer Truncate(double value)
{
    constexpr double kLowest = static_cast<double>(std::numeric_limits<Integer>::min());
    // The smallest integer is a power of two, so its negative is exactly the first value too large.
    return value >= kLowest && value < -kLowest ? static_cast<Integer>(value) : std::numeric_limits<Integer>::min();
}

constexpr std::int32_t TruncateToInt32(double value)
{
    return Truncate<std::int32_t>(value);
}

constexpr std::int64_t TruncateToInt64(double value)
{
    return Truncate<std::int64_t>(value);
}
} // namespace geo

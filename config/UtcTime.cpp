#include "config/UtcTime.h"

namespace
{
Clock theClock = [] { return std::time(nullptr); };
} // namespace

UtcTime UtcTimeOf(std::time_t seconds)
{
    std::tm fields{};
    gmtime_r(&seconds, &fields);
    return {fields.tm_year + 1900, fields.tm_mon, fields.tm_mday, fields.tm_hour, fields.tm_min, fields.tm_sec};
}

UtcTime UtcNow()
{
    return UtcTimeOf(theClock());
}

Clock SetClock(Clock clock)
{
    const Clock before = theClock;
    theClock = clock;
    return before;
}

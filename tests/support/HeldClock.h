#pragma once

#include "config/UtcTime.h"

#include <ctime>

/// The program's clock, which stands still while this lives. One at a time.
class HeldClock
{
public:
    explicit HeldClock(std::time_t start)
    {
        now = start;
        m_before = SetClock([] { return now; });
    }
    HeldClock(const HeldClock&) = delete;
    HeldClock& operator=(const HeldClock&) = delete;
    ~HeldClock() { SetClock(m_before); }

    static inline std::time_t now; ///< what the clock says, in seconds since 1970; to be set forward

private:
    Clock m_before;
};

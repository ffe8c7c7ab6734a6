#pragma once

#include "config/Endings.h"

/// A shell starts what runs in the background with some of these ignored, and so does nohup. The tests send them.
inline void TakeDefaultSignals()
{
    for (const int ending : kEndingSignals)
        std::signal(ending, SIG_DFL);
}

#pragma once

#include <wx/app.h>
#include <wx/utils.h>

/// Lets all pending events happen.
inline void LetEventsHappen()
{
    for (int i = 0; i < 5; ++i)
    {
        wxTheApp->Yield(true);
        wxTheApp->ProcessPendingEvents();
        wxTheApp->ProcessIdle();
    }
}

/// Lets events happen until something has become true, a minute at most.
template <class Condition>
bool AwaitEvents(Condition condition)
{
    for (int i = 0; i < 3000; ++i, wxMilliSleep(20))
    {
        LetEventsHappen();
        if (condition())
            return true;
    }
    return false;
}

#pragma once

#include <cstdlib>
#include <unistd.h>
#include <vector>

/// Starts this program again on a display of its own where KAV_OWN_DISPLAY names the script that provides one.
inline void TakeOwnDisplay(char** argv)
{
    const char* const script = std::getenv("KAV_OWN_DISPLAY");
    if (!script)
        return;
    std::vector<char*> command{const_cast<char*>(script)};
    for (char** argument = argv; *argument; ++argument)
        command.push_back(*argument);
    command.push_back(nullptr);
    unsetenv("KAV_OWN_DISPLAY");
    execv(command[0], command.data());
    std::abort();
}

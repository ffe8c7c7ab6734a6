#pragma once

#include <algorithm>
#include <chrono>
#include <fstream>
#include <string>
#include <thread>
#include <vector>

#include <sys/types.h>

/// The process numbers that a file holds.
inline std::vector<pid_t> ProcessesIn(const std::string& path)
{
    std::vector<pid_t> processes;
    std::ifstream file(path);
    for (pid_t process = 0; file >> process;)
        processes.push_back(process);
    return processes;
}

inline bool IsRunning(pid_t process)
{
    // One that has ended may still be listed: nobody has asked how.
    std::ifstream file("/proc/" + std::to_string(process) + "/stat");
    std::string text;
    std::getline(file, text, ')');
    char blank = ' ';
    char state = 'X';
    file.get(blank).get(state);
    return state != 'X' && state != 'Z';
}

/// Waits for something to become true, two minutes at most.
template <class Condition>
bool AwaitQuietly(Condition condition)
{
    for (int i = 0; i < 2400; ++i, std::this_thread::sleep_for(std::chrono::milliseconds(50)))
        if (condition())
            return true;
    return false;
}

/// Whether they all end, sooner or later.
inline bool HaveEnded(const std::vector<pid_t>& processes)
{
    return AwaitQuietly([&] { return std::ranges::none_of(processes, IsRunning); });
}

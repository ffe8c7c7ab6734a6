#pragma once

#include <cstdlib>
#include <filesystem>
#include <string>

/// The program that was built beside these tests, with sanitizers if they were; commands of a shell know it as $KAVMAP.
inline const char* ProgramUnderTest()
{
    return std::getenv("KAVMAP");
}

/// What its window is called.
inline constexpr char kTitle[] = "Kavmap V3.1.9 Linux QQ0QQQ";

/// Sets $KAVMAP before any test runs.
inline const int kProgramIsKnown =
    setenv("KAVMAP", std::filesystem::read_symlink("/proc/self/exe").replace_filename("kavmap").c_str(), 1);

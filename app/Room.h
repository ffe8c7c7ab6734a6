#pragma once

#include <string>

namespace app
{
/// What the program needs of what the system may limit.
struct Room
{
    std::size_t bytes; ///< of address space, beside what it has when it starts
    int files;         ///< that are open at a time
};

/// Enough for the toolkit, its fonts and a small map; less, and the toolkit's libraries would end the program by a
/// trap.
inline constexpr Room kRoomForPictures{std::size_t{96} << 20, 6};
inline constexpr Room kRoomForWindow{std::size_t{160} << 20, 16};

/// Why the program can't start, for it has less than that; empty if it has. Makes do with little where there is a
/// limit.
std::string LackOf(const Room& room);
} // namespace app

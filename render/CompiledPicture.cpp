#include "render/CompiledPicture.h"

#include <algorithm>
#include <cstdlib>

namespace render
{
namespace
{
/// Printable characters run from blank to tilde.
constexpr std::size_t kCharacters = 95;

constexpr std::size_t kKeyLength = 3;

std::size_t KeyNumber(const char* key)
{
    const auto digit = [key](std::size_t i) { return static_cast<std::size_t>(key[i] - ' '); };
    return (digit(0) * kCharacters + digit(1)) * kCharacters + digit(2);
}

Argb ColourOf(const char* line)
{
    constexpr std::size_t kDigits = kKeyLength + 4; // after " c #"
    return 0xFF000000U | static_cast<Argb>(std::strtoul(line + kDigits, nullptr, 16));
}
} // namespace

PixelGrid UnpackXpm(const char* const* xpm)
{
    char* rest = nullptr;
    const auto width = std::strtoul(*xpm, &rest, 10);
    const auto height = std::strtoul(rest, &rest, 10);
    const char* const* const firstRow = xpm + 1 + std::strtoul(rest, nullptr, 10);

    std::vector<Argb> colours(kCharacters * kCharacters * kCharacters);
    std::for_each(xpm + 1, firstRow, [&](const char* line) { colours[KeyNumber(line)] = ColourOf(line); });

    PixelGrid grid{static_cast<int>(width), static_cast<int>(height), std::vector<Argb>(width * height)};
    auto pixel = grid.pixels.begin();
    for (const char* const* row = firstRow; row != firstRow + height; ++row)
        for (std::size_t x = 0; x < width; ++x)
            *pixel++ = colours[KeyNumber(*row + kKeyLength * x)];
    return grid;
}
} // namespace render

#include "geo/Locator.h"

#include <cmath>

namespace geo
{
namespace
{
/// The three characters of one direction, from a position counted in fields.
struct Axis
{
    char field;
    char square;
    char subsquare;
};

Axis AxisOf(double fields)
{
    const double squares = (fields - std::floor(fields)) * 10;
    const double subsquares = (squares - std::floor(squares)) * 24;
    const auto character = [](char first, double index) { return static_cast<char>(first + static_cast<int>(index)); };
    return {character('A', fields), character('0', squares), character('A', subsquares)};
}

bool IsBetween(char c, char first, char last)
{
    return first <= c && c <= last;
}
} // namespace

std::optional<Locator> LocatorOf(LatLon position)
{
    const auto [lat, lon] = position;
    if (!(lat >= -90 && lat <= 90 && lon >= -180 && lon <= 180))
        return std::nullopt;
    double lonFields = (lon + 180) / 20;
    if (lonFields >= 18)
        lonFields -= 18;
    const Axis x = AxisOf(lonFields);
    const Axis y = AxisOf((lat + 90) / 10);
    return Locator{x.field, y.field, x.square, y.square, x.subsquare, y.subsquare};
}

std::optional<LatLon> CentreOfLocator(std::string_view locator)
{
    static constexpr std::array<std::array<char, 2>, 6> kRanges{
        {{'A', 'R'}, {'A', 'R'}, {'0', '9'}, {'0', '9'}, {'A', 'X'}, {'A', 'X'}}};
    if (locator.size() != kRanges.size())
        return std::nullopt;
    std::array<int, 6> index{};
    for (std::size_t i = 0; i < kRanges.size(); ++i)
    {
        if (!IsBetween(locator[i], kRanges[i][0], kRanges[i][1]))
            return std::nullopt;
        index[i] = locator[i] - kRanges[i][0];
    }
    return LatLon{index[1] * 10 - 90 + index[3] + index[5] / 24.0 + 0.020833333333333332,
                  index[0] * 20 - 180 + index[2] * 2 + index[4] / 12.0 + 0.041666666666666664};
}
} // namespace geo

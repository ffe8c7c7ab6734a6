#include "app/NamedPlace.h"

#include "config/Configuration.h"
#include "render/TextFile.h"
#include "render/TextLabels.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace app
{
namespace
{
using geo::LatLon;

constexpr const char* kLabelFiles[] = {"prefixes.dat", "cities.dat", "countries.dat"};

/// A capital and its small country have one name and, for an antenna, one place.
constexpr double kSamePlaceDeg = 1.0;

std::optional<LatLon> Position(const wxString& text)
{
    LatLon place{};
    if (!text.BeforeFirst(',').Strip(wxString::both).ToCDouble(&place.lat) ||
        !text.AfterFirst(',').Strip(wxString::both).ToCDouble(&place.lon))
        return std::nullopt;
    const bool isOnEarth = std::abs(place.lat) <= 90.0 && std::abs(place.lon) <= 180.0;
    return isOnEarth ? std::optional(place) : std::nullopt;
}

std::optional<LatLon> Locator(const wxString& text)
{
    wxString locator = text.Upper();
    LatLon place{};
    if (Configuration::LocatorToLatLon(place.lat, place.lon, locator) == 0)
        return std::nullopt;
    return place;
}

bool AreClose(LatLon one, LatLon other)
{
    return std::abs(one.lat - other.lat) < kSamePlaceDeg && std::abs(one.lon - other.lon) < kSamePlaceDeg;
}

void AddLabels(std::vector<LatLon>& places, const wxString& name, std::wstring_view labels)
{
    render::ForEachLine(
        labels,
        [&](std::wstring_view line)
        {
            const auto label = render::ParseTextLabel(line);
            if (!label || !label->text.IsSameAs(name, false))
                return;
            if (std::ranges::none_of(places, [&](LatLon known) { return AreClose(known, label->place); }))
                places.push_back(label->place);
        });
}
} // namespace

std::vector<LatLon> PlacesNamed(const wxString& text)
{
    for (const auto& read : {Position, Locator})
        if (const auto place = read(text))
            return {*place};
    std::vector<LatLon> places;
    for (const char* const file : kLabelFiles)
        if (const auto labels = render::ReadLabelFile(file))
            AddLabels(places, text, *labels);
    return places;
}
} // namespace app

#include "reports/Places.h"

#include "config/Configuration.h"
#include "render/PlottedSquares.h"
#include "render/TextFile.h"
#include "render/TextLabels.h"

#include <wx/tokenzr.h>

#include <algorithm>
#include <cmath>
#include <set>

namespace reports
{
namespace
{
constexpr std::size_t kSquareLength = 4;

bool IsPosition(geo::LatLon at)
{
    return std::abs(at.lat) <= 90 && std::abs(at.lon) <= 180;
}

std::optional<double> Number(const wxString& text)
{
    double number = 0.0;
    return wxString(text).Trim().Trim(false).ToCDouble(&number) ? std::optional(number) : std::nullopt;
}

/// A position that two texts give.
std::optional<geo::LatLon> Position(const wxString& latText, const wxString& lonText)
{
    const auto lat = Number(latText);
    const auto lon = Number(lonText);
    if (!lat || !lon || !IsPosition({*lat, *lon}))
        return std::nullopt;
    return geo::LatLon{*lat, *lon};
}

std::optional<geo::LatLon> CentreOf(wxString locator)
{
    geo::LatLon at{};
    return Configuration::LocatorToLatLon(at.lat, at.lon, locator) ? std::optional(at) : std::nullopt;
}

bool IsBlank(std::wstring_view line)
{
    return std::ranges::all_of(line, [](wchar_t c) { return c == L' ' || c == L'\t'; });
}

/// Whether more of the lines that say something name a place than do not.
bool LooksLikeLabels(std::wstring_view text)
{
    std::ptrdiff_t ahead = 0;
    render::ForEachLine(text,
                        [&](std::wstring_view line)
                        {
                            if (!IsBlank(line) && !line.starts_with(L'#'))
                                ahead += LabelledPlace(line) ? 1 : -1;
                        });
    return ahead > 0;
}

bool IsLabelFile(std::wstring_view text, const wxString& fileName)
{
    const wxString ending = fileName.Right(4).Lower();
    return ending == ".dat" || (ending != ".log" && LooksLikeLabels(text));
}
} // namespace

std::optional<Place> LabelledPlace(std::wstring_view line)
{
    const wxArrayString fields = wxStringTokenize(wxString(line.data(), line.size()), ";", wxTOKEN_STRTOK);
    const auto at = fields.size() >= 6 ? Position(fields[4], fields[5]) : std::nullopt;
    return at ? std::optional(Place{fields[1], *at}) : std::nullopt;
}

Places PlacesOfLabels(std::wstring_view text)
{
    Places places;
    std::size_t number = 0;
    render::ForEachLine(text,
                        [&](std::wstring_view line)
                        {
                            ++number;
                            if (IsBlank(line) || !render::ParseTextLabel(line))
                                return;
                            if (auto place = LabelledPlace(line))
                                places.found.push_back(*std::move(place));
                            else
                                places.linesWithout.push_back(number);
                        });
    return places;
}

Places SquaresOfLog(std::wstring_view text)
{
    Places places;
    std::set<wxString> seen;
    for (std::size_t i = 0; i + kSquareLength <= text.size(); ++i)
    {
        const std::wstring_view characters = text.substr(i, kSquareLength);
        if (!render::SquareNamed(characters))
            continue;
        const wxString name = wxString(characters.data(), characters.size()).Upper();
        if (seen.insert(name).second)
            places.found.push_back({name, *CentreOf(name)});
    }
    return places;
}

Places PlacesOf(std::wstring_view text, const wxString& fileName)
{
    return IsLabelFile(text, fileName) ? PlacesOfLabels(text) : SquaresOfLog(text);
}

std::optional<Place> WrittenPlace(const wxString& text)
{
    const wxArrayString words = wxStringTokenize(text, " \t,;", wxTOKEN_STRTOK);
    const auto at = words.size() == 1   ? CentreOf(words[0].Upper())
                    : words.size() == 2 ? Position(words[0], words[1])
                                        : std::nullopt;
    return at ? std::optional(Place{text, *at}) : std::nullopt;
}
} // namespace reports

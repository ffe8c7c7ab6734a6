#include "render/TextFile.h"

#include <gtest/gtest.h>

#include <wx/arrstr.h>

#include <cmath>
#include <map>

namespace
{
struct Place
{
    double lat;
    double lon;
};

/// The places of a shipped label file by name.
std::map<wxString, Place> PlacesIn(const wxString& name)
{
    std::map<wxString, Place> places;
    const auto text = render::ReadTextFile(KAV_DATA_DIR "/" + name);
    if (text)
        render::ForEachLine(*text,
                            [&places](std::wstring_view line)
                            {
                                const wxArrayString fields = wxSplit(wxString(std::wstring(line)), ';', 0);
                                Place place{};
                                if (fields.size() > 5 && fields[4].ToCDouble(&place.lat) &&
                                    fields[5].ToCDouble(&place.lon))
                                    places[fields[1]] = place;
                            });
    return places;
}

TEST(ShippedLabels, NameThePartsThatLieFarFromTheirCountries)
{
    const auto places = PlacesIn("countries.dat");
    const std::map<wxString, Place> expected{{"French Guiana", {4, -53}},
                                             {wxString::FromUTF8("Réunion"), {-21.1, 55.5}},
                                             {"Mayotte", {-12.8, 45.2}},
                                             {"Svalbard", {78.5, 16}}};
    for (const auto& [name, place] : expected)
    {
        const auto found = places.find(name);
        ASSERT_NE(found, places.end()) << name;
        EXPECT_LT(std::hypot(found->second.lat - place.lat, found->second.lon - place.lon), 1) << name;
    }
}
} // namespace

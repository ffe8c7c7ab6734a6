#include "FuzzedBytes.h"

#include "config/Configuration.h"
#include "reports/Places.h"

#include <cmath>
#include <cstring>

namespace
{
/// What a locator says must come back from its middle.
void TryLocator(wxString text)
{
    geo::LatLon at{};
    if (Configuration::LocatorToLatLon(at.lat, at.lon, text) == 0)
        return;
    wxString again("AA00AA");
    Configuration::LatLonToLocator(again, at.lat, at.lon);
    fuzz::Demand(again == text);
}

/// Any two numbers at all; a text of any length takes as much as it has room for.
void TryPosition(std::string_view bytes)
{
    geo::LatLon at{};
    std::memcpy(&at.lat, bytes.data(), sizeof(double));
    std::memcpy(&at.lon, bytes.data() + sizeof(double), sizeof(double));
    wxString locator('?', bytes.size() % 8);
    Configuration::LatLonToLocator(locator, at.lat, at.lon);
    fuzz::Demand(locator.length() == bytes.size() % 8);
}
} // namespace

// Locators and places as users write them.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view bytes = fuzz::BytesOf(data, size);
    const wxString text = wxString::From8BitData(bytes.data(), bytes.size());
    TryLocator(text);
    if (size >= 2 * sizeof(double))
        TryPosition(bytes);
    if (const auto place = reports::WrittenPlace(text))
        fuzz::Demand(std::abs(place->at.lat) <= 90 && std::abs(place->at.lon) <= 180);
    return 0;
}

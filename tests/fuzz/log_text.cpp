#include "FuzzedBytes.h"

#include "render/PlottedSquares.h"
#include "render/TextFile.h"
#include "reports/Places.h"

#include <cmath>

// The squares that a log names, their outlines on a map, and their list.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const MapView view = render::MakeMapView(DefaultSettings(), 15);
    const std::wstring text = render::DecodeText(fuzz::BytesOf(data, size));
    std::size_t named = 0;
    for (std::size_t i = 0; i < text.size(); ++i)
        if (const auto corner = render::SquareNamed(std::wstring_view(text).substr(i, 4)))
        {
            ++named;
            fuzz::Demand(corner->lat >= -90 && corner->lat <= 89 && corner->lon >= -180 && corner->lon <= 178);
            render::OutlineOfSquare(view, *corner);
        }
    const reports::Places places = reports::PlacesOf(text, "contacts.log");
    fuzz::Demand(places.found.size() <= named && places.found.empty() == (named == 0));
    return 0;
}

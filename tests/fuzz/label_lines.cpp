#include "FuzzedBytes.h"

#include "render/TextFile.h"
#include "render/TextLabels.h"
#include "reports/Places.h"

#include <algorithm>

// A label file as the map and as the table of bearings take it, from its bytes to its places.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static fuzz::NamedBytes file;
    const auto text = render::ReadLabelFile(file.Hold(fuzz::BytesOf(data, size)));
    fuzz::Demand(text.has_value());
    std::size_t lines = 0;
    render::ForEachLine(*text,
                        [&](std::wstring_view line)
                        {
                            ++lines;
                            if (const auto label = render::ParseTextLabel(line))
                                fuzz::Demand(label->text.length() <= 1000);
                        });
    const reports::Places places = reports::PlacesOfLabels(*text);
    fuzz::Demand(places.found.size() + places.linesWithout.size() <= lines);
    fuzz::Demand(std::ranges::all_of(places.linesWithout, [&](std::size_t line) { return line <= lines; }));
    return 0;
}

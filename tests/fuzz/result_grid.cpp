#include "FuzzedBytes.h"

#include "propagation/ResultReader.h"

#include <cmath>

// All four parameters of an area result.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static fuzz::NamedBytes file;
    const wxString name = file.Hold(fuzz::BytesOf(data, size));
    for (int setting = 0; setting < 4; ++setting)
    {
        propagation::LineReader lines(name);
        const auto grid = propagation::ReadResult(lines, propagation::ParameterOf(setting));
        if (!grid)
            continue;
        const auto points = static_cast<std::size_t>(grid->points);
        fuzz::Demand(points >= 18 && points <= 999 && grid->values.size() == points * points);
        fuzz::Demand(grid->withoutValue <= grid->values.size());
    }
    return 0;
}

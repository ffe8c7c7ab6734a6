#include "FuzzedBytes.h"

#include "propagation/ResultReader.h"

#include <cmath>

// An area result; the length tells which of the four parameters.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static fuzz::NamedBytes file;
    const wxString name = file.Hold(fuzz::BytesOf(data, size));
    propagation::LineReader lines(name);
    const auto grid = propagation::ReadResult(lines, propagation::ParameterOf(static_cast<int>(size % 4)));
    if (!grid)
        return 0;
    const auto points = static_cast<std::size_t>(grid->points);
    fuzz::Demand(points >= 18 && points <= 999 && grid->values.size() == points * points);
    fuzz::Demand(grid->withoutValue <= grid->values.size());
    return 0;
}

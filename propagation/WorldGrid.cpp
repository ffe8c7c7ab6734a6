#include "propagation/WorldGrid.h"

#include "propagation/Regrid.h"

#include <algorithm>

namespace propagation
{
std::vector<double> WorldValues(const ResultGrid& result)
{
    std::vector<double> values(std::size_t{kWorldColumns} * kWorldRows);
    std::vector<double> work(3 * kWorldColumns + kWorldRows);
    std::vector<int> indexWork(kWorldColumns + kWorldRows);
    Regrid(result.points, result.points, result.values, kWorldColumns, kWorldRows, values, kLinear, kLinear, work,
           indexWork);
    return values;
}

std::vector<std::uint32_t> WorldClasses(const std::vector<double>& values, const ClassScale& scale)
{
    std::vector<std::uint32_t> classes(values.size());
    auto out = classes.begin();
    for (auto rowEnd = values.end(); rowEnd != values.begin(); rowEnd -= kWorldColumns)
        out = std::transform(rowEnd - kWorldColumns, rowEnd, out,
                             [&](double value) { return ClassOf(value, scale.thresholds); });
    return classes;
}
} // namespace propagation

#include "propagation/ResultReader.h"

#include "config/PropagationParameters.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>

namespace propagation
{
namespace
{
constexpr int kFewestPoints = 18;
constexpr std::size_t kLongestField = 6;

/// Where a field stands in each line.
struct Field
{
    std::size_t start;
    std::size_t length;
};

Field FieldOf(Parameter parameter)
{
    const auto& data = config::kParameters[static_cast<std::size_t>(parameter)];
    return {data.column, data.width};
}

/// A field of a line as text of its own; shorter where the line ends before it.
class FieldText
{
public:
    FieldText(std::string_view line, Field field)
    {
        line.copy(m_text.data(), field.length, std::min(field.start, line.size()));
    }

    /// As the toolkit converts texts to numbers: what is too large or too small is no number.
    std::optional<double> Number() const
    {
        errno = 0;
        char* end = nullptr;
        const double number = std::strtod(m_text.data(), &end);
        return errno == ERANGE || end == m_text.data() ? std::nullopt : std::optional(number);
    }

    int Integer() const { return static_cast<int>(std::strtol(m_text.data(), nullptr, 10)); }

private:
    std::array<char, kLongestField + 1> m_text{};
};

int ReadPoints(LineReader& file)
{
    std::optional<LineReader::Line> line;
    for (int i = 0; i < 3; ++i)
        line = file.Next();
    return line ? FieldText(line->text, {0, 3}).Integer() : 0;
}

void ReadValues(LineReader& file, Field field, ResultGrid& grid)
{
    grid.withoutValue = grid.values.size();
    for (double& value : grid.values)
    {
        const auto line = file.Next();
        if (!line || (!line->ended && line->text.size() < field.start + field.length))
            return;
        const auto number = FieldText(line->text, field).Number();
        grid.withoutValue -= number.has_value();
        value = number.value_or(0.0);
        grid.minimum = std::min(grid.minimum, value);
        grid.maximum = std::max(grid.maximum, value);
    }
}
} // namespace

Parameter ParameterOf(int setting)
{
    const auto index = static_cast<unsigned>(setting); // what is negative becomes large
    return index <= static_cast<unsigned>(Parameter::Rel) ? static_cast<Parameter>(index) : Parameter::Sdbw;
}

std::optional<ResultGrid> ReadResult(LineReader& file, Parameter parameter)
{
    ResultGrid grid;
    grid.points = ReadPoints(file);
    if (grid.points < kFewestPoints)
        return std::nullopt;
    grid.values.resize(static_cast<std::size_t>(grid.points) * static_cast<std::size_t>(grid.points));
    ReadValues(file, FieldOf(parameter), grid);
    return grid;
}
} // namespace propagation

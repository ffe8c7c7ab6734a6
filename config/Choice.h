#pragma once

#include <wx/arrstr.h>

#include <algorithm>
#include <cstddef>
#include <iterator>

namespace config
{
/// An entry of a list in the options dialog and what it stands for. Settings hold the index of the chosen entry, so the
/// order of such a table is part of the settings file's format.
template <class Value>
struct Choice
{
    const char* label; ///< null for an entry that a file may name but the dialog does not offer
    Value value;
};

/// The entry of a table that a setting chooses; the nearest one for an index outside of it.
template <class Table>
constexpr const auto& Chosen(const Table& table, int index)
{
    return table[static_cast<std::size_t>(std::clamp(index, 0, static_cast<int>(std::size(table)) - 1))];
}

/// What the dialog offers, in order.
template <class Table>
wxArrayString LabelsOf(const Table& table)
{
    wxArrayString labels;
    for (const auto& entry : table)
        if (entry.label)
            labels.Add(entry.label);
    return labels;
}
} // namespace config

#pragma once

#include "geo/MapFrame.h"
#include "render/Pixel.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace render
{
/// Neighbouring pixels of a row that a layer marks in one colour.
struct Run
{
    std::uint16_t x;
    std::uint16_t length;
    Argb colour;

    /// Blends it onto a row of an opaque map.
    void BlendOnto(std::span<Argb> row, std::uint8_t alpha) const;
};

/// What a layer blends onto a map, without the sheet it was drawn on: the runs of each row.
class LayerMarks
{
public:
    explicit LayerMarks(std::uint8_t alpha) : m_alpha(alpha) {}

    /// Begins the next row, the first from the top to begin with; Add() belongs to it.
    void BeginRow() { m_rows.push_back(m_runs.size()); }
    void Add(const Run& run) { m_runs.push_back(run); }

    /// Calls visit(pixel) for every pixel that is marked.
    template <class Visit>
    void ForEachPixel(Visit visit) const
    {
        for (std::size_t y = 0; y < m_rows.size(); ++y)
            for (const Run& run : Row(y))
                for (int x = run.x; x < run.x + run.length; ++x)
                    visit(geo::Pixel{x, static_cast<int>(y)});
    }

    /// Blends a row onto that of the map; one that was not begun has no marks.
    void BlendOnto(int y, std::span<Argb> row) const;

private:
    std::span<const Run> Row(std::size_t y) const;

    std::vector<Run> m_runs;
    std::vector<std::size_t> m_rows; ///< the first run of each
    std::uint8_t m_alpha;
};
} // namespace render

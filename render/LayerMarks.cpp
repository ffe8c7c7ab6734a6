#include "render/LayerMarks.h"

#include "render/Blend.h"

namespace render
{
void Run::BlendOnto(std::span<Argb> row, std::uint8_t alpha) const
{
    for (Argb& pixel : row.subspan(x, length))
        pixel = BlendPixel(pixel, colour, alpha);
}

std::span<const Run> LayerMarks::Row(std::size_t y) const
{
    const std::size_t end = y + 1 < m_rows.size() ? m_rows[y + 1] : m_runs.size();
    return std::span(m_runs).subspan(m_rows[y], end - m_rows[y]);
}

void LayerMarks::BlendOnto(int y, std::span<Argb> row) const
{
    const auto index = static_cast<std::size_t>(y);
    if (index < m_rows.size())
        for (const Run& run : Row(index))
            run.BlendOnto(row, m_alpha);
}
} // namespace render

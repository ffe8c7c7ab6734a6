#include "render/MarkedPixels.h"

#include <cairo.h>
#include <wx/graphics.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>

namespace render
{
namespace
{
/// The toolkit lays the middle of a pen between pixels where its width is even, half a pixel off in x and in y, and
/// rounds its outline to 1/256 pixel.
constexpr double kBeside = 0.75;

/// Long lines run over many pixels. Those of a crowded sheet are looked up by squares of so many pixels a side.
constexpr int kTile = 16;

int LastPixel(double last, int count)
{
    return static_cast<int>(std::min(std::floor(last), count - 1.0));
}
} // namespace

/// The pixels that a line could mark.
class MarkedPixels::Strip
{
public:
    Strip(geo::Pixel from, geo::Pixel to, double reach)
        : top(std::min(from.y, to.y) - reach),
          bottom(std::max(from.y, to.y) + reach),
          m_from(from),
          m_left(std::min(from.x, to.x) - reach),
          m_right(std::max(from.x, to.x) + reach)
    {
        if (to.y == from.y)
            return;
        m_perRow = static_cast<double>(to.x - from.x) / (to.y - from.y);
        m_beside = reach * std::hypot(1.0, m_perRow);
    }

    Run InRow(int y) const
    {
        const double x = m_from.x + (y - m_from.y) * m_perRow;
        return {std::max({x - m_beside, m_left, 0.0}), std::min(x + m_beside, m_right)};
    }

    Run InRows(int first, int last) const
    {
        const Run a = InRow(first);
        const Run b = InRow(last);
        return {std::min(a.first, b.first), std::max(a.last, b.last)};
    }

    const double top, bottom;

private:
    geo::Pixel m_from;
    double m_left, m_right;
    double m_perRow = 0;
    double m_beside = std::numeric_limits<double>::infinity();
};

MarkedPixels::MarkedPixels(wxDC& dc)
{
    auto* const context = static_cast<cairo_t*>(dc.GetGraphicsContext()->GetNativeContext());
    cairo_surface_t* const sheet = cairo_get_target(context);
    if (cairo_surface_get_type(sheet) != CAIRO_SURFACE_TYPE_IMAGE ||
        cairo_image_surface_get_format(sheet) != CAIRO_FORMAT_A8)
        return;
    m_pixels = cairo_image_surface_get_data(sheet);
    m_stride = cairo_image_surface_get_stride(sheet);
    m_columns = cairo_image_surface_get_width(sheet);
    m_rows = cairo_image_surface_get_height(sheet);
    m_markedTiles.resize(Tiles(m_columns) * Tiles(m_rows));
}

bool MarkedPixels::HaveLine(geo::Pixel from, geo::Pixel to, int width)
{
    if (!HaveSome(from, to))
        return false;
    const Strip strip(from, to, width / 2.0 + kBeside);
    const int bottom = LastPixel(strip.bottom, m_rows);
    for (int y = static_cast<int>(std::ceil(std::max(strip.top, 0.0))); y <= bottom;)
    {
        const int first = y;
        const int band = y / kTile;
        y = std::min(bottom, band * kTile + kTile - 1) + 1;
        if (HaveTiles(band, strip.InRows(first, y - 1)))
            continue;
        for (int row = first; row < y; ++row)
            if (!HaveRun(row, strip.InRow(row)))
                return false;
    }
    return m_pixels != nullptr;
}

/// Whether those of a few on the way are marked: most lines that are new show it there.
bool MarkedPixels::HaveSome(geo::Pixel from, geo::Pixel to) const
{
    constexpr int kSteps = 32;
    const double dx = static_cast<double>(to.x - from.x) / kSteps;
    const double dy = static_cast<double>(to.y - from.y) / kSteps;
    for (int i = 0; i <= kSteps; ++i)
        if (!HavePixel(from.x + i * dx, from.y + i * dy))
            return false;
    return true;
}

/// True outside the picture, where nothing can be marked.
bool MarkedPixels::HavePixel(double x, double y) const
{
    if (x < 0 || y < 0 || x >= m_columns || y >= m_rows)
        return true;
    return m_pixels[static_cast<std::ptrdiff_t>(y) * m_stride + static_cast<std::ptrdiff_t>(x)] != 0;
}

bool MarkedPixels::HaveTiles(int band, Run run)
{
    const int last = LastPixel(run.last, m_columns);
    for (int x = static_cast<int>(std::min(run.first, m_columns - 1.0)); x <= last; x += kTile - x % kTile)
        if (!IsTileMarked(static_cast<std::size_t>(x / kTile), static_cast<std::size_t>(band)))
            return false;
    return true;
}

bool MarkedPixels::IsTileMarked(std::size_t column, std::size_t row)
{
    unsigned char& isMarked = m_markedTiles[row * Tiles(m_columns) + column];
    if (isMarked == 0)
    {
        const int left = static_cast<int>(column) * kTile;
        const int top = static_cast<int>(row) * kTile;
        const Run run{static_cast<double>(left), left + kTile - 1.0};
        for (int y = top; y < std::min(top + kTile, m_rows); ++y)
            if (!HaveRun(y, run))
                return false;
        isMarked = 1;
    }
    return true;
}

bool MarkedPixels::HaveRun(int y, Run run) const
{
    const int first = static_cast<int>(std::ceil(std::min(run.first, static_cast<double>(m_columns))));
    const int last = LastPixel(run.last, m_columns);
    return last < first || !std::memchr(m_pixels + y * m_stride + first, 0, static_cast<std::size_t>(last - first) + 1);
}

std::size_t MarkedPixels::Tiles(int pixels) const
{
    return static_cast<std::size_t>(pixels + kTile - 1) / kTile;
}
} // namespace render

#pragma once

#include "geo/MapFrame.h"

#include <wx/dc.h>

#include <cstddef>
#include <vector>

namespace render
{
/// Which pixels of a sheet in one ink are marked already, while more and more are. A line over these alone need not be
/// drawn.
class MarkedPixels
{
public:
    /// @param[in] dc draws on the sheet; of anything else nothing is known, and nothing counts as marked.
    explicit MarkedPixels(wxDC& dc);

    /// Whether all pixels are marked that a line between two pixels, in a pen of that width, could mark.
    bool HaveLine(geo::Pixel from, geo::Pixel to, int width);

private:
    /// Pixels of a row from the first to the last; none where that is less.
    struct Run
    {
        double first, last;
    };
    class Strip;

    bool HavePixel(double x, double y) const;
    bool HaveSome(geo::Pixel from, geo::Pixel to) const;
    bool HaveTiles(int band, Run run);
    bool HaveRun(int y, Run run) const;
    bool IsTileMarked(std::size_t column, std::size_t row);
    std::size_t Tiles(int pixels) const;

    const unsigned char* m_pixels = nullptr;
    std::ptrdiff_t m_stride = 0;
    int m_columns = 0;
    int m_rows = 0;
    std::vector<unsigned char> m_markedTiles; ///< 1 where all of a tile is known to be marked; row by row
};
} // namespace render

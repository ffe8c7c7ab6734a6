#pragma once

#include "geo/MapFrame.h"
#include "render/MarkedPixels.h"

#include <wx/dc.h>
#include <wx/geometry.h>

#include <array>
#include <cstddef>

namespace render
{
/**
 * Strokes line segments with the pen of a drawing context: the same pixels as drawing them one by one, but several at a
 * time, which is much faster.
 *
 * Strokes without smoothing close gaps of one pixel between parts of one path that lie side by side. Therefore a path
 * is only made of segments that join and never turn back in y: there each row of pixels is crossed once. Pens whose
 * bends would lose pixels draw one by one. Segments that cannot touch the picture are left out, and so is everything
 * after a segment that a wide pen makes as large as the picture. So are long ones that run over marked pixels alone.
 *
 * The last segments reach the picture when this object goes.
 */
class ChainStroker
{
public:
    /// @param[in] dc draws on a bitmap, without smoothing; its pen must stay as it is while this object lives.
    explicit ChainStroker(wxDC& dc);
    ~ChainStroker() { Stroke(); }
    ChainStroker(const ChainStroker&) = delete;
    ChainStroker& operator=(const ChainStroker&) = delete;

    /// Adds a segment between two pixels; both ends belong to it.
    void operator()(geo::Pixel from, geo::Pixel to);

private:
    static constexpr std::size_t kMaxPoints = 100;
    static constexpr std::size_t kOneSegment = 2;

    bool MissesPicture(geo::Pixel from, geo::Pixel to) const;
    bool MarksNothingNew(geo::Pixel from, geo::Pixel to);
    bool CoversPicture(geo::Pixel point) const;
    bool Continues(geo::Pixel from, int direction) const;
    void Add(geo::Pixel point);
    void Stroke();

    wxDC& m_dc;
    int m_reach;           ///< how far the pen marks the surroundings of a segment, at most
    std::size_t m_longest; ///< points of a path
    wxSize m_size;
    MarkedPixels m_marked;
    bool m_isCovered = false; ///< the whole picture, by what was added
    std::array<wxPoint2DDouble, kMaxPoints> m_points;
    std::size_t m_count = 0;
    geo::Pixel m_last{};
    int m_direction = 0; ///< of the chain in y: -1 up, 1 down, 0 level so far
};
} // namespace render

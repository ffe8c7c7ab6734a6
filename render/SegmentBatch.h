#pragma once

#include "geo/MapFrame.h"

#include <wx/dc.h>
#include <wx/geometry.h>

#include <array>
#include <cstddef>

namespace render
{
/**
 * Strokes line segments with the pen of a drawing context, a hundred at a time.
 *
 * That is several times as fast as drawing them one by one and leaves the same pixels; with many more at a time the
 * toolkit begins to round differently. Segments that cannot touch the picture are left out.
 *
 * The last segments reach the picture when this object goes.
 */
class SegmentBatch
{
public:
    /// @param[in] dc draws on a bitmap; its pen must stay as it is while this object lives.
    explicit SegmentBatch(wxDC& dc);
    ~SegmentBatch() { Stroke(); }
    SegmentBatch(const SegmentBatch&) = delete;
    SegmentBatch& operator=(const SegmentBatch&) = delete;

    /// Adds a segment between two pixels; both ends belong to it.
    void operator()(geo::Pixel from, geo::Pixel to);

private:
    static constexpr std::size_t kSegments = 100;

    bool MissesPicture(geo::Pixel from, geo::Pixel to) const;
    void Stroke();

    wxDC& m_dc;
    geo::Pixel m_lowest; ///< what lies beyond these is out of the pen's reach
    geo::Pixel m_highest;
    std::array<wxPoint2DDouble, kSegments> m_from;
    std::array<wxPoint2DDouble, kSegments> m_to;
    std::size_t m_count = 0;
};
} // namespace render

#include "render/SegmentBatch.h"

#include <wx/graphics.h>

#include <algorithm>

namespace render
{
SegmentBatch::SegmentBatch(wxDC& dc) : m_dc(dc)
{
    const wxSize size = dc.GetSize();
    const int reach = std::max(dc.GetPen().GetWidth(), 1);
    m_lowest = {-reach, -reach};
    m_highest = {size.x + reach, size.y + reach};
}

void SegmentBatch::operator()(geo::Pixel from, geo::Pixel to)
{
    if (MissesPicture(from, to))
        return;
    m_from[m_count] = wxPoint2DDouble(from.x, from.y);
    m_to[m_count] = wxPoint2DDouble(to.x, to.y);
    if (++m_count == kSegments)
        Stroke();
}

bool SegmentBatch::MissesPicture(geo::Pixel from, geo::Pixel to) const
{
    return std::max(from.x, to.x) < m_lowest.x || std::max(from.y, to.y) < m_lowest.y ||
           std::min(from.x, to.x) > m_highest.x || std::min(from.y, to.y) > m_highest.y;
}

void SegmentBatch::Stroke()
{
    if (m_count > 0)
        m_dc.GetGraphicsContext()->StrokeLines(m_count, m_from.data(), m_to.data());
    m_count = 0;
}
} // namespace render

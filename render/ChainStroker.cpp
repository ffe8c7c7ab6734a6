#include "render/ChainStroker.h"

#include "render/Layer.h"

#include <wx/graphics.h>

#include <algorithm>

namespace render
{
ChainStroker::ChainStroker(wxDC& dc)
    : m_dc(dc), m_reach(std::max(dc.GetPen().GetWidth(), 1)), m_size(DrawableArea(dc).GetSize())
{
}

void ChainStroker::operator()(geo::Pixel from, geo::Pixel to)
{
    if (MissesPicture(from, to))
        return;
    const int direction = (to.y > from.y) - (to.y < from.y);
    if (!Continues(from, direction))
    {
        Stroke();
        Add(from);
    }
    Add(to);
    if (direction != 0)
        m_direction = direction;
}

bool ChainStroker::MissesPicture(geo::Pixel from, geo::Pixel to) const
{
    return std::max(from.x, to.x) < -m_reach || std::max(from.y, to.y) < -m_reach ||
           std::min(from.x, to.x) > m_size.x + m_reach || std::min(from.y, to.y) > m_size.y + m_reach;
}

bool ChainStroker::Continues(geo::Pixel from, int direction) const
{
    return m_count > 0 && m_count < kMaxPoints && from == m_last && direction * m_direction >= 0;
}

void ChainStroker::Add(geo::Pixel point)
{
    m_points[m_count++] = wxPoint2DDouble(point.x, point.y);
    m_last = point;
}

void ChainStroker::Stroke()
{
    if (m_count > 0)
        m_dc.GetGraphicsContext()->StrokeLines(m_count, m_points.data());
    m_count = 0;
    m_direction = 0;
}
} // namespace render

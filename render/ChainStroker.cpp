#include "render/ChainStroker.h"

#include "render/Layer.h"

#include <wx/graphics.h>

#include <algorithm>
#include <array>
#include <cstdlib>

namespace render
{
namespace
{
/**
 * Whether the bends of a path lose no pixel that the round ends of its segments mark.
 *
 * The toolkit rounds a bend and an end by different polygons, both up to 0.1 pixels inside the true circle. That shows
 * where the middle of a pixel lies so close inside the rim of the pen, as with widths 3, 6, 9 and 10: one may be
 * (2, 4) pixels from the middle of a pen with the radius 4.5. Around the pens listed none does.
 */
bool BendsLikeSingleSegments(int width)
{
    static constexpr std::array kWidths{1, 2, 4, 5, 7, 8};
    return std::ranges::find(kWidths, width) != kWidths.end();
}
} // namespace

ChainStroker::ChainStroker(wxDC& dc)
    : m_dc(dc),
      m_reach(std::max(dc.GetPen().GetWidth(), 1)),
      m_longest(BendsLikeSingleSegments(m_reach) ? kMaxPoints : kOneSegment),
      m_size(DrawableArea(dc).GetSize()),
      m_marked(dc)
{
}

void ChainStroker::operator()(geo::Pixel from, geo::Pixel to)
{
    if (m_isCovered || MissesPicture(from, to) || MarksNothingNew(from, to))
        return;
    const int direction = (to.y > from.y) - (to.y < from.y);
    if (!Continues(from, direction))
    {
        Stroke();
        Add(from);
    }
    Add(to);
    m_isCovered = CoversPicture(to);
    if (direction != 0)
        m_direction = direction;
}

bool ChainStroker::MissesPicture(geo::Pixel from, geo::Pixel to) const
{
    return std::max(from.x, to.x) < -m_reach || std::max(from.y, to.y) < -m_reach ||
           std::min(from.x, to.x) > m_size.x + m_reach || std::min(from.y, to.y) > m_size.y + m_reach;
}

bool ChainStroker::MarksNothingNew(geo::Pixel from, geo::Pixel to)
{
    constexpr int kLong = 100; // pixels; drawing shorter ones costs no more than looking
    return std::max(std::abs(to.x - from.x), std::abs(to.y - from.y)) >= kLong && m_marked.HaveLine(from, to, m_reach);
}

bool ChainStroker::CoversPicture(geo::Pixel point) const
{
    // The toolkit draws circles as polygons, up to 0.1 pixels inside.
    const double radius = m_reach / 2.0 - 2;
    const double farthestX = std::max(std::abs(point.x), std::abs(m_size.x - point.x));
    const double farthestY = std::max(std::abs(point.y), std::abs(m_size.y - point.y));
    return radius > 0 && farthestX * farthestX + farthestY * farthestY < radius * radius;
}

bool ChainStroker::Continues(geo::Pixel from, int direction) const
{
    return m_count > 0 && m_count < m_longest && from == m_last && direction * m_direction >= 0;
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

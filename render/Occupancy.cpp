#include "render/Occupancy.h"

#include <algorithm>

namespace render
{
namespace
{
constexpr int kMargin = 2;

std::size_t Index(const wxRect& picture, int x, int y)
{
    return static_cast<std::size_t>(y) * static_cast<std::size_t>(picture.width) + static_cast<std::size_t>(x);
}
} // namespace

Occupancy::Occupancy(int side)
    : m_picture(0, 0, side, side), m_taken(static_cast<std::size_t>(side) * static_cast<std::size_t>(side))
{
}

bool Occupancy::Take(const wxRect& box)
{
    // The tested outline includes the far edges, one pixel beyond what is marked.
    if (MeetsTaken(box.x - kMargin, box.y - kMargin, box.x + box.width + kMargin, box.y + box.height + kMargin))
        return false;
    Mark(wxRect(box).Inflate(kMargin));
    return true;
}

bool Occupancy::IsTaken(int x, int y) const
{
    return m_picture.Contains(x, y) && m_taken[Index(m_picture, x, y)];
}

bool Occupancy::MeetsTaken(int left, int top, int right, int bottom) const
{
    const int last = m_picture.width - 1;
    for (int x = std::max(left, 0); x <= std::min(right, last); ++x)
        if (IsTaken(x, top) || IsTaken(x, bottom))
            return true;
    for (int y = std::max(top, 0); y <= std::min(bottom, last); ++y)
        if (IsTaken(left, y) || IsTaken(right, y))
            return true;
    return false;
}

void Occupancy::Mark(const wxRect& box)
{
    MarkRun(box.GetLeft(), box.GetRight(), box.GetTop());
    MarkRun(box.GetLeft(), box.GetRight(), box.GetBottom());
    const int last = std::min(box.GetBottom(), m_picture.GetBottom());
    for (int y = std::max(box.GetTop(), 0); y <= last; ++y)
        for (const int x : {box.GetLeft(), box.GetRight()})
            MarkRun(x, x, y);
}

void Occupancy::MarkRun(int left, int right, int y)
{
    if (y < 0 || y >= m_picture.height)
        return;
    const int last = std::min(right, m_picture.GetRight());
    for (int x = std::max(left, 0); x <= last; ++x)
        m_taken[Index(m_picture, x, y)] = true;
}
} // namespace render

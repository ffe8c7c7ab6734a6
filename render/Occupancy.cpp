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

void Occupancy::Mark(wxRect area)
{
    area.Intersect(m_picture);
    for (int y = area.y; y < area.y + area.height; ++y)
    {
        const auto row = m_taken.begin() + static_cast<std::ptrdiff_t>(Index(m_picture, area.x, y));
        std::fill_n(row, area.width, true);
    }
}
} // namespace render

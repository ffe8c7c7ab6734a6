#include "render/Occupancy.h"

namespace render
{
namespace
{
constexpr int kMargin = 2;

std::size_t Index(const wxRect& picture, int x, int y)
{
    return static_cast<std::size_t>(y) * static_cast<std::size_t>(picture.width) + static_cast<std::size_t>(x);
}

/// Calls visit(x, y) for the outermost pixels of a box until one returns true. @return whether one did.
template <class Visit>
bool AnyOnOutline(const wxRect& box, Visit visit)
{
    for (int x = box.GetLeft(); x <= box.GetRight(); ++x)
        if (visit(x, box.GetTop()) || visit(x, box.GetBottom()))
            return true;
    for (int y = box.GetTop(); y <= box.GetBottom(); ++y)
        if (visit(box.GetLeft(), y) || visit(box.GetRight(), y))
            return true;
    return false;
}
} // namespace

Occupancy::Occupancy(int side)
    : m_picture(wxSize(side, side)), m_taken(static_cast<std::size_t>(side) * static_cast<std::size_t>(side))
{
}

bool Occupancy::Take(const wxRect& box)
{
    const wxRect taken = wxRect(box).Inflate(kMargin);
    // The tested outline includes the far edges, one pixel beyond what is marked.
    const wxRect tested(taken.GetPosition(), taken.GetSize() + wxSize(1, 1));
    const auto isTaken = [this](int x, int y) { return m_picture.Contains(x, y) && m_taken[Index(m_picture, x, y)]; };
    if (AnyOnOutline(tested, isTaken))
        return false;
    AnyOnOutline(taken,
                 [this](int x, int y)
                 {
                     if (m_picture.Contains(x, y))
                         m_taken[Index(m_picture, x, y)] = true;
                     return false;
                 });
    return true;
}
} // namespace render

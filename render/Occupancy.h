#pragma once

#include <wx/gdicmn.h>

#include <vector>

namespace render
{
/// Remembers where labels stand on a square picture, so that others can keep clear of them.
class Occupancy
{
public:
    /// @param[in] side of the picture in pixels.
    explicit Occupancy(int side);

    /**
     * Takes the box of a label, with two pixels around it, unless it meets one that was taken before.
     *
     * Only outlines are looked at: a small box inside a larger one is free. So is what lies outside the picture.
     *
     * @return whether the box was free and is taken now.
     */
    bool Take(const wxRect& box);

private:
    wxRect m_picture;
    std::vector<bool> m_taken;
};
} // namespace render

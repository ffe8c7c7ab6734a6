#pragma once

#include "geo/MapFrame.h"

#include <cstdlib>

namespace render
{
/**
 * Turns points that come one after the other into segments, leaving out steps that are too small to see.
 *
 * A segment is drawn once the line has moved by at least the smallest step in x or in y since the last vertex; until
 * then the vertex stays where it was. A lifted pen draws nothing on its way to the next point.
 */
class ThinnedPen
{
public:
    /// @param[in] smallestStep pixels; 0 draws every step, even one that does not leave its pixel.
    explicit ThinnedPen(int smallestStep) : m_smallestStep(smallestStep) {}

    void Lift() { m_down = false; }

    void MoveTo(geo::Pixel point)
    {
        m_last = point;
        m_down = true;
    }

    /// Goes on to a point and calls segment(from, to) if that leaves a line.
    template <class Sink>
    void To(geo::Pixel point, Sink& segment)
    {
        if (m_down)
        {
            if (std::abs(m_last.x - point.x) < m_smallestStep && std::abs(m_last.y - point.y) < m_smallestStep)
                return;
            segment(m_last, point);
        }
        MoveTo(point);
    }

private:
    int m_smallestStep;
    geo::Pixel m_last{};
    bool m_down = false;
};
} // namespace render

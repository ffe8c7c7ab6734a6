#pragma once

#include "render/BorderFile.h"
#include "render/GoOn.h"
#include "render/MapView.h"
#include "render/ThinnedPen.h"

#include <wx/dc.h>

namespace render
{
/**
 * Turns the points of a point file into the segments that are drawn.
 *
 * A line is drawn only between two points that follow each other and are both visible. A file that begins without a new
 * line begins in the upper left corner of the picture.
 */
class BorderTracer
{
public:
    explicit BorderTracer(const MapView& view) : m_view(view) { m_pen.MoveTo({0, 0}); }

    /// Goes on to a point and calls segment(from, to), in pixels, if that leaves a line.
    template <class Sink>
    void Add(const BorderRecord& record, Sink& segment)
    {
        const auto pixel = m_view.VisiblePixel({.lat = record.lat * kRadPerMinute, .lon = record.lon * kRadPerMinute});
        if (!pixel)
            m_pen.Lift();
        else if (record.code >= 1000)
            m_pen.MoveTo(*pixel);
        else
            m_pen.To(*pixel, segment);
    }

private:
    static constexpr double kRadPerMinute = 0.00029088820866572136;

    const MapView& m_view;
    ThinnedPen m_pen{0};
};

/**
 * Draws the polylines of a point file in the pen of the drawing context.
 *
 * @param[in] file see BorderFile. One that cannot be opened is reported by the toolkit's log and draws nothing.
 */
void DrawBorderLines(wxDC& dc, const MapView& view, const wxString& file, const GoOn& goOn = Always);
} // namespace render

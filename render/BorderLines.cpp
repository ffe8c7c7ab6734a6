#include "render/BorderLines.h"

#include "render/ChainStroker.h"

namespace render
{
void DrawBorderLines(wxDC& dc, const MapView& view, const wxString& file, const GoOn& goOn)
{
    BorderFile points(file);
    BorderTracer tracer(view);
    ChainStroker segment(dc);
    for (BorderRecord record{}; goOn(points.Done()) && points.Next(record);)
        tracer.Add(record, segment);
}
} // namespace render

#include "render/BorderLines.h"

#include "render/ChainStroker.h"

namespace render
{
void DrawBorderLines(wxDC& dc, const MapView& view, const wxString& file)
{
    BorderFile points(file);
    BorderTracer tracer(view);
    ChainStroker segment(dc);
    for (BorderRecord record{}; points.Next(record);)
        tracer.Add(record, segment);
}
} // namespace render

#include "render/GridLines.h"

#include "render/SegmentBatch.h"

namespace render
{
void DrawGridLines(wxDC& dc, const MapView& view, const GridSpec& grid)
{
    SegmentBatch segment(dc);
    TraceGridLines(view, grid, segment);
}
} // namespace render

#include "render/GridLines.h"

#include "render/ChainStroker.h"

namespace render
{
void DrawGridLines(wxDC& dc, const MapView& view, const GridSpec& grid)
{
    ChainStroker segment(dc);
    TraceGridLines(view, grid, segment);
}
} // namespace render

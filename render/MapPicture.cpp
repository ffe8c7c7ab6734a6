#include "render/MapPicture.h"

#include <wx/dcmemory.h>

namespace
{
void DrawIfValid(wxDC& dc, const std::unique_ptr<wxBitmap>& bitmap, bool show)
{
    if (show && bitmap && bitmap->IsOk())
        dc.DrawBitmap(*bitmap, 0, 0, true);
}
} // namespace

void MapPicture::Clear()
{
    mapBitmap.reset();
    greylineBitmap.reset();
    propagationBitmap.reset();
    showGreyline = false;
    showPropagation = false;
}

void MapPicture::Draw(wxDC& dc) const
{
    DrawIfValid(dc, mapBitmap, mapReady);
    DrawIfValid(dc, greylineBitmap, showGreyline);
    DrawIfValid(dc, propagationBitmap, showPropagation);
}

wxBitmap MapPicture::Compose() const
{
    wxBitmap composed(mapBitmap->GetWidth(), mapBitmap->GetHeight());
    wxMemoryDC dc(composed);
    dc.SetBackground(*wxWHITE_BRUSH);
    dc.Clear();
    Draw(dc);
    dc.SelectObject(wxNullBitmap);
    return composed;
}

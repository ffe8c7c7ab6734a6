#include "render/MapPicture.h"

#include "render/BitmapPixels.h"

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

wxImage MapPicture::Compose() const
{
    if (mapReady && !showGreyline && !showPropagation)
        return render::ImageOf(*mapBitmap);
    const auto composed = render::NewWhiteBitmap(mapBitmap->GetWidth());
    if (!composed)
        return {};
    wxMemoryDC dc(*composed);
    Draw(dc);
    dc.SelectObject(wxNullBitmap);
    return render::ImageOf(*composed);
}

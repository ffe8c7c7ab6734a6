#include "render/MapPicture.h"

#include "render/Bitmaps.h"

#include <wx/dcmemory.h>

namespace
{
void DrawIfValid(wxDC& dc, const std::unique_ptr<wxBitmap>& bitmap, bool show)
{
    if (show && bitmap && bitmap->IsOk())
        dc.DrawBitmap(*bitmap, 0, 0);
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
    if (IsMapAlone())
        return render::ImageOf(*mapBitmap);
    const auto composed = Composed();
    return composed ? render::ImageOf(*composed) : wxImage();
}

wxImage MapPicture::Take()
{
    if (!IsMapAlone())
        mapBitmap = Composed();
    mapReady = showGreyline = showPropagation = false;
    return mapBitmap ? render::TakeImageOf(*mapBitmap) : wxImage();
}

std::unique_ptr<wxBitmap> MapPicture::Composed() const
{
    auto composed = render::NewWhiteBitmap(mapBitmap->GetWidth());
    if (composed)
    {
        wxMemoryDC dc(*composed);
        Draw(dc);
    }
    return composed;
}

#include "render/MapPicture.h"

#include "render/BitmapPixels.h"
#include "render/Bitmaps.h"
#include "render/Images.h"
#include "render/Layer.h"

#include <wx/dcmemory.h>

#include <algorithm>
#include <utility>

namespace
{
/// The picture on the screen grows by so many rows at a time.
constexpr int kBandRows = 100;

void CopyRows(const render::PictureRows& from, int first, int end, wxBitmap& to)
{
    const render::BitmapPixels pixels(to);
    for (int y = first; y < end; ++y)
        from.Row(y, pixels.Row(y));
}

/// Puts a bitmap of the overlay in place of an older one and shows it, if there is enough memory for it.
bool Put(const render::PictureRows& overlay, std::unique_ptr<wxBitmap>& bitmap, bool& show)
{
    auto made = render::NewOverlayBitmap(overlay.Side());
    if (!made)
        return false;
    CopyRows(overlay, 0, overlay.Side(), *made);
    bitmap = std::move(made);
    return show = true;
}

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

bool MapPicture::NewMap(int side)
{
    Clear();
    mapBitmap = render::NewWhiteBitmap(side);
    return HasMap();
}

void MapPicture::PutBase(std::unique_ptr<render::PictureRows> base, const std::function<void(int)>& rowsDone)
{
    const int side = base->Side();
    for (int first = 0; first < side; first += kBandRows)
    {
        const int end = std::min(first + kBandRows, side);
        CopyRows(*base, first, end, *mapBitmap);
        rowsDone(end);
    }
}

void MapPicture::PutLayer(render::Layer& layer, std::uint8_t alpha)
{
    layer.BlendOnto(*mapBitmap, alpha);
}

bool MapPicture::PutGreyline(std::unique_ptr<render::PictureRows> overlay)
{
    return Put(*overlay, greylineBitmap, showGreyline);
}

bool MapPicture::PutPropagation(std::unique_ptr<render::PictureRows> overlay)
{
    return Put(*overlay, propagationBitmap, showPropagation);
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
    const auto composed = render::NewWhiteBitmap(mapBitmap->GetWidth());
    if (!composed)
        return {};
    {
        wxMemoryDC dc(*composed);
        Draw(dc);
    }
    return render::ImageOf(*composed);
}

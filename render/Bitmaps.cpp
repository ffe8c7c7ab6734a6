#include "render/Bitmaps.h"

#include "config/QuietToolkit.h"
#include "render/BitmapPixels.h"
#include "render/HugePages.h"
#include "render/PackedRow.h"

#include <cairo.h>

#include <algorithm>
#include <vector>

namespace render
{
namespace
{
std::unique_ptr<wxBitmap> NewBitmap(int side, int depth)
{
    auto bitmap = std::make_unique<wxBitmap>(side, side, depth);
    if (!bitmap->IsOk())
        return nullptr;
    // The surface behind a bitmap is made when it is first drawn on; only then does a lack of memory show.
    const QuietToolkit quiet;
    cairo_t* const context = bitmap->CairoCreate();
    const bool hasMemory = cairo_status(context) == CAIRO_STATUS_SUCCESS;
    if (hasMemory)
        PreferHugePagesOf(cairo_get_target(context));
    cairo_destroy(context);
    return hasMemory ? std::move(bitmap) : nullptr;
}

wxImage NewImage(int width, int height)
{
    wxImage image(width, height, false);
    if (image.IsOk())
        PreferHugePages(image.GetData(), 3 * static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
    return image;
}

unsigned char* RowOf(wxImage& image, int y)
{
    return image.GetData() + 3 * static_cast<std::size_t>(y) * static_cast<std::size_t>(image.GetWidth());
}
} // namespace

std::unique_ptr<wxBitmap> NewWhiteBitmap(int side)
{
    auto bitmap = NewBitmap(side, wxBITMAP_SCREEN_DEPTH);
    if (!bitmap)
        return nullptr;
    const BitmapPixels pixels(*bitmap);
    for (int y = 0; y < side; ++y)
        std::ranges::fill(pixels.Row(y), kWhite);
    return bitmap;
}

wxImage ImageOf(wxBitmap& bitmap)
{
    const BitmapPixels pixels(bitmap);
    wxImage image = NewImage(pixels.Width(), pixels.Height());
    if (image.IsOk())
        for (int y = 0; y < pixels.Height(); ++y)
            PackRgb(pixels.Row(y), RowOf(image, y));
    return image;
}

wxImage ImageOf(const PictureRows& picture)
{
    wxImage image = NewImage(picture.Side(), picture.Side());
    std::vector<Argb> row(static_cast<std::size_t>(picture.Side()));
    for (int y = 0; image.IsOk() && y < picture.Side(); ++y)
    {
        picture.Row(y, row);
        PackRgb(row, RowOf(image, y));
    }
    return image;
}

std::unique_ptr<wxBitmap> NewOverlayBitmap(int side)
{
    return NewBitmap(side, 32);
}
} // namespace render

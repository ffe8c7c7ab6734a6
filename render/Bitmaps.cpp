#include "render/Bitmaps.h"

#include "config/QuietToolkit.h"
#include "render/BitmapPixels.h"
#include "render/HugePages.h"
#include "render/Pixel.h"

#include <cairo.h>

#include <algorithm>
#include <utility>

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

std::unique_ptr<wxBitmap> NewOverlayBitmap(int side)
{
    return NewBitmap(side, 32);
}
} // namespace render

#include "render/Images.h"

#include "render/BitmapPixels.h"
#include "render/HugePages.h"
#include "render/PackedRow.h"

#include <vector>

namespace render
{
namespace
{
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
} // namespace render

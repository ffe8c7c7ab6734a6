#include "ui/ToolPictures.h"

#include <wx/bitmap.h>
#include <wx/vector.h>

namespace ui
{
wxBitmapBundle BundleOf(const ToolPicture& picture)
{
    const wxBitmap pixels(picture.pixels);
    const wxBitmapBundle drawing = wxBitmapBundle::FromSVG(picture.drawing, pixels.GetSize());
    wxVector<wxBitmap> sizes;
    sizes.push_back(pixels);
    for (const int density : {2, 3})
        sizes.push_back(drawing.GetBitmap(pixels.GetSize() * density));
    return wxBitmapBundle::FromBitmaps(sizes);
}
} // namespace ui

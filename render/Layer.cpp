#include "render/Layer.h"

#include "render/BitmapPixels.h"
#include "render/Blend.h"

#include <wx/graphics.h>

namespace render
{
Layer::Layer(int side) : m_sheet(NewWhiteBitmap(side)) {}

wxDC& Layer::Begin(const wxColour& colour, int lineWidth)
{
    m_dc.SelectObject(*m_sheet);
    SwitchSmoothingOff(m_dc);
    m_dc.SetPen(wxPen(colour, lineWidth));
    m_dc.SetBrush(*wxTRANSPARENT_BRUSH);
    m_dc.SetBackgroundMode(wxBRUSHSTYLE_TRANSPARENT);
    return m_dc;
}

bool Layer::BlendOnto(wxBitmap& map, std::uint8_t alpha)
{
    m_dc.SelectObject(wxNullBitmap);
    if (!BitmapPixels::AreInPlace(*m_sheet) || !BitmapPixels::AreInPlace(map))
        return false;
    const BitmapPixels sheet(*m_sheet);
    const BitmapPixels pixels(map);
    BlendAndWhiten(sheet, pixels, alpha);
    return true;
}

wxImage Layer::TakeImage()
{
    m_dc.SelectObject(wxNullBitmap);
    const wxImage image = m_sheet->ConvertToImage();
    *m_sheet = *NewWhiteBitmap(m_sheet->GetWidth());
    return image;
}

void SwitchSmoothingOff(wxDC& dc)
{
    dc.GetGraphicsContext()->SetAntialiasMode(wxANTIALIAS_NONE);
}
} // namespace render

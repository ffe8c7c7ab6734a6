#include "render/Layer.h"

#include "render/BitmapPixels.h"
#include "render/Blend.h"
#include "render/HugePages.h"

#include <cairo.h>
#include <wx/graphics.h>

#include <algorithm>
#include <span>
#include <utility>

namespace render
{
namespace
{
constexpr cairo_format_t FormatFor(Inks inks)
{
    // A byte or a word a pixel; blank is 0 in both. (A bit a pixel is quicker to blend, but slow to draw long lines
    // on.)
    return inks == Inks::One ? CAIRO_FORMAT_A8 : CAIRO_FORMAT_ARGB32;
}

/// Most of a layer is blank: it is passed over so many pixels at a time.
constexpr std::size_t kBlock = 64;

template <class Pixel>
bool IsBlockBlank(const Pixel* pixels)
{
    Pixel any = 0;
    for (std::size_t i = 0; i < kBlock; ++i)
        any |= pixels[i];
    return any == 0;
}

/// Calls visit(x, pixel) for the pixels that are not blank, and makes them blank.
template <class Pixel, class Visit>
void TakePixels(std::span<Pixel> row, Visit visit)
{
    for (std::size_t block = 0; block < row.size(); block += kBlock)
    {
        const std::size_t end = std::min(block + kBlock, row.size());
        if (end - block == kBlock && IsBlockBlank(&row[block]))
            continue;
        for (std::size_t x = block; x < end; ++x)
            if (const Pixel pixel = std::exchange(row[x], Pixel{0}))
                visit(x, pixel);
    }
}

/// A context on the sheet, as bitmaps of the toolkit get it.
std::unique_ptr<wxGCDC> NewContext(cairo_surface_t* sheet)
{
    cairo_t* const native = cairo_create(sheet);
    wxGraphicsContext* const context = wxGraphicsContext::CreateFromNative(native);
    cairo_destroy(native);
    context->EnableOffset();
    return std::make_unique<wxGCDC>(context);
}
} // namespace

void Layer::Destroy::operator()(cairo_surface_t* surface) const
{
    cairo_surface_destroy(surface);
}

Layer::Layer(int side, Inks inks)
    : m_side(side), m_inks(inks), m_sheet(cairo_image_surface_create(FormatFor(inks), side, side))
{
    if (cairo_surface_status(m_sheet.get()) == CAIRO_STATUS_SUCCESS)
        PreferHugePagesOf(m_sheet.get());
    else
        m_sheet.reset();
}

wxDC& Layer::Begin(const wxColour& colour, int lineWidth)
{
    m_colour = colour;
    m_dc = NewContext(m_sheet.get());
    SwitchSmoothingOff(*m_dc);
    m_dc->SetPen(wxPen(colour, lineWidth));
    m_dc->SetBrush(*wxTRANSPARENT_BRUSH);
    return *m_dc;
}

/// Calls visit(x, y, colour) for every pixel that is drawn in another colour than white, and leaves the sheet blank.
template <class Visit>
void Layer::TakeMarks(Visit visit)
{
    cairo_surface_flush(m_sheet.get());
    unsigned char* row = cairo_image_surface_get_data(m_sheet.get());
    const Argb ink = OpaquePixel(m_colour.Red(), m_colour.Green(), m_colour.Blue());
    for (int y = 0; y < m_side; ++y, row += cairo_image_surface_get_stride(m_sheet.get()))
    {
        const auto mark = [&](std::size_t x, Argb colour)
        {
            if (colour != kWhite)
                visit(static_cast<int>(x), y, colour);
        };
        const auto side = static_cast<std::size_t>(m_side);
        if (m_inks == Inks::One)
            TakePixels(std::span(row, side), [&](std::size_t x, std::uint8_t) { mark(x, ink); });
        else
            TakePixels(std::span(reinterpret_cast<Argb*>(row), side), mark);
    }
    cairo_surface_mark_dirty(m_sheet.get());
}

void Layer::BlendOnto(wxBitmap& map, std::uint8_t alpha)
{
    const BitmapPixels pixels(map);
    const auto isInner = [last = m_side - 1](int place) { return place > 0 && place < last; };
    TakeMarks(
        [&](int x, int y, Argb colour)
        {
            if (alpha == 0 || !isInner(x) || !isInner(y))
                return;
            Argb& under = pixels.Row(y)[static_cast<std::size_t>(x)];
            under = BlendPixel(under, colour, alpha);
        });
}

void SwitchSmoothingOff(wxDC& dc)
{
    dc.GetGraphicsContext()->SetAntialiasMode(wxANTIALIAS_NONE);
}

wxRect DrawableArea(const wxDC& dc)
{
    // A context that is not a bitmap's does not know its size.
    wxRect area;
    dc.GetClippingBox(area);
    return area;
}
} // namespace render

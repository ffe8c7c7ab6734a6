#include "render/Layer.h"

#include "render/BitmapPixels.h"
#include "render/HugePages.h"

#include <cairo.h>
#include <wx/graphics.h>

#include <algorithm>
#include <span>

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

template <class Pixel>
std::size_t NextMark(std::span<const Pixel> row, std::size_t x)
{
    while (x < row.size() && row[x] == 0)
        x += x % kBlock == 0 && x + kBlock <= row.size() && IsBlockBlank(&row[x]) ? kBlock : 1;
    return x;
}

/// Calls visit(first, end, pixel) for neighbours that are alike and not blank, and makes them blank.
template <class Pixel, class Visit>
void TakeRuns(std::span<Pixel> row, Visit visit)
{
    for (std::size_t x = 0; (x = NextMark(std::span<const Pixel>(row), x)) < row.size();)
    {
        const std::size_t first = x;
        const Pixel pixel = row[first];
        while (x < row.size() && row[x] == pixel)
            row[x++] = 0;
        visit(first, x, pixel);
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

/// Calls visit(y, run) for the marks in another colour than white, but for the outermost frame, and leaves the sheet
/// blank.
template <class Visit>
void Layer::TakeSheet(Visit visit)
{
    cairo_surface_flush(m_sheet.get());
    unsigned char* row = cairo_image_surface_get_data(m_sheet.get());
    const Argb ink = OpaquePixel(m_colour.Red(), m_colour.Green(), m_colour.Blue());
    const auto side = static_cast<std::size_t>(m_side);
    for (int y = 0; y < m_side; ++y, row += cairo_image_surface_get_stride(m_sheet.get()))
    {
        const auto mark = [&](std::size_t first, std::size_t end, Argb colour)
        {
            first = std::max<std::size_t>(first, 1);
            end = std::min(end, side - 1);
            if (colour != kWhite && y > 0 && y < m_side - 1 && first < end)
                visit(y, Run{static_cast<std::uint16_t>(first), static_cast<std::uint16_t>(end - first), colour});
        };
        if (m_inks == Inks::One)
            TakeRuns(std::span(row, side),
                     [&](std::size_t first, std::size_t end, std::uint8_t) { mark(first, end, ink); });
        else
            TakeRuns(std::span(reinterpret_cast<Argb*>(row), side), mark);
    }
    cairo_surface_mark_dirty(m_sheet.get());
}

void Layer::BlendOnto(wxBitmap& map, std::uint8_t alpha)
{
    const BitmapPixels pixels(map);
    TakeSheet(
        [&](int y, const Run& run)
        {
            if (alpha > 0)
                run.BlendOnto(pixels.Row(y), alpha);
        });
}

LayerMarks Layer::TakeMarks(std::uint8_t alpha)
{
    LayerMarks marks(alpha);
    marks.BeginRow();
    TakeSheet(
        [&, last = 0](int y, const Run& run) mutable
        {
            for (; last < y; ++last)
                marks.BeginRow();
            if (alpha > 0)
                marks.Add(run);
        });
    return marks;
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

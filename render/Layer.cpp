#include "render/Layer.h"

#include "render/BitmapPixels.h"
#include "render/Blend.h"

#include <cairo.h>
#include <wx/graphics.h>

#include <bit>
#include <span>
#include <utility>

namespace render
{
namespace
{
static_assert(std::endian::native == std::endian::little, "the first pixel of a word of marks is its lowest bit");

constexpr cairo_format_t FormatFor(Inks inks)
{
    // A bit or a word a pixel. Blank is 0 in both, so memory that is never drawn on is never touched.
    return inks == Inks::One ? CAIRO_FORMAT_A1 : CAIRO_FORMAT_ARGB32;
}

/// Visits the pixels whose bit is set, and clears them.
template <class Visit>
void TakeBits(std::span<std::uint32_t> words, Visit visit)
{
    for (std::size_t i = 0; i < words.size(); ++i)
    {
        for (std::uint32_t bits = words[i]; bits != 0; bits &= bits - 1)
            visit(32 * i + static_cast<std::size_t>(std::countr_zero(bits)));
        words[i] = 0;
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
    if (cairo_surface_status(m_sheet.get()) != CAIRO_STATUS_SUCCESS)
        m_sheet.reset();
}

wxDC& Layer::Begin(const wxColour& colour, int lineWidth)
{
    m_colour = colour;
    m_dc = NewContext(m_sheet.get());
    SwitchSmoothingOff(*m_dc);
    m_dc->SetPen(wxPen(colour, lineWidth));
    m_dc->SetBrush(*wxTRANSPARENT_BRUSH);
    m_dc->SetBackgroundMode(wxBRUSHSTYLE_TRANSPARENT);
    return *m_dc;
}

/// Calls visit(x, y, colour) for every pixel that is drawn in another colour than white, and leaves the sheet blank.
template <class Visit>
void Layer::TakeMarks(Visit visit)
{
    m_dc.reset();
    cairo_surface_flush(m_sheet.get());
    auto* const first = reinterpret_cast<std::uint32_t*>(cairo_image_surface_get_data(m_sheet.get()));
    const auto stride = static_cast<std::size_t>(cairo_image_surface_get_stride(m_sheet.get())) / sizeof *first;
    const Argb ink = OpaquePixel(m_colour.Red(), m_colour.Green(), m_colour.Blue());
    for (int y = 0; y < m_side; ++y)
    {
        const std::span row(first + static_cast<std::size_t>(y) * stride, stride);
        const auto mark = [&](std::size_t x, Argb colour)
        {
            if (colour != kWhite)
                visit(static_cast<int>(x), y, colour);
        };
        if (m_inks == Inks::One)
            TakeBits(row, [&](std::size_t x) { mark(x, ink); });
        else
            for (std::size_t x = 0; x < row.size(); ++x)
                if (const Argb colour = std::exchange(row[x], 0))
                    mark(x, colour);
    }
    cairo_surface_mark_dirty(m_sheet.get());
}

bool Layer::BlendOnto(wxBitmap& map, std::uint8_t alpha)
{
    if (!BitmapPixels::AreInPlace(map))
        return false;
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
    return true;
}

wxImage Layer::TakeImage()
{
    wxImage image(m_side, m_side, false);
    image.Clear(255);
    TakeMarks(
        [&](int x, int y, Argb colour)
        {
            const auto channel = [colour](int shift) { return static_cast<unsigned char>(colour >> shift); };
            image.SetRGB(x, y, channel(16), channel(8), channel(0));
        });
    return image;
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

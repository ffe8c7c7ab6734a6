#include "render/BitmapPixels.h"

#include <cairo.h>

namespace render
{
BitmapPixels::BitmapPixels(wxBitmap& bitmap)
    : m_width(bitmap.GetWidth()), m_height(bitmap.GetHeight()), m_context(bitmap.CairoCreate())
{
    cairo_surface_t* const surface = cairo_get_target(m_context);
    cairo_surface_flush(surface);
    m_pixels = reinterpret_cast<Argb*>(cairo_image_surface_get_data(surface));
    m_stride = static_cast<std::size_t>(cairo_image_surface_get_stride(surface)) / sizeof(Argb);
}

BitmapPixels::~BitmapPixels()
{
    cairo_surface_mark_dirty(cairo_get_target(m_context));
    cairo_destroy(m_context);
}
} // namespace render

#pragma once

#include "tests/support/Pictures.h"

#include <cairo.h>

#include <wx/dcmemory.h>
#include <wx/dcscreen.h>
#include <wx/graphics.h>
#include <wx/window.h>

/// What a window shows on the screen, from a place in it.
inline Colours OnScreen(const wxWindow& window, wxPoint place, wxSize size)
{
    wxBitmap bitmap(size);
    {
        wxMemoryDC dc(bitmap);
        wxScreenDC screen;
        // What was read before is remembered.
        auto* const native = static_cast<cairo_t*>(screen.GetGraphicsContext()->GetNativeContext());
        cairo_surface_mark_dirty(cairo_get_target(native));
        const wxPoint corner = window.ClientToScreen(place);
        dc.Blit(0, 0, size.x, size.y, &screen, corner.x, corner.y);
    }
    return ColoursOf(bitmap);
}

#include "ui/Native.h"

#include <gtk/gtk.h>

namespace ui::native
{
void ReportEveryMotion(wxWindow* window)
{
    GtkWidget* const widget = window->m_wxwindow;
    gtk_widget_set_events(widget, gtk_widget_get_events(widget) & ~GDK_POINTER_MOTION_HINT_MASK);
}

void AllocateSize(wxWindow* topLevel)
{
    GtkWidget* const widget = topLevel->GetHandle();
    const wxSize size = topLevel->GetSize();
    GtkAllocation allocation{0, 0, size.x, size.y};
    gtk_widget_get_preferred_size(widget, nullptr, nullptr); // asked for first, as always
    gtk_widget_size_allocate(widget, &allocation);
}
} // namespace ui::native

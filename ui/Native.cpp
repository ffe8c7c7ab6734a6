#include "ui/Native.h"

#include <gtk/gtk.h>

namespace ui::native
{
void ReportEveryMotion(wxWindow* window)
{
    GtkWidget* const widget = window->m_wxwindow;
    gtk_widget_set_events(widget, gtk_widget_get_events(widget) & ~GDK_POINTER_MOTION_HINT_MASK);
}
} // namespace ui::native

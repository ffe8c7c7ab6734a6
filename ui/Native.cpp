#include "ui/Native.h"

#include <gtk/gtk.h>

#include <algorithm>
#include <vector>

namespace
{
using Widgets = std::vector<GtkWidget*>;

void CollectFocusable(GtkWidget* widget, void* widgets)
{
    if (gtk_widget_get_mapped(widget) && gtk_widget_is_sensitive(widget) && gtk_widget_get_can_focus(widget) &&
        (GTK_IS_BUTTON(widget) || GTK_IS_ENTRY(widget)))
        static_cast<Widgets*>(widgets)->push_back(widget);
    else if (GTK_IS_CONTAINER(widget))
        gtk_container_forall(GTK_CONTAINER(widget), CollectFocusable, widgets);
}

int LeftEdgeOf(GtkWidget* widget)
{
    int x = 0;
    gtk_widget_translate_coordinates(widget, gtk_widget_get_toplevel(widget), 0, 0, &x, nullptr);
    return x;
}
} // namespace

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

bool MoveFocusOnToolBar(wxToolBar* bar, int step)
{
    Widgets stops;
    CollectFocusable(bar->GetHandle(), &stops);
    std::ranges::sort(stops, {}, LeftEdgeOf);
    const auto count = static_cast<int>(stops.size());
    const auto focus = static_cast<int>(std::ranges::find_if(stops, gtk_widget_is_focus) - stops.begin());
    const int next = focus < count ? focus + step : (step > 0 ? 0 : count - 1);
    if (next < 0 || next >= count)
        return false;
    gtk_widget_grab_focus(stops[static_cast<std::size_t>(next)]);
    return true;
}

void Announce(wxWindow* window, const wxString& text)
{
    AtkObject* const object = gtk_widget_get_accessible(window->GetHandle());
    if (g_signal_lookup("announcement", ATK_TYPE_OBJECT) != 0)
        g_signal_emit_by_name(object, "announcement", text.utf8_str().data());
}
} // namespace ui::native

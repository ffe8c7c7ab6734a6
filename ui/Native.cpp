#include "ui/Native.h"

#include <wx/filepicker.h>

#include <gtk/gtk.h>

#include <algorithm>
#include <functional>
#include <vector>

namespace
{
using Widgets = std::vector<GtkWidget*>;

using Visit = std::function<void(GtkWidget*)>;

void ForEachWidget(GtkWidget* widget, const Visit& visit)
{
    visit(widget);
    const auto descend = [](GtkWidget* child, void* data) { ForEachWidget(child, *static_cast<const Visit*>(data)); };
    if (GTK_IS_CONTAINER(widget))
        gtk_container_forall(GTK_CONTAINER(widget), descend, const_cast<Visit*>(&visit));
}

/// What takes keys in a control; a notebook or a group is none.
Widgets PartsOf(GtkWidget* control)
{
    Widgets parts;
    ForEachWidget(control,
                  [&parts](GtkWidget* widget)
                  {
                      const bool takesKeys = GTK_IS_BUTTON(widget) || GTK_IS_ENTRY(widget) || GTK_IS_RANGE(widget) ||
                                             GTK_IS_CALENDAR(widget) || GTK_IS_TEXT_VIEW(widget);
                      if (GTK_IS_COMBO_BOX(widget) || (takesKeys && !GTK_IS_SCROLLBAR(widget) &&
                                                       !gtk_widget_get_ancestor(widget, GTK_TYPE_COMBO_BOX)))
                          parts.push_back(widget);
                  });
    return parts;
}

wxString NameOf(GtkWidget* widget)
{
    const char* const name = atk_object_get_name(gtk_widget_get_accessible(widget));
    return name ? wxString::FromUTF8(name) : wxString();
}

void SetName(GtkWidget* widget, const wxString& name)
{
    atk_object_set_name(gtk_widget_get_accessible(widget), name.utf8_str().data());
}

void RealizeOrder(wxWindow* window)
{
    window->OnInternalIdle();
    for (wxWindow* const child : window->GetChildren())
        RealizeOrder(child);
}

/// The widget that a text belongs to; the text names it unless it has a name.
GtkWidget* LabelledBy(const wxString& text, GtkWidget* madeNext)
{
    if (GTK_IS_FRAME(madeNext) || GTK_IS_NOTEBOOK(madeNext) || text.empty())
        return nullptr;
    const Widgets parts = PartsOf(madeNext);
    if (parts.empty())
        return nullptr;
    if (NameOf(parts.front()).empty() || GTK_IS_COMBO_BOX(parts.front()))
        SetName(parts.front(), text);
    return NameOf(parts.front()).StartsWith(text) ? parts.front() : nullptr;
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

void KeepScrollBarsInSight(wxWindow* scrolled)
{
    gtk_scrolled_window_set_overlay_scrolling(GTK_SCROLLED_WINDOW(scrolled->GetHandle()), FALSE);
}

bool MoveFocusOnToolBar(wxToolBar* bar, int step)
{
    Widgets stops = PartsOf(bar->GetHandle());
    std::erase_if(stops,
                  [](GtkWidget* stop) { return !gtk_widget_get_mapped(stop) || !gtk_widget_is_sensitive(stop); });
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

void DismissMenu()
{
    GtkWidget* const owner = gtk_grab_get_current();
    if (GTK_IS_MENU_SHELL(owner))
        gtk_menu_shell_deactivate(GTK_MENU_SHELL(owner));
}

void Name(wxWindow* window, const wxString& name)
{
    for (GtkWidget* const part : PartsOf(window->GetHandle()))
    {
        const bool browses = GTK_IS_BUTTON(part) && dynamic_cast<wxFileDirPickerCtrlBase*>(window);
        SetName(part, browses ? "Browse: " + name : name);
    }
}

void NameTool(wxToolBar* bar, int id, const wxString& name)
{
    GtkToolbar* toolbar = nullptr;
    ForEachWidget(bar->GetHandle(),
                  [&toolbar](GtkWidget* widget)
                  {
                      if (GTK_IS_TOOLBAR(widget))
                          toolbar = GTK_TOOLBAR(widget);
                  });
    GtkToolItem* const item = gtk_toolbar_get_nth_item(toolbar, bar->GetToolPos(id));
    // The menu takes its words from here; on the toolbar itself there are only pictures.
    gtk_tool_button_set_label_widget(GTK_TOOL_BUTTON(item), gtk_label_new(name.utf8_str()));
    SetName(gtk_bin_get_child(GTK_BIN(item)), name);
}

void FinishLabels(wxWindow* window)
{
    // The toolkit labels when it is idle, once; better now.
    RealizeOrder(window);
    ForEachWidget(window->GetHandle(),
                  [](GtkWidget* widget)
                  {
                      if (!GTK_IS_LABEL(widget))
                          return;
                      GtkLabel* const label = GTK_LABEL(widget);
                      wxString text = wxString::FromUTF8(gtk_label_get_text(label));
                      text.Replace("\n", " ");
                      text.Trim();
                      if (GtkWidget* const next = gtk_label_get_mnemonic_widget(label))
                          gtk_label_set_mnemonic_widget(label, LabelledBy(text, next));
                  });
}
} // namespace ui::native

#pragma once

#include <wx/string.h>

#include <gtk/gtk.h>

/// A desktop whose font has so many points, for as long as it lives.
class DesktopFont
{
public:
    explicit DesktopFont(int points) { Set(points); }
    ~DesktopFont() { Set(10); }
    DesktopFont(const DesktopFont&) = delete;
    DesktopFont& operator=(const DesktopFont&) = delete;

private:
    static void Set(int points)
    {
        const wxString font = wxString::Format("Sans %d", points);
        g_object_set(gtk_settings_get_default(), "gtk-font-name", font.utf8_str().data(), nullptr);
    }
};

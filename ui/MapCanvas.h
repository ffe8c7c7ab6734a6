#pragma once

#include "render/MapPicture.h"

#include <wx/panel.h>
#include <wx/scrolwin.h>

/// The scrolled panel that shows a map picture: the map, over it the greyline, over that the propagation overlay.
class MapCanvas : public wxScrolled<wxPanel>, public MapPicture
{
public:
    explicit MapCanvas(wxWindow* parent, wxWindowID id = wxID_ANY, const wxPoint& position = wxDefaultPosition,
                       const wxSize& size = wxDefaultSize, long style = wxTAB_TRAVERSAL);

    /// Shows the picture as it is now, at once.
    void ShowPicture();

private:
    void OnPaint(wxPaintEvent& event);
};

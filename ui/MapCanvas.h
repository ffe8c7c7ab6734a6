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

    /// Makes room for a map of so many pixels. If the last one was of another size, its centre, the station, comes into
    /// the middle of the view; else the view stays where it is.
    void MakeRoomFor(int mapSize);

    /// Shows the picture as it is now, at once.
    void ShowPicture();

private:
    void ShowStation();
    void OnPaint(wxPaintEvent& event);

    int m_mapSize = 0; ///< that there is room for
};

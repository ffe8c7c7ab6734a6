#pragma once

#include "render/MapPicture.h"
#include "ui/MapCross.h"

#include <wx/panel.h>
#include <wx/scrolwin.h>

#include <functional>
#include <optional>
#include <vector>

/// The scrolled panel that shows a map picture: the map, over it the greyline, over that the propagation overlay; and,
/// where the keyboard asks for it, a cross that is no part of the picture.
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

    /// Has some places of the map painted anew, and nothing else.
    void RefreshPlaces(const std::vector<wxRect>& places);

    /// The pixel of the keyboard's cross, if it is there.
    const std::optional<wxPoint>& Cross() const { return m_cross.Place(); }

    /// Told where on the map the keyboard has moved the cross; nobody by default.
    std::function<void(const wxPoint& pixel)> onCross;

    /// Draws what lies over the picture on the screen and is no part of it; nobody by default.
    std::function<void(wxDC& dc)> onPainted;

private:
    void ScrollIntoMiddle(wxPoint pixel);
    void OnKey(wxKeyEvent& event);
    void ScrollToCross();
    void OnPaint(wxPaintEvent& event);

    int m_mapSize = 0; ///< that there is room for
    MapCross m_cross;
};

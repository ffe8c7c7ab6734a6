#include "ui/MapCanvas.h"

#include "ui/Native.h"

#include <wx/dcbuffer.h>
#include <wx/settings.h>

MapCanvas::MapCanvas(wxWindow* parent, wxWindowID id, const wxPoint& position, const wxSize& size, long style)
    : wxScrolled<wxPanel>(parent, id, position, size, style)
{
    SetBackgroundStyle(wxBG_STYLE_PAINT);
    SetBackgroundColour(wxSystemSettings::GetColour(wxSYS_COLOUR_WINDOW));
    ui::native::ReportEveryMotion(this);
    Bind(wxEVT_PAINT, &MapCanvas::OnPaint, this);
    Bind(wxEVT_KEY_DOWN, &MapCanvas::OnKey, this);
}

void MapCanvas::MakeRoomFor(int mapSize)
{
    m_cross.Hide();
    if (mapSize == m_mapSize)
        return;
    m_mapSize = mapSize;
    SetVirtualSize(mapSize, mapSize);
    ScrollIntoMiddle(wxPoint(mapSize / 2, mapSize / 2));
    // The scroll bars that the map needs come a little later and take some of the view.
    CallAfter(
        [this, mapSize, view = GetViewStart()]
        {
            if (GetViewStart() == view)
                ScrollIntoMiddle(wxPoint(mapSize / 2, mapSize / 2));
        });
}

void MapCanvas::ScrollIntoMiddle(wxPoint pixel)
{
    const wxSize view = GetClientSize();
    int stepX = 1;
    int stepY = 1;
    GetScrollPixelsPerUnit(&stepX, &stepY);
    Scroll((pixel.x - view.x / 2) / stepX, (pixel.y - view.y / 2) / stepY);
}

void MapCanvas::ShowPicture()
{
    Refresh();
    Update();
}

void MapCanvas::RefreshPlaces(const std::vector<wxRect>& places)
{
    for (const wxRect& place : places)
        RefreshRect(wxRect(CalcScrolledPosition(place.GetPosition()), place.GetSize()), false);
}

void MapCanvas::OnPaint(wxPaintEvent&)
{
    wxAutoBufferedPaintDC dc(this);
    dc.SetBackground(*wxWHITE_BRUSH);
    dc.Clear();
    DoPrepareDC(dc);
    Draw(dc);
    if (onPainted)
        onPainted(dc);
    m_cross.Draw(dc);
}

void MapCanvas::OnKey(wxKeyEvent& event)
{
    if (!mapBitmap || !m_cross.Move(event, m_mapSize))
        return event.Skip();
    ScrollToCross();
    ShowPicture();
    if (onCross)
        onCross(*m_cross.Place());
}

void MapCanvas::ScrollToCross()
{
    const wxPoint seen = CalcScrolledPosition(*m_cross.Place());
    if (wxRect(GetClientSize()).Contains(seen))
        return;
    ScrollIntoMiddle(*m_cross.Place());
}

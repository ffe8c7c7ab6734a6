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
}

void MapCanvas::MakeRoomFor(int mapSize)
{
    if (mapSize == m_mapSize)
        return;
    m_mapSize = mapSize;
    SetVirtualSize(mapSize, mapSize);
    ShowStation();
    // The scroll bars that the map needs come a little later and take some of the view.
    CallAfter(&MapCanvas::ShowStation);
}

void MapCanvas::ShowStation()
{
    const wxSize view = GetClientSize();
    int stepX = 1;
    int stepY = 1;
    GetScrollPixelsPerUnit(&stepX, &stepY);
    Scroll((m_mapSize - view.x) / 2 / stepX, (m_mapSize - view.y) / 2 / stepY);
}

void MapCanvas::ShowPicture()
{
    Refresh();
    Update();
}

void MapCanvas::OnPaint(wxPaintEvent&)
{
    wxAutoBufferedPaintDC dc(this);
    dc.SetBackground(*wxWHITE_BRUSH);
    dc.Clear();
    DoPrepareDC(dc);
    Draw(dc);
}

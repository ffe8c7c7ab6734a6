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

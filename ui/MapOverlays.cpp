#include "ui/WxKavFrame.h"

void WxKavFrame::DrawOverlays()
{
    SetPropagationTools(false, m_settings->propagation.frequency, m_settings->propagation.parameter);
}

void WxKavFrame::DrawGreyline() {}

void WxKavFrame::DrawPropagation(bool) {}

void WxKavFrame::OnGreylineTool(wxCommandEvent&)
{
    m_canvas->ShowPicture();
}

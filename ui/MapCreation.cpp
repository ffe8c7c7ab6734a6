#include "ui/WxKavFrame.h"

#include "render/Blend.h"
#include "ui/Ids.h"
#include "ui/MapSpot.h"
#include "ui/Native.h"

#include <wx/evtloop.h>
#include <wx/msgdlg.h>

#include <algorithm>
#include <utility>

// What the window does around the making of maps: it takes the centre from its field, shows what it is told, and
// follows the clock afterwards.

namespace
{
constexpr int kGreylinePeriodMs = 1000;
constexpr int kPropagationPeriodMs = 60000;

/// Often enough to stop a drawing without a delay.
constexpr std::chrono::milliseconds kLookEvery(100);

/// A run of voacapl takes some seconds at most.
constexpr std::chrono::milliseconds kShortWait(3000);

void FollowTimeMode(wxTimer& timer, int timeMode, int periodMs)
{
    if (timeMode == kRealTime)
        timer.Start(periodMs);
    else if (timeMode == kOnce)
        timer.Stop();
}
} // namespace

void WxKavFrame::OnCreateMap(wxCommandEvent&)
{
    CreateMap();
}

bool WxKavFrame::CreateMap()
{
    TakeCentreFromLocatorField();
    const Creation creation = MakeMap();
    if (creation == Creation::Finished)
        SayFinished();
    if (creation != Creation::Stopped)
        EnableCreationTools(true);
    if (creation == Creation::Finished)
        FollowClock();
    return creation == Creation::Finished;
}

void WxKavFrame::SayFinished()
{
    ui::native::Announce(m_statusBar, "Finished...");
    if (!m_warning.empty())
        SetStatusText(m_warning, 0);
}

void WxKavFrame::TakeCentreFromLocatorField()
{
    wxString& stored = m_settings->centreLoc;
    if (m_locator->GetValue() == stored)
        return;
    stored = m_locator->GetValue().Upper();
    Configuration::LocatorToLatLon(m_settings->centreLat, m_settings->centreLon, stored);
    if (stored.length() != 6)
        stored = ui::kScratchLocator;
    Configuration::LatLonToLocator(stored, m_settings->centreLat, m_settings->centreLon);
    m_locator->ChangeValue(stored);
}

void WxKavFrame::BlendLayer(wxImage layerImage, wxImage mapImage, int alpha)
{
    const int width = mapImage.GetWidth();
    const int height = mapImage.GetHeight();
    const std::size_t bytes = 3 * static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
    render::BlendLayer({layerImage.GetData(), bytes}, {mapImage.GetData(), bytes}, width, height,
                       static_cast<std::uint8_t>(alpha));
    m_canvas->mapBitmap = std::make_unique<wxBitmap>(mapImage);
    OnPictureChanged();
}

void WxKavFrame::EnableCreationTools(bool enable)
{
    for (const int id : {ui::kIdCreate, ui::kIdSave, ui::kIdOptions})
        m_toolBar->EnableTool(id, enable);
}

void WxKavFrame::FollowClock()
{
    const int timeMode = m_settings->greyzone.timeMode;
    const PropagationSettings& propagation = m_settings->propagation;
    if (m_settings->greyzone.show)
        FollowTimeMode(m_greylineTimer, timeMode, kGreylinePeriodMs);
    if (propagation.show)
        FollowTimeMode(m_propagationTimer, timeMode, kPropagationPeriodMs);
    SetPropagationTools(propagation.show, propagation.frequency, propagation.parameter);
    m_toolBar->EnableTool(ui::kIdGreyline, true);
    m_toolBar->ToggleTool(ui::kIdGreyline, m_settings->greyzone.show);
}

void WxKavFrame::OnCreationBegun()
{
    m_warning.clear();
    SetStatusText("", 1);
    EnableCreationTools(false);
    m_greylineTimer.Stop();
    m_propagationTimer.Stop();
}

void WxKavFrame::OnStep(const wxString& text)
{
    m_nextLook = std::chrono::steady_clock::now() + patience;
    SetStatusText(text, 0);
    if (onStep && !text.empty())
        onStep(text);
}

void WxKavFrame::OnError(const wxString& text)
{
    ui::native::Announce(m_statusBar, text);
    wxMessageBox(text, "Error", wxOK | wxICON_ERROR, this);
}

void WxKavFrame::OnRows(int done, int all)
{
    if (done == 0 && IsShown())
        m_progress.emplace("Kavdex", wxString(' ', 28) + "Creating Map" + wxString(' ', 28), all, this,
                           wxPD_APP_MODAL | wxPD_AUTO_HIDE);
    else if (m_progress)
        m_progress->Update(done);
}

bool WxKavFrame::OnDrawing(double done)
{
    constexpr int kParts = 1000;
    const auto now = std::chrono::steady_clock::now();
    if (now < m_nextLook || !IsShown())
        return true;
    m_nextLook = now + std::min(patience, kLookEvery);
    const wxString layer = m_statusBar->GetStatusText(0);
    if (!m_drawing)
        m_drawing.emplace("Kavdex", layer, kParts, this, wxPD_APP_MODAL | wxPD_CAN_ABORT | wxPD_REMAINING_TIME);
    if (m_drawing->Update(std::min(static_cast<int>(done * kParts), kParts - 1)))
        return true;
    OnWarning(layer + " stopped: the map lacks the rest");
    return false;
}

void WxKavFrame::OnPictureChanged()
{
    m_drawing.reset();
    m_canvas->ShowPicture();
}

void WxKavFrame::OnWarning(const wxString& text)
{
    m_warning = text;
    SetStatusText(text, 0);
}

void WxKavFrame::OnPropagationBegun()
{
    m_warning.clear();
    m_commandsOff.emplace(*m_toolBar, *GetMenuBar());
    m_wait = Wait::Silent;
    m_waitSince = UtcNow();
}

bool WxKavFrame::OnWaiting(std::chrono::milliseconds waited)
{
    if (m_wait == Wait::Silent && waited >= kShortWait)
    {
        m_wait = Wait::Shown;
        OnStep(wxString::Format("Waiting for voacapl since %02d:%02d:%02d Z; Escape ends it", m_waitSince.hour,
                                m_waitSince.minute, m_waitSince.second));
    }
    if (auto* const loop = wxEventLoopBase::GetActive())
        loop->YieldFor(wxEVT_CATEGORY_ALL);
    return m_wait == Wait::Silent || m_wait == Wait::Shown;
}

void WxKavFrame::OnPropagationEnded()
{
    m_commandsOff.reset();
    const Wait wait = std::exchange(m_wait, Wait::None);
    if (wait == Wait::Closed)
        Destroy();
    else if (wait == Wait::Abandoned)
        OnError("voacapl was ended. The map has no propagation overlay.");
}

void WxKavFrame::OnGreylineShown()
{
    m_toolBar->EnableTool(ui::kIdGreyline, true);
    m_toolBar->ToggleTool(ui::kIdGreyline, true);
}

void WxKavFrame::OnGreylineTool(wxCommandEvent& event)
{
    const int timeMode = m_settings->greyzone.timeMode;
    if (!event.IsChecked())
    {
        m_canvas->showGreyline = false;
    }
    else if (m_canvas->greylineBitmap)
    {
        m_canvas->showGreyline = true;
    }
    else if (timeMode == kRealTime || timeMode == kOnce)
    {
        FollowTimeMode(m_greylineTimer, timeMode, kGreylinePeriodMs);
        greylineDrawn = true;
        DrawGreyline();
    }
    m_canvas->ShowPicture();
}

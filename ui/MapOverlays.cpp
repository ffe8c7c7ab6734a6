#include "ui/WxKavFrame.h"

#include "geo/SunCalc.h"
#include "geo/Truncate.h"
#include "propagation/Propagation.h"
#include "render/Greyline.h"
#include "ui/CommandsOff.h"
#include "ui/Ids.h"

#include <wx/evtloop.h>

#include <algorithm>
#include <limits>
#include <utility>

namespace
{
constexpr int kGreylinePeriodMs = 1000;
constexpr int kPropagationPeriodMs = 60000;

/// A run of voacapl takes some seconds at most.
constexpr std::chrono::milliseconds kShortWait(3000);

/// In real time the propagation overlay follows the clock in this minute of every hour: the first after the one in
/// which the run's hour is rounded up.
constexpr int kPropagationMinute = 31;

void FollowTimeMode(wxTimer& timer, int timeMode, int periodMs)
{
    if (timeMode == kRealTime)
        timer.Start(periodMs);
    else if (timeMode == kOnce)
        timer.Stop();
}

/// The month counted from 1; settings may hold any number.
int MonthOf(const UtcTime& time)
{
    return std::min(time.month, std::numeric_limits<int>::max() - 1) + 1;
}

SunCalc::Result SunAt(const UtcTime& time, const AzimuthalProjection& station)
{
    const double day = SunCalc::DayNumber(time.day, MonthOf(time), time.year, time.hour, time.minute, time.second);
    return SunCalc::Position(day, station.centreLonDeg, station.centreLatDeg);
}

wxString StatusOf(const UtcTime& time, const SunCalc::Result& sun)
{
    return wxString::Format("%04d-%02d-%02d %02d:%02d Z | SunAz %.3f | SunEl %.3f", time.year, MonthOf(time), time.day,
                            time.hour, time.minute, sun.azimuth, sun.elevation);
}
} // namespace

void WxKavFrame::DrawOverlays()
{
    const int timeMode = m_settings->greyzone.timeMode;
    if (m_settings->greyzone.show && (timeMode == kRealTime || timeMode == kOnce))
    {
        FollowTimeMode(m_greylineTimer, timeMode, kGreylinePeriodMs);
        greylineDrawn = true;
        DrawGreyline();
    }

    const PropagationSettings& propagation = m_settings->propagation;
    if (propagation.show)
    {
        FollowTimeMode(m_propagationTimer, timeMode, kPropagationPeriodMs);
        DrawPropagation(true);
    }
    SetPropagationTools(propagation.show, propagation.frequency, propagation.parameter);
}

void WxKavFrame::DrawGreyline()
{
    // A tick may come while voacapl runs.
    if (!HasMap() || Propagation::IsBusy())
        return;
    const bool forced = greylineDrawn;
    if (forced)
        m_hourAngleDegree.reset();
    const GreyzoneSettings& greyzone = m_settings->greyzone;
    const bool once = greyzone.timeMode == kOnce;
    const UtcTime time = once ? greyzone.once : UtcNow();
    const SunCalc::Result sun = SunAt(time, m_view->projection);
    SetStatusText(StatusOf(time, sun), 1);
    if (!forced && !m_toolBar->GetToolState(ui::kIdGreyline))
        return; // a tick never shows what the user has switched off
    if (!once && !RememberHourAngle(geo::TruncateToInt64(sun.greenwichHourAngle)))
        return;

    greylineDrawn = false;
    m_canvas->showGreyline = false;
    ShowStep("Drawing SunTerm...");
    auto overlay = render::DrawGreyline(*m_view, greyzone, sun.SubSolarPoint());
    if (!overlay)
    {
        ShowError("Error creating bitmap original function DrawSunTerm2");
        return;
    }
    m_canvas->greylineBitmap = std::move(overlay);
    m_canvas->showGreyline = true;
    SetStatusText("", 0);
    m_toolBar->EnableTool(ui::kIdGreyline, true);
    m_toolBar->ToggleTool(ui::kIdGreyline, true);
    m_canvas->ShowPicture();
}

bool WxKavFrame::RememberHourAngle(std::int64_t degree)
{
    return std::exchange(m_hourAngleDegree, degree) != degree;
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

void WxKavFrame::DrawPropagation(bool selectionChanged)
{
    if (!HasMap() || Propagation::IsBusy() || (!selectionChanged && UtcNow().minute != kPropagationMinute))
        return;
    ShowStep("Drawing Prop...");
    {
        const ui::CommandsOff commandsOff(*m_toolBar, *GetMenuBar());
        m_wait = Wait::Silent;
        m_waitSince = UtcNow();
        const Propagation overlay(
            *m_canvas, *m_view, *m_settings, [this](const wxString& step) { ShowStep(step); },
            keepWaiting ? keepWaiting : [this](auto waited) { return WaitForVoacapl(waited); });
        m_warning = overlay.Warning();
    }
    const Wait wait = std::exchange(m_wait, Wait::None);
    if (wait == Wait::Closed)
    {
        Destroy();
        return;
    }
    if (wait == Wait::Abandoned)
        ShowError("voacapl was ended. The map has no propagation overlay.");
    if (!m_warning.empty() && onWarning)
        onWarning(m_warning);
    SetStatusText(m_warning, 0);
    m_canvas->ShowPicture();
}

bool WxKavFrame::WaitForVoacapl(std::chrono::milliseconds waited)
{
    if (m_wait == Wait::Silent && waited >= kShortWait)
    {
        m_wait = Wait::Shown;
        ShowStep(wxString::Format("Waiting for voacapl since %02d:%02d:%02d Z; Escape ends it", m_waitSince.hour,
                                  m_waitSince.minute, m_waitSince.second));
    }
    if (auto* const loop = wxEventLoopBase::GetActive())
        loop->YieldFor(wxEVT_CATEGORY_ALL);
    return m_wait == Wait::Silent || m_wait == Wait::Shown;
}

#include "maker/MapMaker.h"

#include "geo/SunCalc.h"
#include "geo/Truncate.h"
#include "propagation/Propagation.h"
#include "render/Greyline.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace
{
/// In real time the propagation overlay follows the clock in this minute of every hour: the first after the one in
/// which the run's hour is rounded up.
constexpr int kPropagationMinute = 31;

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

void MapMaker::DrawOverlays()
{
    const int timeMode = m_settings.greyzone.timeMode;
    if (m_settings.greyzone.show && (timeMode == kRealTime || timeMode == kOnce))
    {
        greylineDrawn = true;
        DrawGreyline();
    }
    if (m_settings.propagation.show)
        DrawPropagation(true);
}

void MapMaker::DrawGreyline(bool isWanted)
{
    // A tick may come while voacapl runs.
    if (!HasMap() || m_makesPropagation > 0)
        return;
    if (greylineDrawn)
        m_hourAngleDegree.reset();
    const GreyzoneSettings& greyzone = m_settings.greyzone;
    const bool once = greyzone.timeMode == kOnce;
    const UtcTime time = once ? greyzone.once : UtcNow();
    const SunCalc::Result sun = SunAt(time, m_view->projection);
    m_listener.OnSun(StatusOf(time, sun));
    if (!greylineDrawn && !isWanted)
        return;
    if (!once && !RememberHourAngle(geo::TruncateToInt64(sun.greenwichHourAngle)))
        return;

    greylineDrawn = false;
    m_picture.showGreyline = false;
    m_listener.OnStep("Drawing SunTerm...");
    if (!m_picture.PutGreyline(std::make_unique<render::GreylineOverlay>(*m_view, greyzone, sun.SubSolarPoint())))
    {
        m_listener.OnError("Error creating bitmap original function DrawSunTerm2");
        return;
    }
    m_listener.OnStep("");
    m_listener.OnGreylineShown();
    m_listener.OnPictureChanged();
}

bool MapMaker::RememberHourAngle(std::int64_t degree)
{
    return std::exchange(m_hourAngleDegree, degree) != degree;
}

void MapMaker::DrawPropagation(bool selectionChanged)
{
    const UtcTime now = UtcNow();
    if (!HasMap() || m_makesPropagation > 0 || (!selectionChanged && now.minute != kPropagationMinute))
        return;
    m_listener.OnStep("Drawing Prop...");
    m_listener.OnPropagationBegun();
    const wxString warning = MakePropagation(now);
    m_listener.OnPropagationEnded();
    m_listener.OnStep("");
    if (!warning.empty())
        m_listener.OnWarning(warning);
    m_listener.OnPictureChanged();
}

wxString MapMaker::MakePropagation(const UtcTime& now)
{
    const wxRecursionGuard guard(m_makesPropagation);
    m_picture.showPropagation = false;
    Propagation made = Propagation::Compute(m_settings, *m_view, now, m_listener);
    m_settings.propagation.engine = made.engine;
    for (const wxString& error : made.errors)
        m_listener.OnError(error);
    if (!made.overlay || m_picture.PutPropagation(std::move(made.overlay)))
        return made.warning;
    m_listener.OnError("Error creating bitmap original function Prop");
    return {};
}

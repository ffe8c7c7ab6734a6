#include "ui/Antenna.h"

namespace ui
{
namespace
{
using Clock = rotator::Rotator::Clock;

constexpr int kPeriodMs = 100;

/// In the order of the lines.
const wxPen& PenOf(std::size_t line)
{
    static const std::array<wxPen, 2> kPens{wxPen(wxColour(200, 0, 0), 1, wxPENSTYLE_SHORT_DASH),
                                            wxPen(wxColour(200, 0, 0))};
    return kPens[line];
}
} // namespace

Antenna::Antenna(const rotator::Address& address, MapCanvas& canvas, GetView view, Say say)
    : m_canvas(canvas), m_view(std::move(view)), m_say(std::move(say)), m_rotator(address)
{
    m_rotator.onNews = [this](const rotator::Rotator::News& news) { m_say(wxString::FromUTF8(news.text)); };
    m_canvas.onPainted = [this](wxDC& dc) { Draw(dc); };
    m_timer.Bind(wxEVT_TIMER, [this](wxTimerEvent&) { OnTimer(); });
    m_timer.Start(kPeriodMs);
}

void Antenna::Turn(double bearingDeg)
{
    m_say(wxString::Format("Turning the antenna to %.1f degs...", bearingDeg));
    m_rotator.Turn(bearingDeg, Clock::now());
}

void Antenna::Stop()
{
    m_say("Stopping the antenna...");
    m_rotator.Stop(Clock::now());
}

void Antenna::OnTimer()
{
    m_rotator.Step(Clock::now());
    const Lines now = LinesNow();
    for (std::size_t i = 0; i < now.size(); ++i)
        if (now[i] != m_lines[i])
            return Repaint(now);
}

Antenna::Lines Antenna::LinesNow() const
{
    const MapView* const view = m_view();
    if (!view || !m_canvas.mapReady)
        return {};
    const auto line = [view](const std::optional<double>& bearing)
    { return bearing ? std::optional<AntennaLine>(std::in_place, view->frame, *bearing) : std::nullopt; };
    return {line(m_rotator.Target()), line(m_rotator.Bearing())};
}

void Antenna::Repaint(const Lines& lines)
{
    for (std::size_t i = 0; i < lines.size(); ++i)
        if (lines[i] != m_lines[i])
            for (const auto& line : {m_lines[i], lines[i]})
                if (line)
                    m_canvas.RefreshPlaces(line->Places());
    m_lines = lines;
}

void Antenna::Draw(wxDC& dc) const
{
    for (std::size_t i = 0; i < m_lines.size(); ++i)
        if (m_lines[i])
            m_lines[i]->Draw(dc, PenOf(i));
}
} // namespace ui

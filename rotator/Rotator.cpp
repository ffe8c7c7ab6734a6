#include "rotator/Rotator.h"

#include <cstdio>
#include <utility>

namespace rotator
{
namespace
{
constexpr double kReachedDeg = 1.0;

/// A rotator that gives the same position so often has ended its turning, wherever that is.
constexpr int kRestingAnswers = 10;

std::string TurnedText(double bearingDeg)
{
    char text[64];
    std::snprintf(text, sizeof text, "Antenna to %.1f degs", bearingDeg);
    return text;
}
} // namespace

void Rotator::Order(const Command& command)
{
    m_order = command;
    m_retry = {};
}

void Rotator::Step(Clock::time_point now)
{
    m_now = now;
    if (!m_link)
    {
        if (m_now >= m_retry)
            Connect();
        return;
    }
    const Link::State state = m_link->Advance();
    if (state == Link::State::Open)
        Talk();
    else if (state == Link::State::Closed || m_now >= m_deadline)
        Lose();
}

void Rotator::Connect()
{
    m_link.emplace(m_address);
    m_deadline = m_now + kLimit;
}

void Rotator::Talk()
{
    m_received += m_link->Receive();
    if (const auto reply = m_handler ? ReadReply(m_received) : std::nullopt)
    {
        m_received.erase(0, reply->length);
        m_isLossTold = false;
        (this->*std::exchange(m_handler, nullptr))(*reply);
    }
    if (HasNonsense() || IsLate())
        Lose();
    else if (!m_handler)
        Ask();
}

bool Rotator::HasNonsense() const
{
    // Nothing is said without being asked.
    return m_received.size() > (m_handler ? kLongestReply : 0);
}

bool Rotator::IsLate() const
{
    return (m_handler && m_now >= m_deadline) || (m_order && m_now >= m_order->expires);
}

void Rotator::Ask()
{
    const bool knowsWhere = m_range && m_hasAskedPosition;
    if (m_order && (knowsWhere || !m_order->bearing))
        SendOrder();
    else if (!m_range)
        Send(kAskState, &Rotator::OnState, m_now + kLimit);
    else if (m_now >= m_nextPosition)
        Send(kAskPosition, &Rotator::OnPosition, m_now + kLimit);
}

void Rotator::SendOrder()
{
    m_sent = std::exchange(m_order, std::nullopt);
    if (m_sent->bearing)
        Send(TurnCommand(AzimuthForBearing(*m_sent->bearing, *m_range, m_azimuth)), &Rotator::OnTurned,
             m_sent->expires);
    else
        Send(kStop, &Rotator::OnStopped, m_sent->expires);
    m_nextPosition = m_now;
}

void Rotator::Send(const std::string& command, Handler handler, Clock::time_point deadline)
{
    m_link->Send(command);
    m_handler = handler;
    m_deadline = deadline;
}

void Rotator::OnState(const Reply& reply)
{
    m_range = RangeIn(reply).value_or(AzimuthRange{});
}

void Rotator::OnPosition(const Reply& reply)
{
    m_hasAskedPosition = true;
    m_nextPosition = m_now + kPositionPeriod;
    const auto before = std::exchange(m_azimuth, reply.code == 0 ? AzimuthIn(reply) : std::nullopt);
    FollowTarget(m_azimuth == before);
}

void Rotator::FollowTarget(bool isResting)
{
    m_restingAnswers = isResting ? m_restingAnswers + 1 : 0;
    const bool isThere = m_target && m_azimuth && AngleBetween(*Bearing(), *m_target) < kReachedDeg;
    if (isThere || m_restingAnswers >= kRestingAnswers)
        m_target.reset();
}

void Rotator::OnTurned(const Reply& reply)
{
    const double bearing = *std::exchange(m_sent, std::nullopt)->bearing;
    if (reply.code == 0)
    {
        m_target = bearing;
        m_restingAnswers = 0;
    }
    TellOutcome(reply, TurnedText(bearing));
}

void Rotator::OnStopped(const Reply& reply)
{
    m_sent.reset();
    if (reply.code == 0)
        m_target.reset();
    TellOutcome(reply, "Antenna stopped");
}

void Rotator::TellOutcome(const Reply& reply, const std::string& done)
{
    if (reply.code == 0)
        Tell({done, false});
    else
        Tell({"Rotator: " + ErrorText(reply.code), true});
}

void Rotator::Tell(const News& news) const
{
    if (onNews)
        onNews(news);
}

void Rotator::Lose()
{
    m_link.reset();
    m_received.clear();
    m_handler = nullptr;
    m_range.reset();
    m_hasAskedPosition = false;
    m_azimuth.reset();
    m_target.reset();
    m_retry = m_now + kRetryPause;
    const bool wasOrdered = m_order || m_sent;
    m_order.reset();
    m_sent.reset();
    if (!std::exchange(m_isLossTold, true) || wasOrdered)
        Tell({"Rotator: no answer from " + m_address.Text(), true});
}

std::optional<double> Rotator::Bearing() const
{
    return m_azimuth ? std::optional(BearingOfAzimuth(*m_azimuth)) : std::nullopt;
}
} // namespace rotator

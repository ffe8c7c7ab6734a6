#pragma once

#include "rotator/Link.h"
#include "rotator/Protocol.h"

#include <chrono>
#include <functional>
#include <optional>
#include <string>

namespace rotator
{
/**
 * The rotator of an antenna, turned through a rotctld.
 *
 * Nothing here waits: Step() does what can be done at the moment and is called again and again. Where the rotator
 * points is asked once a second. Connecting, asking and orders have kLimit; a connection that is lost, silent or talks
 * nonsense is dropped and tried again after kRetryPause. An order never outlives its limit: an antenna does not
 * turn when nobody expects it any more.
 */
class Rotator
{
public:
    using Clock = std::chrono::steady_clock;

    static constexpr std::chrono::seconds kLimit{5};
    static constexpr std::chrono::seconds kRetryPause{5};
    static constexpr std::chrono::seconds kPositionPeriod{1};

    /// What has become of an order; a lost connection is told without one, once until it answers again.
    struct News
    {
        std::string text; ///< "Antenna to 41.5 degs", "Antenna stopped", or "Rotator: " and what failed
        bool hasFailed;
    };

    explicit Rotator(Address address) : m_address(std::move(address)) {}

    /// Orders to turn to a bearing, 0 <= bearing < 360 degrees, and to stop. An order takes the place of one that is
    /// not sent yet.
    void Turn(double bearingDeg, Clock::time_point now) { Order({bearingDeg, now + kLimit}); }
    void Stop(Clock::time_point now) { Order({std::nullopt, now + kLimit}); }

    /// Goes on with whatever there is to do. Never goes back in time.
    void Step(Clock::time_point now);

    /// The bearing at which the antenna points; none while it is not known.
    std::optional<double> Bearing() const;

    /// The bearing to which it has been ordered; none when it is reached, was stopped or does not come nearer.
    const std::optional<double>& Target() const { return m_target; }

    /// Told the news, from within Step(); nobody by default.
    std::function<void(const News& news)> onNews;

private:
    struct Command
    {
        std::optional<double> bearing; ///< none: to stop
        Clock::time_point expires;
    };
    using Handler = void (Rotator::*)(const Reply& reply);

    void Order(const Command& command);
    void Connect();
    void Talk();
    bool HasNonsense() const;
    bool IsLate() const;
    void Ask();
    void SendOrder();
    void Send(const std::string& command, Handler handler, Clock::time_point deadline);
    void OnState(const Reply& reply);
    void OnPosition(const Reply& reply);
    void OnTurned(const Reply& reply);
    void OnStopped(const Reply& reply);
    void FollowTarget(bool isResting);
    void TellOutcome(const Reply& reply, const std::string& done);
    void Tell(const News& news) const;
    void Lose();

    const Address m_address;
    Clock::time_point m_now{};
    Clock::time_point m_deadline{};     ///< for connecting, for the answer
    Clock::time_point m_retry{};        ///< when to connect again
    Clock::time_point m_nextPosition{}; ///< when to ask for it
    std::optional<Link> m_link;
    std::string m_received;
    Handler m_handler = nullptr;         ///< of the answer that is awaited
    std::optional<Command> m_order;      ///< to be sent
    std::optional<Command> m_sent;       ///< its answer is awaited
    std::optional<AzimuthRange> m_range; ///< once asked on this connection
    bool m_hasAskedPosition = false;     ///< on this connection
    std::optional<double> m_azimuth;
    std::optional<double> m_target;
    int m_restingAnswers = 0; ///< positions in a row that were the same
    bool m_isLossTold = false;
};
} // namespace rotator

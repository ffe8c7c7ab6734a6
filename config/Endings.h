#pragma once

#include <array>
#include <csignal>

/// The signals by which others end this program and which it can see coming.
inline constexpr std::array kEndingSignals{SIGHUP,  SIGINT,  SIGQUIT, SIGTERM, SIGPIPE,
                                           SIGALRM, SIGUSR1, SIGUSR2, SIGXCPU, SIGXFSZ};

/**
 * While one of these lives, a signal by which a user or the system ends this program does something first. The program
 * ends by that signal all the same; one that is ignored stays ignored. Those made last act first.
 */
class Endings
{
public:
    /// What to do; of what the system offers only what is allowed in the handler of a signal.
    using Action = void (*)();

    explicit Endings(Action action);
    ~Endings();
    Endings(const Endings&) = delete;
    Endings& operator=(const Endings&) = delete;

private:
    static void Act(int ending);

    static Endings* volatile s_latest;

    const Action m_action;
    Endings* const m_before;
};

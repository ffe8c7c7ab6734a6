#include "config/Endings.h"

namespace
{
std::array<struct sigaction, kEndingSignals.size()> theActionsBefore;

void Catch(void (*handler)(int))
{
    struct sigaction action
    {
    };
    action.sa_handler = handler;
    action.sa_flags = SA_RESTART;
    sigfillset(&action.sa_mask); // whatever comes meanwhile comes to this thread, and later
    for (std::size_t i = 0; i < kEndingSignals.size(); ++i)
    {
        sigaction(kEndingSignals[i], nullptr, &theActionsBefore[i]);
        if (theActionsBefore[i].sa_handler != SIG_IGN)
            sigaction(kEndingSignals[i], &action, nullptr);
    }
}

void Release()
{
    for (std::size_t i = 0; i < kEndingSignals.size(); ++i)
        sigaction(kEndingSignals[i], &theActionsBefore[i], nullptr);
}
} // namespace

Endings* volatile Endings::s_latest = nullptr;

Endings::Endings(Action action) : m_action(action), m_before(s_latest)
{
    s_latest = this;
    if (!m_before)
        Catch(Act);
}

Endings::~Endings()
{
    if (!m_before)
        Release();
    s_latest = m_before;
}

void Endings::Act(int ending)
{
    for (const Endings* one = s_latest; one; one = one->m_before)
        one->m_action();
    // Then as if it had not been caught.
    Release();
    raise(ending);
}

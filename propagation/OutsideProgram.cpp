#include "propagation/OutsideProgram.h"

#include <cerrno>
#include <thread>
#include <utility>

#include <fcntl.h>
#include <linux/close_range.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace propagation
{
namespace
{
using Clock = std::chrono::steady_clock;

constexpr std::chrono::milliseconds kPause(10);

volatile pid_t theGroup = 0; ///< that runs now

void EndGroup()
{
    kill(-theGroup, SIGKILL);
}

/// The signals that end this program wait for as long as it lives.
class EndingsLater
{
public:
    EndingsLater()
    {
        sigset_t endings;
        sigemptyset(&endings);
        for (const int ending : kEndingSignals)
            sigaddset(&endings, ending);
        sigprocmask(SIG_BLOCK, &endings, &before);
    }
    ~EndingsLater() { sigprocmask(SIG_SETMASK, &before, nullptr); }
    EndingsLater(const EndingsLater&) = delete;
    EndingsLater& operator=(const EndingsLater&) = delete;

    sigset_t before{};
};

/// What the child does: only what is allowed between fork and exec.
[[noreturn]] void Become(const char* const* arguments, pid_t parent, const sigset_t& signals, int failure)
{
    setpgid(0, 0);
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    dup2(open("/dev/null", O_RDONLY), STDIN_FILENO);
    close_range(STDERR_FILENO + 1, ~0U, CLOSE_RANGE_CLOEXEC);
    sigprocmask(SIG_SETMASK, &signals, nullptr);
    if (getppid() == parent)
        execvp(arguments[0], const_cast<char* const*>(arguments));
    [[maybe_unused]] const ssize_t told = write(failure, "", 1);
    _exit(127);
}

/// The end of a pipe at which a program that could not be started says so.
bool SaysFailure(int pipeEnd)
{
    char byte = 0;
    ssize_t count = 0;
    while ((count = read(pipeEnd, &byte, 1)) < 0 && errno == EINTR)
        continue;
    return count != 0;
}

int StatusOf(pid_t process)
{
    int status = 0;
    while (waitpid(process, &status, 0) < 0)
        if (errno != EINTR)
            return OutsideProgram::kNotStarted;
    return WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
}

bool HasEnded(pid_t process)
{
    // It is left there, so that its number is not another's before its signals are left.
    siginfo_t state{};
    return waitid(P_PID, static_cast<id_t>(process), &state, WEXITED | WNOHANG | WNOWAIT) < 0 || state.si_pid != 0;
}
} // namespace

OutsideProgram::OutsideProgram(const char* const* arguments) : m_process(-1)
{
    int failure[2];
    if (pipe2(failure, O_CLOEXEC) != 0)
        return;
    {
        const EndingsLater later;
        const pid_t parent = getpid();
        m_process = fork();
        if (m_process == 0)
            Become(arguments, parent, later.before, failure[1]);
        if (m_process > 0)
        {
            setpgid(m_process, m_process); // whoever of the two comes first
            theGroup = m_process;
            m_endings.emplace(EndGroup);
        }
    }
    close(failure[1]);
    if (m_process > 0 && SaysFailure(failure[0]))
    {
        m_endings.reset();
        StatusOf(m_process);
        m_process = -1;
    }
    close(failure[0]);
}

OutsideProgram::~OutsideProgram()
{
    if (m_process <= 0)
        return;
    kill(-m_process, SIGKILL);
    m_endings.reset();
    StatusOf(m_process);
}

std::optional<int> OutsideProgram::Wait(Progress& progress)
{
    if (m_process <= 0)
        return kNotStarted;
    for (const auto start = Clock::now(); !HasEnded(m_process); std::this_thread::sleep_for(kPause))
        if (!progress.OnWaiting(std::chrono::duration_cast<std::chrono::milliseconds>(Clock::now() - start)))
            return std::nullopt;
    m_endings.reset();
    return StatusOf(std::exchange(m_process, -1));
}
} // namespace propagation

#include "propagation/OutsideProgram.h"

#include "tests/support/Processes.h"
#include "tests/support/TemporaryHome.h"

#include <gtest/gtest.h>

#include <csignal>
#include <functional>
#include <optional>
#include <utility>

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace
{
using propagation::OutsideProgram;

/// Asks a function whether to go on waiting.
class Waiting : public propagation::Progress
{
public:
    explicit Waiting(std::function<bool(std::chrono::milliseconds)> ask) : m_ask(std::move(ask)) {}
    void OnStep(const wxString&) override {}
    bool OnWaiting(std::chrono::milliseconds waited) override { return !m_ask || m_ask(waited); }

private:
    std::function<bool(std::chrono::milliseconds)> m_ask;
};

class OutsideProgramTest : public testing::Test
{
protected:
    static std::optional<int> Run(const char* script, std::function<bool(std::chrono::milliseconds)> ask = {})
    {
        const char* const arguments[] = {"sh", "-c", script, nullptr};
        Waiting waiting(std::move(ask));
        return OutsideProgram(arguments).Wait(waiting);
    }

    std::vector<pid_t> Processes() const { return ProcessesIn(home.Path("pids").utf8_string()); }

    /// Runs it in a process of its own, which gets a signal once the outside program is at work.
    void RunAndSend(const char* script, int signal, int& status)
    {
        const pid_t process = fork();
        if (process == 0)
        {
            Run(script);
            _exit(0);
        }
        EXPECT_TRUE(AwaitQuietly([&] { return Processes().size() == 2; }));
        kill(process, signal);
        waitpid(process, &status, 0);
    }

    const TemporaryHome home;
};

/// Two processes of one group, their numbers in a file that appears whole.
constexpr char kTwoProcesses[] = "sleep 100 & echo $$ $! >new; mv new pids; wait";

TEST_F(OutsideProgramTest, ReturnsHowItEnded)
{
    EXPECT_EQ(Run("exit 0"), 0);
    EXPECT_EQ(Run("exit 7"), 7);
    EXPECT_EQ(Run("kill -9 $$"), -9);
}

TEST_F(OutsideProgramTest, IsSilentAboutAProgramThatIsNotThere)
{
    const char* const arguments[] = {"no-such-program", nullptr};
    testing::internal::CaptureStderr();
    Waiting forEver({});
    EXPECT_EQ(OutsideProgram(arguments).Wait(forEver), -1);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TEST_F(OutsideProgramTest, GivesItAnEmptyInput)
{
    home.Write("input", "text");
    const int before = dup(STDIN_FILENO);
    const int input = open(home.Path("input").utf8_str(), O_RDONLY);
    dup2(input, STDIN_FILENO);
    EXPECT_EQ(Run("test -z \"$(cat)\""), 0);
    dup2(before, STDIN_FILENO);
    close(input);
    close(before);
}

TEST_F(OutsideProgramTest, PassesNoOpenFilesOn)
{
    const int file = open("/dev/null", O_RDONLY);
    const int high = dup2(file, 77);
    EXPECT_EQ(Run("test ! -e /proc/$$/fd/77"), 0);
    close(high);
    close(file);
}

TEST_F(OutsideProgramTest, GoesOnForThoseWhoDoNotMind)
{
    class Listening : public propagation::Progress
    {
        void OnStep(const wxString&) override {}
    };
    Listening listening;
    EXPECT_TRUE(listening.OnWaiting(std::chrono::hours(1)));
}

TEST_F(OutsideProgramTest, IsEndedWithItsWholeGroup)
{
    std::chrono::milliseconds last(0);
    const auto status = Run(kTwoProcesses,
                            [&](std::chrono::milliseconds waited)
                            {
                                EXPECT_GE(waited, last);
                                last = waited;
                                return last.count() == 0 || Processes().size() < 2;
                            });
    EXPECT_EQ(status, std::nullopt);
    ASSERT_EQ(Processes().size(), 2u);
    EXPECT_TRUE(HaveEnded(Processes()));
}

TEST_F(OutsideProgramTest, EndsWithThisProgramWhenThatIsToldToEnd)
{
    for (const int signal : {SIGTERM, SIGINT, SIGHUP, SIGQUIT})
    {
        unlink(home.Path("pids").utf8_str());
        int status = 0;
        RunAndSend(kTwoProcesses, signal, status);
        EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == signal) << signal;
        EXPECT_TRUE(HaveEnded(Processes())) << signal;
    }
}

TEST_F(OutsideProgramTest, EndsWithThisProgramWhenThatIsKilled)
{
    int status = 0;
    RunAndSend("echo $$ $$ >new; mv new pids; exec sleep 100", SIGKILL, status);
    EXPECT_TRUE(HaveEnded(Processes()));
}

TEST_F(OutsideProgramTest, LeavesTheSignalsAsTheyWere)
{
    const auto before = std::signal(SIGINT, SIG_IGN);
    EXPECT_EQ(Run("exit 0",
                  [](std::chrono::milliseconds)
                  {
                      raise(SIGINT); // still ignored
                      return true;
                  }),
              0);
    EXPECT_EQ(std::signal(SIGINT, before), SIG_IGN);
    EXPECT_EQ(std::signal(SIGTERM, SIG_DFL), SIG_DFL);
    sigset_t blocked;
    sigprocmask(SIG_BLOCK, nullptr, &blocked);
    EXPECT_EQ(sigismember(&blocked, SIGTERM), 0);
}

TEST_F(OutsideProgramTest, LeavesNoFilesOpen)
{
    const auto open = [] { return std::distance(std::filesystem::directory_iterator("/proc/self/fd"), {}); };
    const auto before = open();
    EXPECT_EQ(Run("exit 0"), 0);
    const char* const missing[] = {"/nowhere/at/all", nullptr};
    Waiting waiting({});
    EXPECT_EQ(OutsideProgram(missing).Wait(waiting), OutsideProgram::kNotStarted);
    EXPECT_EQ(open(), before);
}

TEST_F(OutsideProgramTest, StartsWhateverWentWrongBefore)
{
    errno = EINTR; // nobody clears it where nothing goes wrong
    EXPECT_EQ(Run("exit 0"), 0);
}

TEST_F(OutsideProgramTest, TakesSignalsAsAnyOtherProgram)
{
    EXPECT_EQ(Run("kill -TERM $$"), -SIGTERM);
}
} // namespace

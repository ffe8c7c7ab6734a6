#include "tests/support/Processes.h"
#include "tests/support/ProgramUnderTest.h"
#include "tests/support/TemporaryHome.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <wx/filename.h>
#include <wx/utils.h>

#include <csignal>
#include <filesystem>

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace
{
using testing::HasSubstr;

/// The real program draws propagation without a window, with the stand-in in voacapl's place.
class VoacapProgramTest : public testing::Test
{
protected:
    VoacapProgramTest() { std::filesystem::create_directories(home.Path("data/areadata/default").utf8_string()); }

    /// Starts the program; propagation is what stands in that group of the settings besides the directory.
    pid_t Start(const std::string& behaviour, const std::string& propagation, const std::string& option = "",
                const std::string& path = KAV_STAND_IN)
    {
        home.Write("own.ini", "Size=120\n[Propagation]\nShow=1\nGrid=0\nDir=" + home.Path("data").utf8_string() + "\n" +
                                  propagation);
        std::vector<const char*> arguments{"kavmap", "-s", "own.ini", "-r", "map.png"};
        if (!option.empty())
            arguments.push_back(option.c_str());
        arguments.push_back(nullptr);
        const std::string wholePath = path + ":/usr/bin:/bin";
        const pid_t process = fork();
        if (process != 0)
            return process;
        setenv("KAV_STAND_IN", behaviour.c_str(), 1);
        setenv("PATH", wholePath.c_str(), 1);
        dup2(open("err.txt", O_WRONLY | O_CREAT | O_TRUNC, 0600), STDERR_FILENO);
        execv(ProgramUnderTest(), const_cast<char**>(arguments.data()));
        _exit(127);
    }

    static int StatusOf(pid_t process)
    {
        int status = 0;
        waitpid(process, &status, 0);
        return WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
    }

    /// Every line about the outside program on standard error; the toolkit's libraries may have lines of their own.
    std::string Err() const
    {
        std::istringstream lines(home.Read("err.txt"));
        std::string ours;
        for (std::string line; std::getline(lines, line);)
            if (line.find("kavmap") != std::string::npos || line.find("voacap") != std::string::npos)
                ours += line + "\n";
        return ours;
    }

    bool HasPicture() const { return wxFileName::Exists(home.Path("map.png")); }
    std::vector<pid_t> Processes() const { return ProcessesIn(home.Path("data/pids.txt").utf8_string()); }

    const TemporaryHome home;
};

TEST_F(VoacapProgramTest, DrawsWithoutAWord)
{
    EXPECT_EQ(StatusOf(Start("", "")), 0);
    EXPECT_EQ(Err(), "");
    EXPECT_TRUE(HasPicture());
}

TEST_F(VoacapProgramTest, SaysOnceThatVoacaplIsMissing)
{
    EXPECT_EQ(StatusOf(Start("", "", "", "/nowhere")), 2);
    EXPECT_EQ(Err(), "kavmap: Error calling VOACAP\n");
}

TEST_F(VoacapProgramTest, EndsARunThatTakesTooLong)
{
    EXPECT_EQ(StatusOf(Start("hangs", "", "--voacapl-timeout=1")), 2);
    EXPECT_EQ(Err(), "kavmap: voacapl was ended after 1 s. The map has no propagation overlay.\n");
    EXPECT_TRUE(HasPicture());
    EXPECT_EQ(Processes().size(), 2u);
    EXPECT_TRUE(HaveEnded(Processes()));
}

TEST_F(VoacapProgramTest, TakesWholeSecondsOnly)
{
    for (const char* const seconds : {"0", "-1", "1.5", "x", "", "5s", "99999999999"})
    {
        EXPECT_EQ(StatusOf(Start("", "", std::string("--voacapl-timeout=") + seconds)), 1) << seconds;
        EXPECT_EQ(Err(), std::string("kavmap: not a number of seconds: ") + seconds + "\n");
    }
    EXPECT_FALSE(HasPicture());
}

TEST_F(VoacapProgramTest, EndsVoacaplWhenItIsEndedItself)
{
    for (const int signal : {SIGTERM, SIGINT})
    {
        std::filesystem::remove(home.Path("data/pids.txt").utf8_string());
        const pid_t program = Start("hangs", "");
        EXPECT_TRUE(AwaitQuietly([&] { return Processes().size() == 2; }));
        kill(program, signal);
        EXPECT_EQ(StatusOf(program), -signal);
        EXPECT_TRUE(HaveEnded(Processes())) << signal;
    }
}

TEST_F(VoacapProgramTest, WarnsOfWhatVoacaplMisreads)
{
    // The stand-in refuses what does not fit, so its result comes from elsewhere.
    EXPECT_EQ(StatusOf(Start("", "SSN=120\nRxGain=1,5\n")), 2);
    EXPECT_THAT(Err(), HasSubstr("kavmap: warning: Propagation/RxGain: a comma ends it: 14,2 counts as 14 (fits: a "
                                 "decimal point)\nkavmap: warning: Propagation/SSN: the last digit is lost: 120 counts "
                                 "as 12 (fits: 0 to 99)\n"));
}

TEST_F(VoacapProgramTest, EndsWellInSpiteOfAWarning)
{
    EXPECT_EQ(StatusOf(Start("", "RxGain=1,5\n")), 0);
    EXPECT_EQ(Err(), "kavmap: warning: Propagation/RxGain: a comma ends it: 14,2 counts as 14 (fits: a decimal "
                     "point)\n");
    EXPECT_TRUE(HasPicture());
}

TEST_F(VoacapProgramTest, WarnsOfAResultThatIsNotWhole)
{
    EXPECT_EQ(StatusOf(Start("truncated", "")), 0);
    EXPECT_EQ(Err(), "kavmap: warning: Result not whole: 162 of 324 points lack a value and count as 0\n");
}

TEST_F(VoacapProgramTest, WarnsOfNothingThatIsNotRead)
{
    EXPECT_EQ(StatusOf(Start("", "")), 0);
    std::filesystem::copy_file(home.Path("data/areadata/default/kavdex.vg1").utf8_string(),
                               home.Path("mine.vg1").utf8_string());
    EXPECT_EQ(StatusOf(Start("", "SSN=120\nExtVg1=1\nExtVg1File=" + home.Path("mine.vg1").utf8_string() + "\n")), 0);
    EXPECT_EQ(Err(), "");
    EXPECT_EQ(StatusOf(Start("", "SSN=120\nShow=0\n")), 0);
    EXPECT_EQ(Err(), "");
}
} // namespace

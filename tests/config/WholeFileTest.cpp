#include "config/WholeFile.h"

#include "config/Endings.h"
#include "tests/support/TemporaryHome.h"

#include <gtest/gtest.h>

#include <wx/dir.h>

#include <array>
#include <cerrno>
#include <filesystem>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace
{
/// What the disk does with a file when it is flushed; none: what it should.
int (*theDisk)(int file) = nullptr;

/// What the next attempts to write fail with, the last first; none: they do what they should.
std::vector<int> theErrors;
} // namespace

/// These stand for those of the system in this program.
extern "C" int fsync(int file)
{
    return theDisk ? theDisk(file) : static_cast<int>(syscall(SYS_fsync, file));
}

extern "C" ssize_t write(int file, const void* bytes, std::size_t count)
{
    if (theErrors.empty())
        return syscall(SYS_write, file, bytes, count);
    errno = theErrors.back();
    theErrors.pop_back();
    return -1;
}

namespace
{
namespace fs = std::filesystem;

bool WriteNew(wxOutputStream& stream)
{
    return stream.WriteAll("new", 3);
}

class WholeFile : public testing::Test
{
protected:
    ~WholeFile() override
    {
        theDisk = nullptr;
        theErrors.clear();
    }

    std::size_t CountFiles() const
    {
        wxArrayString files;
        return wxDir::GetAllFiles(home.Path(""), &files, "", wxDIR_FILES | wxDIR_HIDDEN | wxDIR_NO_FOLLOW);
    }
    wxString Write(const wxString& name) const { return WriteWholeFile(home.Path(name), WriteNew); }

    /// How a process ended that got a signal while it wrote a file.
    int EndOfOneThatGets(int signal) const
    {
        const pid_t process = fork();
        if (process == 0)
        {
            WriteWholeFile(home.Path("a"),
                           [signal](wxOutputStream& stream)
                           {
                               WriteNew(stream);
                               return raise(signal) == 0;
                           });
            _exit(0);
        }
        int status = -1;
        EXPECT_EQ(waitpid(process, &status, 0), process);
        return status;
    }

    const TemporaryHome home;
};

TEST_F(WholeFile, TakesThePlaceOfAnOlderOne)
{
    home.Write("a", "older");
    EXPECT_EQ(Write("a"), "");
    EXPECT_EQ(home.Read("a"), "new");
    EXPECT_EQ(CountFiles(), 1u);
}

TEST_F(WholeFile, MayBeNamedWithoutADirectory)
{
    EXPECT_EQ(WriteWholeFile("a", WriteNew), "");
    EXPECT_EQ(home.Read("a"), "new");
}

TEST_F(WholeFile, MayBeWrittenOutOfOrder)
{
    const auto write = [](wxOutputStream& stream)
    {
        stream.WriteAll("1234", 4);
        stream.SeekO(1);
        stream.WriteAll("x", 1);
        return stream.TellO() == 2;
    };
    EXPECT_EQ(WriteWholeFile(home.Path("a"), write), "");
    EXPECT_EQ(home.Read("a"), "1x34");
}

TEST_F(WholeFile, IsWrittenOnAfterAnInterruption)
{
    theErrors = {EINTR, EINTR};
    EXPECT_EQ(Write("a"), "");
    EXPECT_TRUE(theErrors.empty());
    EXPECT_EQ(home.Read("a"), "new");
}

TEST_F(WholeFile, IsNotReplacedByOneThatDidNotFit)
{
    home.Write("a", "older");
    theErrors = {ENOSPC};
    EXPECT_EQ(Write("a"), "No space left on device");
    EXPECT_EQ(home.Read("a"), "older");
    EXPECT_EQ(CountFiles(), 1u);
}

TEST_F(WholeFile, IsNotReplacedByOneThatDidNotReachTheDisk)
{
    home.Write("a", "older");
    theDisk = [](int)
    {
        errno = EIO;
        return -1;
    };
    EXPECT_EQ(Write("a"), "Input/output error");
    EXPECT_EQ(home.Read("a"), "older");
    EXPECT_EQ(CountFiles(), 1u);
}

TEST_F(WholeFile, IsNotReplacedByOneThatIsShorterThanItWasWritten)
{
    home.Write("a", "older");
    theDisk = [](int file) { return ftruncate(file, 2); };
    EXPECT_EQ(Write("a"), "No space left on device");
    EXPECT_EQ(home.Read("a"), "older");
    EXPECT_EQ(CountFiles(), 1u);
}

TEST_F(WholeFile, IsWrittenWhereTheFileSystemKnowsNoFlushing)
{
    theDisk = [](int)
    {
        errno = EINVAL;
        return -1;
    };
    EXPECT_EQ(Write("a"), "");
    EXPECT_EQ(home.Read("a"), "new");
}

TEST_F(WholeFile, IsNotReplacedByOneWhoseWriterGaveUp)
{
    home.Write("a", "older");
    EXPECT_NE(WriteWholeFile(home.Path("a"), [](wxOutputStream& stream) { return !WriteNew(stream); }), "");
    EXPECT_EQ(home.Read("a"), "older");
    EXPECT_EQ(CountFiles(), 1u);
}

TEST_F(WholeFile, IsWrittenWhereLinksLeadThoughNothingIsThereYet)
{
    home.Write("elsewhere/README", "");
    fs::create_symlink("two", "one");
    fs::create_symlink("elsewhere/target", "two");
    for (int i = 0; i < 2; ++i)
    {
        EXPECT_EQ(Write("one"), "");
        EXPECT_EQ(home.Read("elsewhere/target"), "new");
        EXPECT_TRUE(fs::is_symlink("one") && fs::is_symlink("two"));
        home.Write("elsewhere/target", "older");
    }
    fs::create_symlink(home.Path("absolute target").utf8_string(), "absolute");
    EXPECT_EQ(Write("absolute"), "");
    EXPECT_EQ(home.Read("absolute target"), "new");
}

TEST_F(WholeFile, LeavesAloneWhatIsNoFile)
{
    fs::create_symlink("a", "b");
    fs::create_symlink("b", "a");
    EXPECT_EQ(Write("a"), "Too many levels of symbolic links");
    EXPECT_TRUE(fs::is_symlink("a"));
    fs::create_symlink("/dev/full", "device");
    EXPECT_EQ(Write("device"), "it is a pipe or a device");
    EXPECT_TRUE(fs::is_symlink("device"));
    ASSERT_EQ(mkfifo("pipe", 0600), 0);
    fs::create_symlink("pipe", "to pipe");
    EXPECT_EQ(Write("pipe"), "it is a pipe or a device");
    EXPECT_EQ(Write("to pipe"), "it is a pipe or a device");
    EXPECT_TRUE(fs::is_fifo(fs::symlink_status("pipe")));
    fs::create_directory("directory");
    EXPECT_EQ(Write("directory"), "it is a directory");
    EXPECT_TRUE(fs::is_directory("directory"));
    EXPECT_TRUE(fs::is_character_file("/dev/full"));
}

TEST_F(WholeFile, LeavesNothingUnfinishedWhenASignalEndsTheProgram)
{
    home.Write("a", "older");
    for (const int signal : kEndingSignals)
    {
        const int status = EndOfOneThatGets(signal);
        EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == signal) << signal << " " << status;
        EXPECT_EQ(CountFiles(), 1u) << signal;
        EXPECT_EQ(home.Read("a"), "older");
    }
}

TEST_F(WholeFile, IsWrittenOnWhereASignalIsIgnored)
{
    const auto before = std::signal(SIGHUP, SIG_IGN);
    EXPECT_EQ(EndOfOneThatGets(SIGHUP), 0);
    EXPECT_EQ(home.Read("a"), "new");
    std::signal(SIGHUP, before);
}

TEST_F(WholeFile, IsRecognisableWhereOneIsLeftUnfinished)
{
    EXPECT_TRUE(WIFSIGNALED(EndOfOneThatGets(SIGKILL)));
    wxArrayString files;
    EXPECT_EQ(wxDir::GetAllFiles(home.Path(""), &files, wxString(kUnfinished) + "*"), 1u);
    EXPECT_FALSE(fs::exists("a"));
}

TEST_F(WholeFile, LeavesSignalsAsTheyWere)
{
    const auto mine = [](int) {};
    const auto before = std::signal(SIGUSR1, mine);
    EXPECT_EQ(Write("a"), "");
    EXPECT_EQ(std::signal(SIGUSR1, before), static_cast<void (*)(int)>(mine));
}

int theActions = 0;

TEST(Endings, ActAllOfThemOnceTheLatestFirst)
{
    const pid_t process = fork();
    if (process == 0)
    {
        const Endings first([] { _exit(theActions == 1 ? 7 : 8); });
        const Endings latest([] { ++theActions; });
        raise(SIGTERM);
        _exit(9);
    }
    int status = -1;
    waitpid(process, &status, 0);
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 7) << status;
}
} // namespace

#include "tests/support/ProgramFixture.h"

#include <gmock/gmock.h>

#include <csignal>
#include <string>

namespace
{
using testing::HasSubstr;

/// What happens around the program: disks, directories, streams, names, other instances, its own end.
class FaultsTest : public ProgramTest
{
protected:
    /// The program is killed as soon as a file it writes has got so many bytes.
    static int RunUntilBytes(int bytes, const std::string& arguments)
    {
        return Shell("exec 2>/dev/null; env --default-signal=XFSZ prlimit --core=0 --fsize=" + std::to_string(bytes) +
                     " timeout --foreground 100 $KAVMAP " + arguments + " </dev/null");
    }

    /// Settings of a small map, as a complete file.
    std::string WholeSettings(long size) const
    {
        home.Write(".Kavdex", "Size=" + std::to_string(size) + "\n");
        EXPECT_EQ(Run("-r whole.png"), 0) << Err();
        return home.Read(".Kavdex");
    }

    static constexpr const char* kEndings[] = {"png", "jpg", "bmp", "pcx", "pnm", "tif"};
};

/// Disks and directories of a test's own.
class FaultsOfDisksTest : public FaultsTest
{
protected:
    void SetUp() override
    {
        if (Shell("unshare -rm mount -t tmpfs tmpfs /mnt 2>/dev/null") != 0)
            GTEST_SKIP() << "here nobody may mount a file system of his own";
    }

    /// Runs commands of a shell in which something is mounted that nobody else sees; what they say is in err.txt.
    int RunMounted(const std::string& mount, const std::string& commands) const
    {
        home.Write("commands", mount + " || exit 99\n" + commands);
        return Shell("timeout 100 unshare -rm sh ./commands >out.txt 2>err.txt </dev/null");
    }
};

TEST_F(FaultsOfDisksTest, LeaveThePictureThatWasThere)
{
    home.Write("full/place", "");
    home.Write("own.ini", "Size=300\n");
    for (const std::string ending : kEndings)
    {
        const std::string picture = "full/map." + ending;
        EXPECT_EQ(RunMounted("mount -t tmpfs -o size=16k tmpfs full", "echo precious >" + picture +
                                                                          "\n$KAVMAP -s own.ini -r " + picture +
                                                                          "; echo $? >status.txt; ls full; cat full/*"),
                  0);
        EXPECT_EQ(home.Read("status.txt"), "1\n") << ending;
        EXPECT_EQ(Err(), "kavmap: Couldn't write the picture " + picture + ": No space left on device\n");
        EXPECT_EQ(Out(), "map." + ending + "\nprecious\n");
    }
}

TEST_F(FaultsOfDisksTest, LeaveTheSettingsThatWereThere)
{
    home.Write("full/place", "");
    EXPECT_EQ(RunMounted("mount -t tmpfs -o size=8k tmpfs full",
                         "echo Size=123 >full/.Kavdex; head -c 4096 /dev/zero >full/filling\n"
                         "HOME=$PWD/full $KAVMAP -r map.png; ls -A full; cat full/.Kavdex"),
              0);
    EXPECT_THAT(Err(), HasSubstr("No space left on device"));
    EXPECT_EQ(Out(), ".Kavdex\nfilling\nSize=123\n");
    EXPECT_EQ(Picture("map.png").GetWidth(), 123);
}

TEST_F(FaultsOfDisksTest, AreToldWhereTheHomeIsOnlyRead)
{
    home.Write("fixed/.Kavdex", "Size=123\n");
    const auto run = [this](const std::string& arguments)
    {
        return RunMounted("mount --bind fixed fixed && mount -o remount,bind,ro fixed",
                          "HOME=$PWD/fixed exec $KAVMAP " + arguments);
    };
    EXPECT_EQ(run("-r map.png"), 0);
    EXPECT_THAT(Err(), HasSubstr("Read-only file system"));
    EXPECT_EQ(Picture("map.png").GetWidth(), 123);

    EXPECT_EQ(run("-r fixed/map.png"), 1);
    EXPECT_THAT(Err(), HasSubstr("kavmap: Couldn't write the picture fixed/map.png: Read-only file system\n"));
    EXPECT_EQ(CountFilesLike("map.png*"), 1u);

    // Whoever only asks is told nothing of it.
    EXPECT_EQ(run("--aim JP80"), 0);
    EXPECT_EQ(run("--bearings " KAV_DATA_DIR "/sample.log"), 0);
    EXPECT_EQ(home.Read("err.txt"), "");
}

TEST_F(FaultsTest, OfAnOutputThatTakesNothingAreTold)
{
    home.Write("wrong.ini", "Size=9\n");
    for (const char* arguments : {"--help", "--version", "--aim JP80", "--check -s wrong.ini",
                                  "--bearings " KAV_DATA_DIR "/sample.log", "--bearings - <input"})
        for (const char* output : {">/dev/full", ">&-"})
        {
            home.Write("input", "JP80\n");
            EXPECT_EQ(Shell(std::string("timeout 100 $KAVMAP ") + arguments + " 2>err.txt " + output), 1)
                << arguments << output;
            EXPECT_THAT(Err(), HasSubstr("kavmap: can't write the ")) << arguments << output;
        }
}

TEST_F(FaultsTest, OfClosedStreamsAreNone)
{
    home.Write("lacking.ini", "Size=120\n[Text]\nShow1=1\nFile1=gone.dat\n");
    ASSERT_EQ(Shell("timeout 100 $KAVMAP -s lacking.ini -r open.bmp 2>err.txt"), 2);
    for (const char* closed : {"<&-", ">&-", "2>&-", "<&- >&-", "<&- >&- 2>&-"})
    {
        EXPECT_EQ(Shell("timeout 100 $KAVMAP -s lacking.ini -r map.bmp 2>err.txt " + std::string(closed)), 2) << closed;
        EXPECT_TRUE(home.Read("map.bmp") == home.Read("open.bmp")) << closed;
        home.Write("map.bmp", "");
    }
}

TEST_F(FaultsTest, OfClosedStreamsLetNothingBePrintedIntoFiles)
{
    Shell("mkfifo input");
    // It answers the first line, and waits for another, while one looks where its streams lead.
    EXPECT_EQ(Shell("exec 3<>input\n$KAVMAP --bearings - <input >answers 2>&- 3>&- &\n"
                    "echo JP80 >&3\n"
                    "for i in $(seq 600); do grep -q JP80 answers && break; sleep 0.1; done\n"
                    "readlink /proc/$!/fd/2 >out.txt\n"
                    "kill $!"),
              0);
    EXPECT_EQ(Out(), "/dev/null\n");
}

TEST_F(FaultsTest, OfNamesThatAreNoTextAreNone)
{
    // Bytes that are no UTF-8; Latin-1, as it may be.
    home.Write("place", "");
    ASSERT_EQ(Shell("printf 'Size=110\\n' >\"$(printf 'bl\\345b\\344r.ini')\"; mkdir \"$(printf '\\377')\""), 0);
    const std::string settings = "\"$(printf 'bl\\345b\\344r.ini')\"";
    for (const char* locale : {"LC_ALL=C", "LC_ALL=C.UTF-8"})
    {
        EXPECT_EQ(Run("-s " + settings + " -r \"$(printf '\\377/\\376.png')\"", locale), 0) << Err();
        EXPECT_EQ(Shell("mv \"$(printf '\\377/\\376.png')\" map.png"), 0);
        EXPECT_EQ(Picture("map.png").GetWidth(), 110);
        EXPECT_EQ(Run("--check -s " + settings, locale), 2);
        EXPECT_EQ(Run("-s " + settings + " -r \"$(printf 'gone\\377/\\376.png')\"", locale), 1);
        EXPECT_EQ(Err(), "kavmap: Couldn't write the picture gone\377/\376.png: No such file or directory\n");
    }
    EXPECT_EQ(Run("--aim \"$(printf '\\377')\""), 1);
    EXPECT_EQ(Err(), "kavmap: not a locator, a position or the name of a place: \377\n");
}

TEST_F(FaultsTest, OfBeingKilledWhileItSavesLeaveThePictureThatWasThere)
{
    home.Write("own.ini", "Size=120\n");
    for (const std::string ending : kEndings)
    {
        const std::string picture = "map." + ending;
        home.Write(picture, "precious");
        ASSERT_EQ(RunUntilBytes(1000, "-s own.ini -r " + picture), 128 + SIGXFSZ) << ending;
        EXPECT_EQ(home.Read(picture), "precious") << ending;
    }
}

TEST_F(FaultsTest, OfBeingKilledWhileItWritesSettingsLeaveThoseThatWereThere)
{
    const std::string settings = "Size=150\n[Stranger]\nGuest=keep me\n";
    const auto whole = static_cast<int>(WholeSettings(150).size());
    home.Write(".Kavdex", settings);
    EXPECT_EQ(RunUntilBytes(0, "-r nowhere/map.bmp"), 128 + SIGXFSZ);
    EXPECT_EQ(home.Read(".Kavdex"), settings);
    // Beyond the first bytes it may be told of the limit before it is killed by it.
    for (const int bytes : {1, whole / 2, whole - 100})
    {
        EXPECT_NE(RunUntilBytes(bytes, "-r nowhere/map.bmp"), 0) << bytes;
        EXPECT_EQ(home.Read(".Kavdex"), settings) << bytes;
    }
}

TEST_F(FaultsTest, OfSeveralProgramsOnOneSettingsFileAreNone)
{
    // Something to be completed; all times are there.
    std::string lacking = WholeSettings(150);
    lacking.erase(lacking.find("Zoom="), sizeof "Zoom=20000");
    home.Write(".Kavdex", lacking);
    Run("-r alone.bmp");
    const std::string whole = home.Read(".Kavdex");
    ASSERT_NE(whole, lacking);

    home.Write(".Kavdex", lacking);
    EXPECT_EQ(Shell("for i in 1 2 3 4; do timeout 100 $KAVMAP -r $i.bmp 2>>err.txt & done\n"
                    "while kill -0 $! 2>/dev/null; do cat .Kavdex >seen; test -s seen || echo empty >>out.txt; done\n"
                    "wait"),
              0);
    EXPECT_EQ(home.Read("out.txt"), "");
    EXPECT_EQ(home.Read("err.txt"), "");
    EXPECT_EQ(home.Read(".Kavdex"), whole);
    EXPECT_EQ(CountFilesLike(".Kavdex*"), 1u);
    for (const char* picture : {"1.bmp", "2.bmp", "3.bmp", "4.bmp"})
        EXPECT_TRUE(home.Read(picture) == home.Read("alone.bmp")) << picture;
}
} // namespace

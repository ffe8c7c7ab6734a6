#include "tests/support/Processes.h"
#include "tests/support/ProgramFixture.h"
#include "tests/support/ScarceMemory.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <csignal>
#include <filesystem>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace
{
using testing::HasSubstr;

constexpr char kHeader[] = "name,latitude_deg,longitude_deg,locator,distance_km,bearing_deg,long_path_distance_km,"
                           "long_path_bearing_deg,sun_elevation_deg,light\r\n";

class BearingsProgramTest : public ProgramTest
{
protected:
    /// Without a display: it needs none.
    static int Bearings(const std::string& arguments, const std::string& input = "</dev/null")
    {
        return Run("-s /dev/null --bearings " + arguments, "-u DISPLAY -u WAYLAND_DISPLAY", input);
    }
};

TEST_F(BearingsProgramTest, ListsALabelFileInItsOrder)
{
    home.Write("a.dat", "JP;Tokyo;x;x;35.7;139.7;x\nSE;Lund;x;x;55.7;13.2;x\n");
    EXPECT_EQ(Bearings("a.dat -t 2026-06-21T12:00"), 0);
    EXPECT_EQ(Out(), std::string(kHeader) + "Tokyo,35.7000,139.7000,PM95UQ,8685.5,41.5,31344.6,221.5,-19.41,night\r\n"
                                            "Lund,55.7000,13.2000,JO65OQ,36.1,87.6,39994.1,267.6,56.39,day\r\n");
    EXPECT_EQ(Err(), "");
}

TEST_F(BearingsProgramTest, ListsShippedFilesAndLogs)
{
    EXPECT_EQ(Bearings("cities.dat"), 0);
    EXPECT_THAT(Out(), HasSubstr("\r\nMexico City,19.4424,-99.1310,EK09KK,"));
    EXPECT_EQ(Bearings("sample.log"), 0);
    EXPECT_THAT(Out(), testing::StartsWith(std::string(kHeader) + "JO65,55.4792,12.9583,JO65LL,31.2,137.7,"));
}

TEST_F(BearingsProgramTest, TakesStationAndGreyzoneFromTheSettings)
{
    home.Write("own.ini", "[Center\\ pos]\nLat=0\nLon=0\n[Greyzone]\nWidth=170\n");
    home.Write("a.dat", "x;P;x;x;0;90;x\n");
    EXPECT_EQ(Run("-s own.ini --bearings a.dat -t 2026-03-20T12:00"), 0);
    EXPECT_THAT(Out(), HasSubstr("P,0.0000,90.0000,NJ50AA,10007.5,90.0,30022.6,270.0,"));
    EXPECT_THAT(Out(), HasSubstr(",grey\r\n"));
}

TEST_F(BearingsProgramTest, NamesTheLinesWithoutAPlace)
{
    home.Write("a.dat", "x;P;x;x;0;90;x\nx;Q;x;x;0;900;x\n");
    EXPECT_EQ(Bearings("a.dat"), 2);
    EXPECT_EQ(Err(), "kavmap: a.dat: line 2 names no place\n");
    EXPECT_THAT(Out(), HasSubstr("\r\nP,"));
}

TEST_F(BearingsProgramTest, RefusesWhatNamesNoPlace)
{
    home.Write("empty", "");
    home.Write("binary", std::string("JO65\0", 5));
    home.Write("words", "no place at all\n");
    home.Write("huge", "");
    std::filesystem::resize_file("huge", std::uintmax_t{1} << 30);
    ASSERT_EQ(mkfifo("pipe", 0600), 0);
    for (const auto& [name, why] : {std::pair{"empty", "can't read empty: it is empty"},
                                    {"binary", "can't read binary: it is no text"},
                                    {"words", "no place in words: neither a label nor a square"},
                                    {"huge", "can't read huge: it is longer than 64 MB"},
                                    {"pipe", "can't read pipe: it is a pipe or a device"},
                                    {".", "can't read .: it is a directory"},
                                    {"gone", "can't read gone: No such file or directory"}})
    {
        EXPECT_EQ(Bearings(name), 1) << name;
        EXPECT_EQ(Out(), "") << name;
        EXPECT_EQ(Err(), std::string("kavmap: ") + why + "\n") << name;
    }
}

TEST_F(BearingsProgramTest, NeedsNoHome)
{
    home.Write("a.dat", "x;P;x;x;0;90;x\n");
    EXPECT_EQ(Run("--bearings a.dat", "HOME=/nonexistent"), 0);
    EXPECT_EQ(home.Read("err.txt"), "");
}

TEST_F(BearingsProgramTest, SaysThatNobodyCanReadThem)
{
    home.Write("a.dat", "x;P;x;x;0;90;x\n");
    EXPECT_EQ(Shell("timeout 100 $KAVMAP --bearings a.dat >/dev/full 2>err.txt"), 1);
    EXPECT_EQ(Err(), "kavmap: can't write the bearings: No space left on device\n");
}

TEST_F(BearingsProgramTest, AnswersEveryLineOfItsInput)
{
    home.Write("lines.txt", "JO65HQ\r\n  pm95 \n35.7 139.7\nrubbish\n\nJO62");
    EXPECT_EQ(Bearings("- -t 2026-06-21T12:00", "<lines.txt"), 2);
    EXPECT_EQ(Out(), std::string(kHeader) +
                         "JO65HQ,55.6875,12.6250,JO65HQ,0.0,0.0,40030.2,180.0,56.52,day\r\n"
                         "pm95,35.4792,138.9583,PM95LL,8676.3,42.1,31353.8,222.1,-19.19,night\r\n"
                         "35.7 139.7,35.7000,139.7000,PM95UQ,8685.5,41.5,31344.6,221.5,-19.41,night\r\n"
                         "rubbish,,,,,,,,,\r\n"
                         ",,,,,,,,,\r\n"
                         "JO62,52.4792,12.9583,JO62LL,357.4,176.4,39672.7,356.4,59.43,day\r\n");
    EXPECT_EQ(Err(), "kavmap: line 4 is neither a locator nor latitude and longitude: rubbish\n"
                     "kavmap: line 5 is neither a locator nor latitude and longitude: \n");
}

TEST_F(BearingsProgramTest, AnswersInputThatIsNoPlaceWithoutFillingMemory)
{
    EXPECT_EQ(Bearings("-"), 1);
    EXPECT_EQ(Out(), "");
    EXPECT_EQ(Err(), "kavmap: no place on standard input\n");
    home.Write("huge", "");
    std::filesystem::resize_file("huge", std::uintmax_t{1} << 30);
    // AddressSanitizer itself reserves more than any limit.
    const std::string limit = UnderAddressSanitizer() ? "" : "ulimit -v 2000000; ";
    EXPECT_EQ(Shell(limit + "timeout 100 $KAVMAP -s /dev/null --bearings - <huge >out.txt 2>err.txt"), 1);
    EXPECT_EQ(Out(), std::string(kHeader) + ",,,,,,,,,\r\n");
}

TEST_F(BearingsProgramTest, AnswersAtOnce)
{
    ASSERT_EQ(mkfifo("questions", 0600), 0);
    const int ready = open("questions", O_RDWR);
    const pid_t program = fork();
    if (program == 0)
    {
        dup2(open("questions", O_RDONLY), STDIN_FILENO);
        dup2(open("out.txt", O_WRONLY | O_CREAT | O_TRUNC, 0600), STDOUT_FILENO);
        execl(ProgramUnderTest(), "kavmap", "-s", "/dev/null", "--bearings", "-", nullptr);
        _exit(127);
    }
    const auto ask = [ready](const std::string& place)
    { EXPECT_EQ(write(ready, place.data(), place.size()), static_cast<ssize_t>(place.size())); };
    ask("JO62\n");
    EXPECT_TRUE(AwaitQuietly([this] { return Out().find("\r\nJO62,") != std::string::npos; }));
    EXPECT_EQ(Out().find("PM95"), std::string::npos);
    ask("PM95\n");
    EXPECT_TRUE(AwaitQuietly([this] { return Out().find("\r\nPM95,") != std::string::npos; }));
    kill(program, SIGKILL);
    waitpid(program, nullptr, 0);
    close(ready);
}
} // namespace

#include "tests/support/Processes.h"
#include "tests/support/ProgramFixture.h"
#include "tests/support/ScarceMemory.h"

#include <gmock/gmock.h>

#include <csignal>
#include <ctime>
#include <filesystem>
#include <regex>
#include <set>
#include <unistd.h>

namespace
{
using testing::HasSubstr;

/// The program among the system's other parts: locale, clock, standard input, outside programs.
class ProgramSystemTest : public ProgramTest
{
protected:
    /// Settings of a map with an overlay from the stand-in for voacapl.
    void WantPropagation() const
    {
        std::filesystem::create_directories(home.Path("voacap/areadata/default").utf8_string());
        home.Write("prop.ini",
                   "Size=120\n[Propagation]\nShow=1\nGrid=0\nDir=" + home.Path("voacap").utf8_string() + "\n");
    }
    std::string AreaInput() const { return home.Read("voacap/areadata/default/kavdex.voa"); }

    /// The environment's setting of a locale whose numbers have a decimal comma.
    std::string CommaLocale() const
    {
        std::string charmap = "<code_set_name> ASCII\n<mb_cur_min> 1\n<mb_cur_max> 1\nCHARMAP\n";
        for (int i = 0; i < 128; ++i)
            charmap += wxString::Format("<U%04X> \\x%02x\n", i, i).utf8_string();
        home.Write("charmap", charmap + "END CHARMAP\n");
        home.Write("comma.txt", "LC_NUMERIC\ndecimal_point \",\"\nthousands_sep \".\"\ngrouping 3;3\nEND LC_NUMERIC\n");
        home.Write("locales/README", "");
        // It complains about all that the locale lacks.
        Shell("localedef -c -f ./charmap -i comma.txt locales/comma >localedef.txt 2>&1");
        return "-u LC_ALL LOCPATH=" + home.Path("locales").utf8_string() + " LC_NUMERIC=comma";
    }

    const std::string standInFirst = std::string(" PATH=" KAV_STAND_IN ":") + std::getenv("PATH");
};

TEST_F(ProgramSystemTest, GivesOutsideProgramsAnEmptyStandardInput)
{
    WantPropagation();
    Shell("mkfifo pipe");
    // A pipe that is open for writing never ends.
    EXPECT_EQ(Run("-s prop.ini -r a.png", "KAV_STAND_IN='reads input'" + standInFirst, "0<>pipe"), 0);
    EXPECT_EQ(Err(), "");
    EXPECT_EQ(Picture("a.png").GetWidth(), 120);
}

TEST_F(ProgramSystemTest, RunsWithoutAStandardInput)
{
    WantPropagation();
    EXPECT_EQ(Run("-s prop.ini -r a.png", standInFirst, "<&-"), 0);
    EXPECT_EQ(Err(), "");
    EXPECT_EQ(Picture("a.png").GetWidth(), 120);
}

TEST_F(ProgramSystemTest, WritesAndReadsNumbersWithAPointInAnyLocale)
{
    const std::string locale = CommaLocale();
    ASSERT_EQ(Shell("env " + locale + " printf %.1f 1,5 >number.txt"), 0);
    ASSERT_EQ(home.Read("number.txt"), "1,5"); // the locale is there
    WantPropagation();
    home.Write("prop.ini", home.Read("prop.ini") + "MPT=7.25\n[Center\\ pos]\nLat=-33.625\nLon=151.125\n");
    struct Traces
    {
        std::string workingFile, picture, areaInput;
        bool operator==(const Traces&) const = default;
    };
    const auto traces = [&](const std::string& environment)
    {
        EXPECT_EQ(Run("-s prop.ini -r a.pnm", environment + standInFirst), 0) << Err();
        const Traces found{"", home.Read("a.pnm"), AreaInput()};
        std::filesystem::remove(home.WorkingFile().utf8_string());
        EXPECT_EQ(Run("-r b.png", environment), 0);
        // The time of the "once" mode is that of the first start.
        const std::string settings =
            std::regex_replace(home.Read(".Kavdex"), std::regex("Cal(Yr|Mo|Da|Ho|Mi)=\\d+\n"), "");
        return Traces{settings, found.picture, found.areaInput};
    };
    const Traces plain = traces("LC_ALL=C");
    EXPECT_THAT(plain.areaInput, HasSubstr("\nTransmit : 33.62S    151.12E "));
    EXPECT_THAT(plain.workingFile, HasSubstr("\nLat=55.6875\n"));
    EXPECT_TRUE(traces(locale) == plain);
    // What was written under the one locale is read under the other.
    const std::string picture = home.Read("b.png");
    EXPECT_EQ(Run("-r b.png", "LC_ALL=C"), 0);
    EXPECT_EQ(home.Read("b.png"), picture);
}

TEST_F(ProgramSystemTest, TakesMissingValuesFromTheSettingsOfTheSystem)
{
    if (Shell("unshare -rm true 2>/dev/null") != 0)
        GTEST_SKIP() << "here no program may have a system directory of its own";
    ASSERT_EQ(Shell("cp -r /etc etc 2>/dev/null; printf 'Size=135\\nZoom=7000\\n' >etc/Kavdex.conf"), 0);
    home.Write(".Kavdex", "Zoom=9000\n");
    EXPECT_EQ(Shell("timeout 100 unshare -rm sh -c 'mount --bind etc /etc && exec $KAVMAP -r a.png' >out.txt 2>err.txt "
                    "</dev/null"),
              0)
        << home.Read("err.txt");
    EXPECT_EQ(Picture("a.png").GetWidth(), 135);
    EXPECT_THAT(home.Read(".Kavdex"), HasSubstr("Zoom=9000\n"));
}

TEST_F(ProgramSystemTest, DrawsForUtcInAnyTimeZone)
{
    home.Write("grey.ini", "Size=150\n[Greyzone]\nShow=1\nOpt=0\n");
    std::set<std::string> pictures;
    for (const char* zone : {"TZ=UTC", "TZ=KAV-9", "TZ=KAV+11:30KAS", "-u TZ"})
    {
        EXPECT_EQ(Run("-s grey.ini -t 2026-06-21T20:45 -r a.pnm", zone), 0);
        pictures.insert(home.Read("a.pnm"));
    }
    EXPECT_EQ(pictures.size(), 1u);
}

TEST_F(ProgramSystemTest, RunsForTheUtcOfNowInAnyTimeZone)
{
    WantPropagation();
    const auto lines = [](std::time_t time)
    {
        std::tm utc{};
        gmtime_r(&time, &utc);
        return wxString::Format("\nHours    :     %02d ", utc.tm_min > 30 ? (utc.tm_hour + 1) % 24 : utc.tm_hour)
            .utf8_string();
    };
    for (const char* zone : {"TZ=UTC", "TZ=KAV-9", "TZ=KAV+11:30KAS"})
    {
        const std::time_t before = std::time(nullptr);
        EXPECT_EQ(Run("-s prop.ini -r a.png", zone + standInFirst), 0);
        EXPECT_THAT(AreaInput(), testing::AnyOf(HasSubstr(lines(before)), HasSubstr(lines(std::time(nullptr)))))
            << zone;
    }
}

TEST_F(ProgramSystemTest, CompressesJpegPicturesToQualityNinety)
{
    home.Write("small.ini", "Size=120\n");
    EXPECT_EQ(Run("-s small.ini -r a.jpg"), 0);
    const std::string bytes = home.Read("a.jpg");
    const std::size_t table = bytes.find("\xFF\xDB");
    ASSERT_NE(table, std::string::npos);
    // The standard's table of luminance begins 16 11 12 14 12 10 16 14 in the order of the file; quality 90 leaves a
    // fifth of it.
    EXPECT_EQ(bytes.substr(table + 5, 8), "\3\2\2\3\2\2\3\3");
}

TEST_F(ProgramSystemTest, LeavesAnOlderPictureAloneWhenTheDiscIsFull)
{
    home.Write("small.ini", "Size=120\n");
    home.Write("map.bmp", "precious");
    // No file may grow beyond one block.
    EXPECT_EQ(
        Shell(
            "bash -c 'trap \"\" XFSZ; ulimit -f 1; timeout 100 $KAVMAP -s small.ini -r map.bmp' 2>err.txt </dev/null"),
        1);
    EXPECT_THAT(Err(), testing::EndsWith("kavmap: Couldn't write the picture map.bmp: File too large\n"));
    EXPECT_EQ(home.Read("map.bmp"), "precious");
    EXPECT_EQ(CountFilesLike("map.bmp*"), 1u);
}

TEST_F(ProgramSystemTest, EndsWithNothingWhereTheOverlayWasDrawnAndWithTwoWhereNot)
{
    WantPropagation();
    EXPECT_EQ(Run("-s prop.ini -r drawn.pnm", standInFirst), 0);
    EXPECT_EQ(Err(), "");
    for (const char* behaviour : {"fails", "dies"})
    {
        EXPECT_EQ(Run("-s prop.ini -r failed.pnm", std::string("KAV_STAND_IN=") + behaviour + standInFirst), 2);
        EXPECT_EQ(Err(), "kavmap: Error calling VOACAP\n") << behaviour;
        EXPECT_EQ(Picture("failed.pnm").GetWidth(), 120);
        EXPECT_NE(home.Read("failed.pnm"), home.Read("drawn.pnm"));
    }
    home.Write("plain.ini", "Size=120\n");
    EXPECT_EQ(Run("-s plain.ini -r plain.pnm"), 0);
    EXPECT_EQ(home.Read("failed.pnm"), home.Read("plain.pnm"));
}

TEST_F(ProgramSystemTest, SaysThatHelpAndVersionDidNotFitTheDisc)
{
    for (const char* option : {"--help", "--version"})
    {
        EXPECT_EQ(Shell(std::string("$KAVMAP ") + option + " 2>err.txt >/dev/full"), 1) << option;
        EXPECT_EQ(Err(), "kavmap: can't write the answer: No space left on device\n");
    }
}

TEST_F(ProgramSystemTest, LeavesNothingUnfinishedWhenASignalEndsIt)
{
    // A picture that takes long to write.
    home.Write("large.ini", "Size=6000\n");
    home.Write("map.png", "precious");
    for (const int signal : {SIGTERM, SIGINT, SIGHUP})
    {
        const pid_t program = fork();
        if (program == 0)
        {
            execl(ProgramUnderTest(), "kavmap", "-s", "large.ini", "-r", "map.png", static_cast<char*>(nullptr));
            _exit(127);
        }
        EXPECT_TRUE(AwaitQuietly([&] { return CountFilesLike("kavmap-unfinished-*") == 1; }));
        kill(program, signal);
        int status = 0;
        EXPECT_EQ(waitpid(program, &status, 0), program);
        EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == signal) << status;
        EXPECT_EQ(CountFilesLike("kavmap-unfinished-*"), 0u) << signal;
        EXPECT_TRUE(home.Read("map.png") == "precious");
    }
}

TEST_F(ProgramSystemTest, DrawsWithoutAHomeAndSaysSoOnce)
{
    home.Write("file", "");
    for (const auto& [directory, message] :
         {std::pair{std::string("/none"), std::string("/none/.Kavdex': No such file or directory")},
          {home.Path("file").utf8_string(), home.Path("file/.Kavdex").utf8_string() + "': Not a directory"},
          {std::string(), std::string("~/.Kavdex': there is no home directory")}})
    {
        EXPECT_EQ(Run("-r a.png", "HOME=" + directory), 0);
        EXPECT_EQ(Err(), "kavmap: can't keep settings in '" + message + "\n");
        EXPECT_EQ(Picture("a.png").GetWidth(), 900);
        EXPECT_EQ(unlink("a.png"), 0);
    }
    EXPECT_FALSE(std::filesystem::exists("/.Kavdex"));
    EXPECT_FALSE(std::filesystem::exists(".Kavdex"));
}

TEST_F(ProgramSystemTest, SaysThatItHasTooLittleMemoryToStart)
{
    if (UnderAddressSanitizer())
        GTEST_SKIP() << "AddressSanitizer needs more addresses than any limit gives";
    home.Write("small.ini", "Size=120\n");
    const auto run = [](int megabytes, const std::string& arguments)
    {
        return Shell("ulimit -v $((" + std::to_string(megabytes) + " * 1024)); timeout 100 $KAVMAP " + arguments +
                     " 2>err.txt </dev/null");
    };
    for (const int megabytes : {80, 100, 120})
    {
        EXPECT_EQ(run(megabytes, "-s small.ini -r a.png"), 1) << megabytes;
        EXPECT_EQ(Err(), "kavmap: not enough memory to start: 96 MB of address space are needed\n");
        EXPECT_EQ(run(megabytes, ""), 1) << megabytes;
        EXPECT_EQ(Err(), "kavmap: not enough memory to start: 160 MB of address space are needed\n");
    }
    EXPECT_EQ(run(400, "-s small.ini -r a.png"), 0);
}

TEST_F(ProgramSystemTest, SaysThatItMayOpenTooFewFiles)
{
    home.Write("small.ini", "Size=120\n");
    const auto run = [](int files, const std::string& arguments)
    {
        return Shell("exec 2>err.txt </dev/null; ulimit -n " + std::to_string(files) + "; exec timeout 100 $KAVMAP " +
                     arguments);
    };
    EXPECT_EQ(run(8, "-s small.ini -r a.png"), 1);
    EXPECT_EQ(Err(), "kavmap: too few files may be open to start: 6 are needed\n");
    EXPECT_EQ(run(12, ""), 1);
    EXPECT_EQ(Err(), "kavmap: too few files may be open to start: 16 are needed\n");
    EXPECT_EQ(run(64, "-s small.ini -r a.png"), 0);
    EXPECT_EQ(Err(), "");
}
} // namespace

#include "app/CommandLine.h"

#include "tests/support/TemporaryHome.h"

#include <gtest/gtest.h>

#include <wx/string.h>
#include <wx/version.h>

#include <cstdlib>
#include <vector>

#include <sys/stat.h>

namespace
{
using app::ParseUtcTime;

app::CommandLine Parse(std::vector<std::string> words)
{
    words.insert(words.begin(), "/usr/bin/kavmap");
    std::vector<char*> argv;
    for (std::string& word : words)
        argv.push_back(word.data());
    argv.push_back(nullptr);
    return app::ParseCommandLine(static_cast<int>(words.size()), argv.data());
}

TEST(ParseUtcTime, ReadsDateAndTime)
{
    EXPECT_EQ(ParseUtcTime("2026-03-20T12:30"), (UtcTime{2026, 2, 20, 12, 30, 0}));
    EXPECT_EQ(ParseUtcTime("2024-02-29T23:59"), (UtcTime{2024, 1, 29, 23, 59, 0}));
    EXPECT_EQ(ParseUtcTime("0000-01-01T00:00"), (UtcTime{0, 0, 1, 0, 0, 0}));
}

TEST(ParseUtcTime, RefusesTimesThatDoNotExist)
{
    for (const char* text : {"2026-02-29T00:00", "2026-13-01T00:00", "2026-00-01T00:00", "2026-04-31T00:00",
                             "2026-04-00T00:00", "2026-04-01T24:00", "2026-04-01T12:60"})
        EXPECT_FALSE(ParseUtcTime(text)) << text;
}

TEST(ParseUtcTime, RefusesAnythingElse)
{
    for (const char* text : {"", "now", "2026-04-01", "2026-04-01 12:00", "2026-4-1T12:00", "2026-04-01T12:00Z",
                             "2026-04-01T12:00:00", "+026-04-01T12:00", "2026-04-01T1a:00", " 026-04-01T12:00"})
        EXPECT_FALSE(ParseUtcTime(text)) << text;
}

TEST(CommandLine, IsEmptyForTheWindow)
{
    const app::CommandLine line = Parse({});
    EXPECT_FALSE(line.render || line.settings || line.time || line.exitStatus);
}

TEST(CommandLine, TakesShortAndLongOptions)
{
    const app::CommandLine shorts = Parse({"-r", "a.png", "-t", "2026-03-20T12:30", "-s", "/dev/null"});
    const app::CommandLine longs = Parse({"--render=a.png", "--time", "2026-03-20T12:30", "--settings=/dev/null"});
    for (const app::CommandLine& line : {shorts, longs})
    {
        EXPECT_EQ(line.render, "a.png");
        EXPECT_EQ(line.settings, "/dev/null");
        EXPECT_EQ(line.time, (UtcTime{2026, 2, 20, 12, 30, 0}));
        EXPECT_FALSE(line.exitStatus);
    }
}

TEST(CommandLine, ShowsTheWindowUnlessAnythingElseIsAskedFor)
{
    EXPECT_TRUE(Parse({}).ShowsWindow());
    EXPECT_FALSE(Parse({"-r", "a.png"}).ShowsWindow());
    EXPECT_FALSE(Parse({"--check"}).ShowsWindow());
    EXPECT_FALSE(Parse({"--bearings", "a.dat"}).ShowsWindow());
    EXPECT_FALSE(Parse({"--bearings", "a.dat"}).AnswersInput());
    EXPECT_TRUE(Parse({"--bearings", "-"}).AnswersInput());
    EXPECT_TRUE(Parse({"-r", "a.png", "--world-file"}).worldFile);
}

TEST(CommandLine, EndsWithOneOnWrongUse)
{
    const std::vector<std::vector<std::string>> wrong{
        {"--nonsense"},          {"-x"},     {"--render"}, {"-t"}, {"--time", "tomorrow"}, {"stray"},
        {"-s", "/no/such/file"}, {"-s", "/"}};
    for (const auto& words : wrong)
    {
        testing::internal::CaptureStderr();
        EXPECT_EQ(Parse(words).exitStatus, 1) << words[0];
        EXPECT_EQ(testing::internal::GetCapturedStderr().rfind("kavmap: ", 0), 0u) << words[0];
    }
}

TEST(CommandLine, SaysWhatWasWrong)
{
    const auto said = [](const std::vector<std::string>& words)
    {
        testing::internal::CaptureStderr();
        Parse(words);
        return testing::internal::GetCapturedStderr();
    };
    EXPECT_EQ(said({"-s", "/no/such/file"}),
              "kavmap: can't read the settings file /no/such/file: No such file or directory\n");
    EXPECT_EQ(said({"-t", "noon"}), "kavmap: not a UTC time like 2026-03-20T12:30: noon\n");
    EXPECT_EQ(said({"-r", "a.png", "stray", "other"}), "kavmap: unexpected argument: stray\n");
    EXPECT_EQ(said({"--nonsense"}), "kavmap: unrecognized option '--nonsense'\n");
    EXPECT_EQ(said({"-t"}), "kavmap: option requires an argument -- 't'\n");
    EXPECT_EQ(said({"-r", "a.png"}), "");
}

TEST(CommandLine, KnowsItsOptionsByTheirNames)
{
    EXPECT_EQ(Parse({"--settings", "/dev/null"}).settings, "/dev/null");
    EXPECT_EQ(Parse({"--time=2026-03-20T12:30"}).time, (UtcTime{2026, 2, 20, 12, 30, 0}));
    EXPECT_EQ(Parse({"-r", "a.png"}).render, "a.png");
    char* nothing[] = {nullptr};
    EXPECT_EQ(app::ParseCommandLine(0, nothing).exitStatus, std::nullopt);
}

/// The environment without a rotator, or with one.
class RotatorOfTheEnvironment
{
public:
    explicit RotatorOfTheEnvironment(const char* address) { setenv("KAVMAP_ROTATOR", address, 1); }
    ~RotatorOfTheEnvironment() { unsetenv("KAVMAP_ROTATOR"); }
    RotatorOfTheEnvironment(const RotatorOfTheEnvironment&) = delete;
    RotatorOfTheEnvironment& operator=(const RotatorOfTheEnvironment&) = delete;
};

TEST(CommandLine, TakesARotator)
{
    EXPECT_EQ(Parse({"--rotator", "shack"}).rotator, (rotator::Address{"shack", 4533}));
    EXPECT_EQ(Parse({"--rotator=[::1]:4534"}).rotator, (rotator::Address{"::1", 4534}));
    EXPECT_FALSE(Parse({}).rotator);
}

TEST(CommandLine, TakesTheRotatorOfTheEnvironment)
{
    const RotatorOfTheEnvironment environment("shack:4534");
    EXPECT_EQ(Parse({}).rotator, (rotator::Address{"shack", 4534}));
    EXPECT_EQ(Parse({"--aim", "JA"}).rotator, (rotator::Address{"shack", 4534}));
    EXPECT_EQ(Parse({"--rotator", "mast"}).rotator, (rotator::Address{"mast", 4533}));
    EXPECT_FALSE(Parse({"--render", "a.png"}).rotator);
}

TEST(CommandLine, AnEmptyRotatorOfTheEnvironmentIsNone)
{
    const RotatorOfTheEnvironment environment("");
    const app::CommandLine line = Parse({});
    EXPECT_FALSE(line.rotator || line.exitStatus);
}

TEST(CommandLine, TakesAPlaceToAimAt)
{
    const app::CommandLine line = Parse({"--aim", "-33.9,151.2", "--long-path"});
    EXPECT_EQ(line.aim, "-33.9,151.2");
    EXPECT_TRUE(line.longPath);
    EXPECT_FALSE(Parse({"--aim", "JA"}).longPath);
}

TEST(CommandLine, SaysWhatIsWrongAboutAiming)
{
    const auto said = [](const std::vector<std::string>& words)
    {
        testing::internal::CaptureStderr();
        EXPECT_EQ(Parse(words).exitStatus, 1);
        return testing::internal::GetCapturedStderr();
    };
    EXPECT_EQ(said({"--rotator", "a:b"}), "kavmap: not a rotator's HOST[:PORT]: a:b\n");
    EXPECT_EQ(said({"--long-path"}), "kavmap: --long-path goes with --aim\n");
    EXPECT_EQ(said({"--aim", "JA", "--render", "a.png"}),
              "kavmap: --render, --aim, --check and --bearings exclude each other\n");
    const RotatorOfTheEnvironment environment(":1");
    EXPECT_EQ(said({"--aim", "JA"}), "kavmap: KAVMAP_ROTATOR is no HOST[:PORT]: :1\n");
}

TEST(CommandLine, KeepsNothingOfALineBefore)
{
    testing::internal::CaptureStderr();
    EXPECT_EQ(Parse({"-xh"}).exitStatus, 1);
    testing::internal::GetCapturedStderr();
    EXPECT_EQ(Parse({}).exitStatus, std::nullopt);
}

TEST(CommandLine, TakesNoPipeForSettings)
{
    const TemporaryHome home;
    ASSERT_EQ(mkfifo(home.Path("pipe").utf8_str(), 0600), 0);
    testing::internal::CaptureStderr();
    EXPECT_EQ(Parse({"-s", home.Path("pipe").utf8_string()}).exitStatus, 1);
    EXPECT_EQ(testing::internal::GetCapturedStderr().rfind("kavmap: ", 0), 0u);
}

TEST(CommandLine, EndsWithZeroOnHelpAndVersion)
{
    const auto printed = [](const char* word)
    {
        testing::internal::CaptureStdout();
        EXPECT_EQ(Parse({word}).exitStatus, 0);
        return testing::internal::GetCapturedStdout();
    };
    const std::string help = printed("--help");
    EXPECT_EQ(printed("-h"), help);
    for (const char* const line :
         {"Usage: kavmap [OPTION...]\n\nDraws azimuthal maps of the world as seen from a radio station.\n",
          "\n  -h, --help             print these options\n", "\n      --version          print the version\n",
          "\n  -s, --settings FILE    take the settings from FILE (an .ini file, only read)\n",
          "\n  -r, --render PICTURE   create the map, write it to PICTURE and exit; the format\n"
          "                         goes by the ending: .png .jpg .bmp .pcx .pnm .tif\n",
          "\n  -t, --time TIME        draw for this UTC time, written YYYY-MM-DDTHH:MM\n",
          "\n      --rotator HOST[:PORT]\n"
          "                         turn the antenna through the rotctld there (port 4533)\n",
          "\n      --aim PLACE        print the bearing of PLACE, turn the antenna there if there\n"
          "                         is a rotator, and exit; a locator, \"lat,lon\", or a prefix,\n"
          "                         city or country\n",
          "\n      --long-path        with --aim: the long way round\n",
          "\nExit status: 0 all went well, 1 nothing was written, 2 the picture was written but\na layer failed.\n"
          "With --aim: 1 also for a place that is not known, a rotator that refuses and one\nthat does not answer. "
          "With --check: 0 nothing was found, 2 something was. With\n--bearings: 2 some lines name no place.\n"})
        EXPECT_NE(help.find(line), std::string::npos) << line;
    EXPECT_EQ(printed("--version"), "Kavmap 3.1.9\n" + wxString(wxVERSION_STRING).utf8_string() + "\n");
}
} // namespace

#include "app/CommandLine.h"

#include "app/StandardStreams.h"
#include "config/SettingsFile.h"
#include "config/Version.h"
#include "render/PictureFormats.h"

#include <wx/chartype.h>
#include <wx/version.h>

#include <cerrno>
#include <charconv>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <getopt.h>
#include <unistd.h>

namespace app
{
namespace
{
constexpr const char* kHelp = R"(Usage: kavmap [OPTION...]

Draws azimuthal maps of the world as seen from a radio station.

  -h, --help             print these options
      --version          print the version
  -s, --settings FILE    take the settings from FILE (an .ini file, only read)
  -r, --render PICTURE   create the map, write it to PICTURE and exit; the format
                         goes by the ending:%s
  -t, --time TIME        draw for this UTC time, written YYYY-MM-DDTHH:MM
      --voacapl-timeout SECONDS
                         with --render: end voacapl when it takes longer (600)
      --rotator HOST[:PORT]
                         turn the antenna through the rotctld there (port 4533)
      --aim PLACE        print the bearing of PLACE, turn the antenna there if there
                         is a rotator, and exit; a locator, "lat,lon", or a prefix,
                         city or country
      --long-path        with --aim: the long way round
      --world-file       with --render: write a world file and a .prj beside it
      --check            say what in the settings will not work, a line each
      --bearings FILE    print distance, bearing and light of the places of a label
                         file or a log as CSV; - answers each line that is typed

Exit status: 0 all went well, 1 nothing was written, 2 the picture was written but
a layer failed.
With --aim: 1 also for a place that is not known, a rotator that refuses and one
that does not answer. With --check: 0 nothing was found, 2 something was. With
--bearings: 2 some lines name no place.
)";

constexpr int kVersionOption = 256;
constexpr int kTimeoutOption = 257;
constexpr int kRotatorOption = 258;
constexpr int kAimOption = 259;
constexpr int kLongPathOption = 260;
constexpr int kWorldFileOption = 261;
constexpr int kCheckOption = 262;
constexpr int kBearingsOption = 263;
constexpr option kOptions[] = {{"help", no_argument, nullptr, 'h'},
                               {"version", no_argument, nullptr, kVersionOption},
                               {"settings", required_argument, nullptr, 's'},
                               {"render", required_argument, nullptr, 'r'},
                               {"time", required_argument, nullptr, 't'},
                               {"voacapl-timeout", required_argument, nullptr, kTimeoutOption},
                               {"rotator", required_argument, nullptr, kRotatorOption},
                               {"aim", required_argument, nullptr, kAimOption},
                               {"long-path", no_argument, nullptr, kLongPathOption},
                               {"world-file", no_argument, nullptr, kWorldFileOption},
                               {"check", no_argument, nullptr, kCheckOption},
                               {"bearings", required_argument, nullptr, kBearingsOption},
                               {nullptr, 0, nullptr, 0}};

/// Of the pictures that can be written, each after a space.
std::string Endings()
{
    std::string endings;
    for (const auto& format : render::kPictureFormats)
        endings += std::string(" ") + format.ending;
    return endings;
}

CommandLine Done(int status)
{
    CommandLine line;
    line.exitStatus = status;
    return line;
}

/// Why a settings file can't be read; none if it can. The empty device stands for a file without settings.
const char* ObstacleTo(const std::string& path)
{
    if (access(path.c_str(), R_OK) != 0)
        return std::strerror(errno);
    std::error_code error;
    if (std::filesystem::is_directory(path, error))
        return "it is a directory";
    return ObstacleToSettings(path.c_str());
}

/// A whole number of seconds, at least one; none for anything else.
std::optional<std::chrono::seconds> ParseSeconds(const std::string& text)
{
    int seconds = 0;
    const char* const end = text.data() + text.size();
    const auto [stopped, error] = std::from_chars(text.data(), end, seconds);
    if (error != std::errc() || stopped != end || seconds < 1)
        return std::nullopt;
    return std::chrono::seconds(seconds);
}

CommandLine WrongUse(const std::string& what)
{
    std::fprintf(stderr, "kavmap: %s\n", what.c_str());
    return Done(1);
}

/// Takes the rotator of the environment where the command line has none and one is of use. @return what is wrong.
std::string TakeRotatorOfEnvironment(CommandLine& line)
{
    const char* const text = std::getenv("KAVMAP_ROTATOR");
    if (line.rotator || line.render || !text || !*text)
        return "";
    line.rotator = rotator::ParseAddress(text);
    return line.rotator ? "" : std::string("KAVMAP_ROTATOR is no HOST[:PORT]: ") + text;
}
} // namespace

std::optional<UtcTime> ParseUtcTime(const std::string& text)
{
    static const std::string kPattern = "0000-00-00T00:00";
    if (text.size() != kPattern.size())
        return std::nullopt;
    for (std::size_t i = 0; i < text.size(); ++i)
        if (kPattern[i] == '0' ? text[i] < '0' || text[i] > '9' : text[i] != kPattern[i])
            return std::nullopt;
    const auto number = [&](std::size_t first, std::size_t length) { return std::stoi(text.substr(first, length)); };
    const UtcTime time{number(0, 4), number(5, 2) - 1, number(8, 2), number(11, 2), number(14, 2), 0};
    const std::chrono::year_month_day date{std::chrono::year(time.year),
                                           std::chrono::month(static_cast<unsigned>(time.month + 1)),
                                           std::chrono::day(static_cast<unsigned>(time.day))};
    if (!date.ok() || time.hour > 23 || time.minute > 59)
        return std::nullopt;
    return time;
}

CommandLine ParseCommandLine(int argc, char** argv)
{
    CommandLine line;
    // Messages of the option parser name the program, not the path by which it was started.
    static char name[] = "kavmap";
    if (argc > 0)
        argv[0] = name;
    optind = 0;
    for (int option; (option = getopt_long(argc, argv, "hs:r:t:", kOptions, nullptr)) != -1;)
        switch (option)
        {
        case 'h':
            std::printf(kHelp, Endings().c_str());
            return Done(HasAnswerArrived() ? 0 : 1);
        case kVersionOption:
            std::printf("Kavmap " KAV_VERSION "\n%ls\n", wxVERSION_STRING);
            return Done(HasAnswerArrived() ? 0 : 1);
        case 's':
            line.settings = optarg;
            if (const char* const obstacle = ObstacleTo(optarg))
                return WrongUse("can't read the settings file " + *line.settings + ": " + obstacle);
            break;
        case 'r':
            line.render = optarg;
            break;
        case 't':
            line.time = ParseUtcTime(optarg);
            if (!line.time)
                return WrongUse(std::string("not a UTC time like 2026-03-20T12:30: ") + optarg);
            break;
        case kTimeoutOption:
        {
            const auto timeout = ParseSeconds(optarg);
            if (!timeout)
                return WrongUse(std::string("not a number of seconds: ") + optarg);
            line.voacaplTimeout = *timeout;
            break;
        }
        case kRotatorOption:
            line.rotator = rotator::ParseAddress(optarg);
            if (!line.rotator)
                return WrongUse(std::string("not a rotator's HOST[:PORT]: ") + optarg);
            break;
        case kAimOption:
            line.aim = optarg;
            break;
        case kLongPathOption:
            line.longPath = true;
            break;
        case kWorldFileOption:
            line.worldFile = true;
            break;
        case kCheckOption:
            line.check = true;
            break;
        case kBearingsOption:
            line.bearings = optarg;
            break;
        default:
            return Done(1);
        }
    if (optind < argc)
        return WrongUse(std::string("unexpected argument: ") + argv[optind]);
    if (int{line.render.has_value()} + int{line.aim.has_value()} + int{line.check} + int{line.bearings.has_value()} > 1)
        return WrongUse("--render, --aim, --check and --bearings exclude each other");
    if (line.worldFile && !line.render)
        return WrongUse("--world-file goes with --render");
    if (line.longPath && !line.aim)
        return WrongUse("--long-path goes with --aim");
    if (const std::string wrong = TakeRotatorOfEnvironment(line); !wrong.empty())
        return WrongUse(wrong);
    return line;
}
} // namespace app

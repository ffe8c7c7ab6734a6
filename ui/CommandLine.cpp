#include "ui/CommandLine.h"

#include <wx/chartype.h>
#include <wx/version.h>

#include <chrono>
#include <cstdio>
#include <getopt.h>
#include <sys/stat.h>
#include <unistd.h>

namespace ui
{
namespace
{
constexpr const char* kHelp = R"(Usage: kavmap [OPTION...]

Draws azimuthal maps of the world as seen from a radio station.

  -h, --help             print these options
      --version          print the version
  -s, --settings FILE    take the settings from FILE (an .ini file, only read)
  -r, --render PICTURE   create the map, write it to PICTURE and exit; the format
                         goes by the ending: .png .jpg .bmp .pcx .pnm .tif
  -t, --time TIME        draw for this UTC time, written YYYY-MM-DDTHH:MM

Exit status: 0 all went well, 1 nothing was written, 2 the picture was written but
a layer failed.
)";

constexpr int kVersionOption = 256;
constexpr option kOptions[] = {
    {"help", no_argument, nullptr, 'h'},           {"version", no_argument, nullptr, kVersionOption},
    {"settings", required_argument, nullptr, 's'}, {"render", required_argument, nullptr, 'r'},
    {"time", required_argument, nullptr, 't'},     {nullptr, 0, nullptr, 0}};

CommandLine Done(int status)
{
    CommandLine line;
    line.exitStatus = status;
    return line;
}

bool IsReadableFile(const char* path)
{
    struct stat status
    {
    };
    const bool isFile = stat(path, &status) == 0 && (S_ISREG(status.st_mode) || S_ISCHR(status.st_mode));
    return isFile && access(path, R_OK) == 0;
}

CommandLine WrongUse(const std::string& what)
{
    std::fprintf(stderr, "kavmap: %s\n", what.c_str());
    return Done(1);
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
            std::fputs(kHelp, stdout);
            return Done(0);
        case kVersionOption:
            std::printf("Kavmap 3.1.9\n%ls\n", wxVERSION_STRING);
            return Done(0);
        case 's':
            if (!IsReadableFile(optarg))
                return WrongUse(std::string("can't read the settings file ") + optarg);
            line.settings = optarg;
            break;
        case 'r':
            line.render = optarg;
            break;
        case 't':
            line.time = ParseUtcTime(optarg);
            if (!line.time)
                return WrongUse(std::string("not a UTC time like 2026-03-20T12:30: ") + optarg);
            break;
        default:
            return Done(1);
        }
    if (optind < argc)
        return WrongUse(std::string("unexpected argument: ") + argv[optind]);
    return line;
}
} // namespace ui

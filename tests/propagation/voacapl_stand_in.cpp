// Takes the place of voacapl in tests: checks its arguments and its input to the column, and writes a result whose
// values follow a simple rule. The environment variable KAV_STAND_IN asks it to misbehave.

#include <cmath>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <regex>
#include <string>
#include <thread>
#include <vector>

#include <unistd.h>

namespace
{
namespace fs = std::filesystem;

constexpr int kBadArguments = 70;
constexpr int kBadInput = 71;
constexpr int kStaleResult = 72;

std::string behaviour;

/// What every line of the input must look like; the number of points is caught.
const std::vector<const char*> kInputLines{
    "Model    :VOACAP",
    "Colors   :Black    :Blue     :Ignore   :Ignore   :Red      :Black with shading",
    "Cities   :Receive\\.cty",
    "Nparms   :    1",
    "Parameter:SDBW     0",
    "Method   :   30",
    "Coeffs   :CCIR",
    "Transmit : \\d{1,2}\\.\\d\\d[NS]    \\d{1,3}\\.\\d\\d[EW]   HOME                 Short",
    "Area     :    -180\\.0     180\\.0     -90\\.0      90\\.0",
    "Gridsize : (18|36|54|72|90|108|126|144|162|180|198)    1",
    "Months   :  (?:[1-9]|1[0-2])\\.00(?:   0\\.00){8}",
    "Ssns     :     [ \\d]\\d(?:      0){8}",
    "Hours    :     (?:[01]\\d|2[0-3])(?:      0){8}",
    "Freqs    : \\d{1,2}\\.\\d{3}(?:  0\\.000){8}",
    "System   :  [ \\d]{2}\\d     \\d\\.\\d{3}   [ \\d]\\d   [ \\d]\\d     \\d\\.\\d{3}     \\d\\.\\d{3}",
    "Fprob    : \\d\\.\\d\\d \\d\\.\\d\\d \\d\\.\\d\\d \\d\\.\\d\\d",
    "Rec Ants :\\[[^\\\\]{8}\\\\[^\\\\]{12}\\]  gain=   \\d\\.\\d   \\d{1,2}\\.\\d",
    "Tx Ants  :\\[[^\\\\]{8}\\\\[^\\\\]{12}\\]  \\d\\.\\d{3} \\d{1,3}\\.\\d  \\d\\.\\d{3}"};

/// Waits until the test has seen enough.
void WaitFor(const fs::path& file)
{
    for (int i = 0; i < 6000 && !fs::exists(file); ++i)
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
}

[[noreturn]] void Fail(int status, const std::string& what)
{
    std::cerr << "voacapl: " << what << '\n';
    std::exit(status);
}

fs::path DirectoryIn(const std::vector<std::string>& arguments)
{
    if (arguments.size() != 5 || arguments[0] != "-s" || arguments[2] != "area" || arguments[3] != "calc" ||
        arguments[4] != "default/kavdex.voa")
        Fail(kBadArguments, "unexpected arguments");
    return arguments[1];
}

/// Returns the number of points a side.
int CheckInput(const fs::path& path)
{
    std::ifstream file(path, std::ios::binary);
    int points = 0;
    std::string line;
    for (const char* const expected : kInputLines)
    {
        std::smatch match;
        if (!std::getline(file, line) || file.eof() || !std::regex_match(line, match, std::regex(expected)))
            Fail(kBadInput, "line '" + line + "' is not like '" + expected + "'");
        if (match.size() > 1)
            points = std::stoi(match[1]);
    }
    if (std::getline(file, line))
        Fail(kBadInput, "too many lines");
    return points;
}

/// A line of 170 characters, the fields that nobody reads filled with something of their width. Power grows from west
/// to east, the noise ratio from south to north.
std::string ResultLine(int row, int column, int points)
{
    const double east = column / (points - 1.0);
    const double north = row / (points - 1.0);
    char line[256];
    std::snprintf(line, sizeof line,
                  "%3d%3d%10.4f%10.4f%6.2f  F2F2  8.00 56.81 327.8 0.912 203.2 -56.1%6.1f-170.6%6.1f", column + 1,
                  row + 1, -90 + 180 * north, -180 + 360 * east, 5 + 20 * east, -160 + 70 * east, -20 + 100 * north);
    std::string text(line);
    std::snprintf(line, sizeof line, "  63.0%6.3f", north);
    text += line;
    while (text.size() < 170)
        text += " 0.000";
    return text + "\n";
}

void WriteResult(const fs::path& path, int points)
{
    std::ofstream file(path, std::ios::binary);
    if (behaviour == "empty result")
        return;
    char counts[16];
    std::snprintf(counts, sizeof counts, "%3d%3d", points, points);
    file << "VOACAPL stand-in for tests\nHOME\n" << counts << "  Latitude Longitude   MUF  MODE ANGLE\n";
    for (int row = 0; row < points; ++row)
    {
        if (behaviour == "truncated" && row == points / 2)
            return;
        if (behaviour == "dies" && row == points / 2)
        {
            file.close();
            std::raise(SIGKILL);
        }
        for (int column = 0; column < points; ++column)
        {
            std::string text = ResultLine(row, column, points);
            if (behaviour == "stars" && row == column)
                text.replace(74, 6, "******");
            file << text;
        }
    }
}

/// Goes on for ever (two minutes, should nobody end it), with a process of its own beside it.
void Hang(const fs::path& directory)
{
    const pid_t companion = fork();
    alarm(120);
    if (companion != 0)
    {
        std::ofstream(directory / "pids.new") << getpid() << ' ' << companion << '\n';
        fs::rename(directory / "pids.new", directory / "pids.txt");
    }
    for (;;)
        pause();
}
} // namespace

int main(int argc, char** argv)
{
    if (const char* const asked = std::getenv("KAV_STAND_IN"))
        behaviour = asked;
    const fs::path directory = DirectoryIn({argv + 1, argv + argc});
    const fs::path area = directory / "areadata" / "default";
    std::ofstream(directory / "runs.txt", std::ios::app) << "run\n";
    const int points = CheckInput(area / "kavdex.voa");
    if (fs::exists(area / "kavdex.vg1"))
        Fail(kStaleResult, "there is an old result");
    if (behaviour == "reads input")
        while (std::cin.get() != EOF)
            continue;
    if (behaviour == "hangs")
        Hang(directory);
    if (behaviour == "slow")
        std::this_thread::sleep_for(std::chrono::milliseconds(600));
    if (behaviour == "waits")
        WaitFor(directory / "go on");
    if (behaviour != "no result")
        WriteResult(area / "kavdex.vg1", points);
    return behaviour == "fails" ? 1 : 0;
}

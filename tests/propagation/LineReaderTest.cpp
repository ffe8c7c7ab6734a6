#include "propagation/LineReader.h"

#include "tests/support/TemporaryHome.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <random>
#include <sstream>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace
{
using propagation::LineReader;

/// A line as it is read: its beginning, and whether a line feed ended it.
using Line = std::pair<std::string, bool>;

std::vector<Line> LinesOf(const wxString& path)
{
    LineReader file(path);
    EXPECT_TRUE(file.IsOk());
    std::vector<Line> lines;
    while (const auto line = file.Next())
        lines.emplace_back(line->text, line->ended);
    EXPECT_FALSE(file.Next()); // the end stays the end
    return lines;
}

/// The same of a text, by the standard library.
std::vector<Line> StandardLinesOf(const std::string& text)
{
    std::istringstream stream(text);
    std::vector<Line> lines;
    for (std::string line; std::getline(stream, line);)
        lines.emplace_back(line.substr(0, 128), !stream.eof());
    return lines;
}

TEST(LineReader, ReadsTheBeginningsOfTheLinesOfAnyText)
{
    const TemporaryHome home;
    std::mt19937 random(3);
    for (int i = 0; i < 25; ++i)
    {
        std::string text;
        while (text.size() < 150000 && (text.empty() || random() % 200 != 0))
        {
            const unsigned longest = std::array{3U, 200U, 140000U}[random() % 3];
            std::string line(random() % longest, ' ');
            for (char& c : line)
                c = static_cast<char>(random() % 256);
            text += line;
            if (random() % 20 != 0)
                text += "\n";
        }
        ASSERT_EQ(LinesOf(home.Write("text", text)), StandardLinesOf(text)) << i;
    }
}

TEST(LineReader, ReadsTextsThatEndWithABlock)
{
    const TemporaryHome home;
    for (const std::size_t size : {1, 65535, 65536, 65537, 131072})
        for (const char last : {'x', '\n'})
        {
            std::string text(size - 1, 'y');
            text += last;
            EXPECT_EQ(LinesOf(home.Write("text", text)), StandardLinesOf(text)) << size;
        }
}

std::ptrdiff_t OpenFiles()
{
    return std::distance(std::filesystem::directory_iterator("/proc/self/fd"), {});
}

TEST(LineReader, ClosesWhatItOpens)
{
    const TemporaryHome home;
    home.Write("text", "a line\n");
    ASSERT_EQ(mkfifo(home.Path("pipe").fn_str(), 0600), 0);
    const auto before = OpenFiles();
    for (const auto& [name, isOrdinary] : {std::pair{"text", true}, {"pipe", false}, {"", false}, {"none", false}})
        EXPECT_EQ(LineReader(home.Path(name)).IsOk(), isOrdinary) << name;
    EXPECT_EQ(OpenFiles(), before);
}

TEST(LineReader, ReadsAFileThatTakesThePlaceOfStandardInput)
{
    const TemporaryHome home;
    const wxString path = home.Write("text", "a line\n");
    const int before = dup(STDIN_FILENO);
    close(STDIN_FILENO);
    EXPECT_EQ(LinesOf(path), (std::vector<Line>{{"a line", true}}));
    dup2(before, STDIN_FILENO);
    close(before);
}
} // namespace

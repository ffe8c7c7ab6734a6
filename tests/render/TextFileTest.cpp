#include "render/TextFile.h"

#include "tests/support/LayerFixture.h"

namespace
{
std::vector<std::wstring> LinesOf(std::wstring_view text)
{
    std::vector<std::wstring> lines;
    render::ForEachLine(text, [&](std::wstring_view line) { lines.emplace_back(line); });
    return lines;
}

using Lines = std::vector<std::wstring>;

TEST(DecodeText, TakesUtf8WithAndWithoutAMark)
{
    EXPECT_EQ(render::DecodeText("\xC3\x85lesund"), L"Ålesund");
    EXPECT_EQ(render::DecodeText("\xEF\xBB\xBF\xC3\x85lesund"), L"Ålesund");
    EXPECT_EQ(render::DecodeText("\xE5\x9C\xB0\xE5\x9B\xB3"), L"地図");
}

TEST(DecodeText, TakesUtf16AndUtf32ByTheirMarks)
{
    EXPECT_EQ(render::DecodeText(std::string_view("\xFF\xFEJ\0\xC5\0", 6)), L"JÅ");
    EXPECT_EQ(render::DecodeText(std::string_view("\xFE\xFF\0J\0\xC5", 6)), L"JÅ");
    EXPECT_EQ(render::DecodeText(std::string_view("\xFF\xFE\0\0J\0\0\0\xC5\0\0\0", 12)), L"JÅ");
}

TEST(DecodeText, FallsBackToLatin1)
{
    EXPECT_EQ(render::DecodeText("\xC5lesund;\xD6rebro"), L"Ålesund;Örebro");
}

TEST(DecodeText, ReadsSomethingFromAnyBytes)
{
    EXPECT_EQ(render::DecodeText(""), L"");
    for (const std::string_view bytes : {"\xFF", "\xFE", "\xEF", "\xEF\xBB", "\xFF\xFE\xFF", "\xFF\xFEJ"})
        EXPECT_FALSE(render::DecodeText(bytes).empty()) << bytes.size();
    EXPECT_EQ(render::DecodeText(std::string_view("A\0B", 3)), std::wstring(L"A\0B", 3));
    EXPECT_EQ(render::DecodeText(std::string_view("\0\0\0\0", 4)).size(), 4u);
}

TEST(DecodeText, ReplacesWhatIsNoCharacter)
{
    const std::wstring text = render::DecodeText(std::string_view("\xFF\xFE\0\0\0\xD8\0\0J\0\0\0\xFF\xFF\xFF\xFF", 16));
    for (const wchar_t c : text)
        EXPECT_FALSE((c >= 0xD800 && c <= 0xDFFF) || c > 0x10FFFF || c < 0) << std::hex << static_cast<long>(c);
}

TEST(DecodeText, KeepsTheCharactersBesideThoseThatAreNone)
{
    const auto decoded = [](const std::vector<unsigned>& codes)
    {
        std::string bytes("\xFF\xFE\0\0", 4);
        for (const unsigned code : codes)
            for (const int shift : {0, 8, 16, 24})
                bytes.push_back(static_cast<char>(code >> shift & 255));
        std::vector<unsigned> characters;
        for (const wchar_t c : render::DecodeText(bytes))
            characters.push_back(static_cast<unsigned>(c));
        return characters;
    };
    EXPECT_EQ(decoded({'J', 0xD7FF, 0xD800, 0xDFFF, 0xE000, 0x10FFFF, 0x110000, 0xFFFFFFFF, 0, 'J'}),
              (std::vector<unsigned>{'J', 0xD7FF, 0xFFFD, 0xFFFD, 0xE000, 0x10FFFF, 0xFFFD, 0xFFFD, 0, 'J'}));
}

TEST(ForEachLine, KnowsAllLineEnds)
{
    EXPECT_EQ(LinesOf(L"a\nb\r\nc\rd"), (Lines{L"a", L"b", L"c", L"d"}));
    EXPECT_EQ(LinesOf(L"a\n\nb\r\n\r\n"), (Lines{L"a", L"", L"b", L""}));
    EXPECT_EQ(LinesOf(L"\na"), (Lines{L"", L"a"}));
    EXPECT_EQ(LinesOf(L""), Lines{});
}

class TextFileTest : public LayerFixture
{
};

TEST_F(TextFileTest, IsReadWhole)
{
    std::string bytes(200000, 'x');
    bytes[150000] = '\n';
    const auto text = render::ReadTextFile(home.Write("long.txt", bytes));
    ASSERT_TRUE(text);
    EXPECT_EQ(text->size(), 200000u);
    EXPECT_EQ(LinesOf(*text).size(), 2u);
    EXPECT_EQ(render::ReadTextFile(home.Write("empty.txt", "")), L"");
}

TEST_F(TextFileTest, ThatCannotBeReadIsReportedByTheLog)
{
    const LogLines log;
    EXPECT_FALSE(render::ReadTextFile("no such file"));
    EXPECT_EQ(log.lines.size(), 1u);
    EXPECT_FALSE(render::ReadTextFile(home.Path("")));
    EXPECT_EQ(log.lines.size(), 2u);
    EXPECT_FALSE(render::ReadTextFile(""));
}
} // namespace

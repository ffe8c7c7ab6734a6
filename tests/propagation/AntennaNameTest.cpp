#include "propagation/AntennaName.h"

#include <gtest/gtest.h>

#include <tuple>

namespace
{
using propagation::AntennaNameOf;

std::string ColumnsOf(const wxString& path)
{
    return AntennaNameOf(path).columns.utf8_string();
}

std::string ProblemOf(const wxString& path)
{
    return AntennaNameOf(path).problem.utf8_string();
}

/// A path of pieces "p1", "p2" and so on.
wxString PathOf(int pieces)
{
    wxString path;
    for (int i = 1; i <= pieces; ++i)
        path << "/p" << i;
    return path;
}

TEST(AntennaName, IsTheLastTwoPiecesOfAPathOfSevenPieces)
{
    EXPECT_EQ(ColumnsOf("/usr/local/share/voacapl/antennas/samples/sample.00"), "samples \\sample.00   ");
    EXPECT_EQ(ColumnsOf("usr/local/share/voacapl/antennas/samples/sample.00"), "samples \\sample.00   ");
}

TEST(AntennaName, OfASixPiecePathTakesTheFileForTheDirectory)
{
    EXPECT_EQ(ColumnsOf("home/user/itshfbc/antennas/samples/samp.00"), "samp.00 \\            ");
    // The file name of nine characters does not fit a directory.
    EXPECT_EQ(ProblemOf("home/user/itshfbc/antennas/samples/sample.00"), "Directory name max 8 characters");
    EXPECT_EQ(ColumnsOf("home/user/itshfbc/antennas/samples/sample.00"), "");
}

TEST(AntennaName, TakesThePiecesThatTheCountingGives)
{
    const std::tuple<int, std::string, std::string> expected[] = {
        {0, "", ""},      {1, "", ""},      {2, "", ""},      {3, "", ""},     {4, "", ""},
        {5, "p5", ""},    {6, "p6", ""},    {7, "p6", "p7"},  {8, "p7", "p8"}, {9, "p7", "p8"},
        {10, "p8", "p9"}, {11, "p8", "p9"}, {12, "p9", "p10"}};
    for (auto [pieces, directory, file] : expected)
    {
        directory.resize(8, ' ');
        file.resize(12, ' ');
        EXPECT_EQ(ColumnsOf(PathOf(pieces)), directory + "\\" + file) << pieces << " pieces";
    }
}

TEST(AntennaName, DoesNotCountEmptyPieces)
{
    EXPECT_EQ(ColumnsOf("//p1///p2/p3/p4//p5/p6/p7//"), "p6      \\p7          ");
    EXPECT_EQ(ColumnsOf("///"), "        \\            ");
}

TEST(AntennaName, HasRoomForEightAndTwelveCharacters)
{
    EXPECT_EQ(ColumnsOf("a/b/c/d/e/12345678/123456789012"), "12345678\\123456789012");
    EXPECT_EQ(ProblemOf("a/b/c/d/e/12345678/123456789012"), "");
    EXPECT_EQ(ProblemOf("a/b/c/d/e/123456789/12"), "Directory name max 8 characters");
    EXPECT_EQ(ProblemOf("a/b/c/d/e/12/1234567890123"), "File name max 12 characters");
    EXPECT_EQ(ProblemOf("a/b/c/d/e/123456789/1234567890123"), "Directory name max 8 characters");
}

TEST(AntennaName, CountsCharactersNotBytes)
{
    EXPECT_EQ(AntennaNameOf(wxString::FromUTF8("a/b/c/d/e/blåbær/ærø.00")).columns,
              wxString::FromUTF8("blåbær  \\ærø.00      "));
}
} // namespace

#include "reports/FileCheck.h"

#include "tests/support/TemporaryHome.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <wx/filefn.h>
#include <wx/image.h>

#include <array>

namespace
{
using testing::HasSubstr;

class FileCheckTest : public testing::Test
{
protected:
    const TemporaryHome home;
};

using Check = wxString (*)(const wxString&);
wxString Result(const wxString& name)
{
    return reports::ResultTrouble(name, 0);
}
constexpr std::array<Check, 5> kAll{reports::SourcePictureTrouble, reports::BorderFileTrouble,
                                    reports::LabelFileTrouble, reports::LogTrouble, Result};

TEST_F(FileCheckTest, TellsWhatCanNotBeRead)
{
    for (const Check check : kAll)
    {
        EXPECT_THAT(check("").utf8_string(), HasSubstr("no file is named"));
        EXPECT_THAT(check("gone").utf8_string(), testing::StartsWith("gone: "));
        EXPECT_THAT(check(home.Path("")).utf8_string(), testing::StartsWith(home.Path("").utf8_string()));
    }
}

TEST_F(FileCheckTest, FindsNothingInShippedFiles)
{
    EXPECT_EQ(reports::BorderFileTrouble(KAV_DATA_DIR "/mapper.pnt"), "");
    EXPECT_EQ(reports::BorderFileTrouble(KAV_DATA_DIR "/states.pnt"), "");
    EXPECT_EQ(reports::LabelFileTrouble(KAV_DATA_DIR "/cities.dat"), "");
    EXPECT_EQ(reports::LabelFileTrouble(KAV_DATA_DIR "/countries.dat"), "");
    EXPECT_EQ(reports::LabelFileTrouble(KAV_DATA_DIR "/prefixes.dat"), "");
    EXPECT_EQ(reports::LogTrouble(KAV_DATA_DIR "/sample.log"), "");
    EXPECT_EQ(Result(KAV_TEST_DATA "/area_36x36.vg1"), "");
}

TEST_F(FileCheckTest, WantsPicturesTwiceAsWideAsHigh)
{
    const auto trouble = [this](int width, int height)
    {
        wxImage(width, height).SaveFile(home.Path("a.png"), wxBITMAP_TYPE_PNG);
        return reports::SourcePictureTrouble("a.png");
    };
    EXPECT_EQ(trouble(200, 100), "");
    EXPECT_EQ(trouble(201, 100), "");
    EXPECT_EQ(trouble(199, 100), "");
    EXPECT_EQ(trouble(202, 100), "a.png: it is 202 x 100 pixels, not 2:1: places will not lie where they belong");
    EXPECT_THAT(trouble(100, 200).utf8_string(), HasSubstr("100 x 200"));
    home.Write("text.png", "no picture");
    EXPECT_EQ(reports::SourcePictureTrouble("text.png"), "text.png: it is no picture that can be loaded");
}

TEST_F(FileCheckTest, WantsBordersInWholeRecordsThatBeginALine)
{
    const auto trouble = [this](const std::string& bytes)
    {
        home.Write("a.pnt", bytes);
        return reports::BorderFileTrouble("a.pnt");
    };
    const std::string point("\xE8\x03"
                            "\0\0\0\0",
                            6);
    EXPECT_EQ(trouble(point), "");
    EXPECT_EQ(trouble(point + std::string("\xE7\x03"
                                          "\0\0\0\0",
                                          6)),
              "");
    EXPECT_EQ(trouble(""), "a.pnt: it is empty");
    EXPECT_EQ(trouble(point + "x"), "a.pnt: its length, 7 bytes, is no multiple of 6: it is damaged or no border file");
    EXPECT_EQ(trouble(std::string("\xE7\x03"
                                  "\0\0\0\0",
                                  6)),
              "a.pnt: its first code is 999, under 1000: it begins no line, it is damaged or no border file");
    EXPECT_THAT(trouble(std::string("\xFF\xFF"
                                    "\0\0\0\0",
                                    6))
                    .utf8_string(),
                HasSubstr("first code is -1"));
}

TEST_F(FileCheckTest, WantsSevenFieldsInALabelLine)
{
    const auto trouble = [this](const std::string& bytes)
    {
        home.Write("a.dat", bytes);
        return reports::LabelFileTrouble("a.dat");
    };
    EXPECT_EQ(trouble("x;Lund;City;x;55.7;13.2;x\n"), "");
    EXPECT_EQ(trouble("x;Lund;City;x;55.7;13.2;x\nx;Malmo;City;x;55.6;13.0\n\nx;Lund;City;;55.7;13.2;x\n"),
              "a.dat: 3 of 4 lines have fewer than 7 fields (empty ones do not count), the first is line 2: a position "
              "that is missing is taken as 0");
    EXPECT_EQ(trouble(""), "a.dat: it is empty");
    EXPECT_EQ(trouble(std::string("a\0b", 3)), "a.dat: it is no text");
}

TEST_F(FileCheckTest, WantsASquareInALog)
{
    home.Write("a.log", "SM7ABC 59 59\n");
    EXPECT_EQ(reports::LogTrouble("a.log"), "a.log: there is no square in it");
    home.Write("a.log", "SM7ABC 59 59 jo65\n");
    EXPECT_EQ(reports::LogTrouble("a.log"), "");
}

TEST_F(FileCheckTest, WantsAWholeResult)
{
    home.Write("a.vg1", "one\ntwo\n 17\n");
    EXPECT_EQ(Result("a.vg1"), "a.vg1: it is no area result: fewer than 18 points a side");
    home.Write("a.vg1", "one\ntwo\n 18\n");
    EXPECT_EQ(Result("a.vg1"), "a.vg1: it is not whole: 324 of 324 points lack a value and count as 0");
}
} // namespace

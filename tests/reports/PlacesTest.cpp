#include "reports/Places.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace
{
using reports::Places;
using reports::WrittenPlace;
using testing::ElementsAre;

std::vector<std::string> NamesOf(const Places& places)
{
    std::vector<std::string> names;
    for (const reports::Place& place : places.found)
        names.push_back(place.name.utf8_string());
    return names;
}

TEST(LabelledPlace, TakesNameAndPosition)
{
    const auto place = reports::LabelledPlace(L"SE;Lund;City;x;55.7; -13.25 ;x");
    ASSERT_TRUE(place);
    EXPECT_EQ(place->name, "Lund");
    EXPECT_EQ(place->at.lat, 55.7);
    EXPECT_EQ(place->at.lon, -13.25);
}

TEST(LabelledPlace, IsNoneWithoutAPosition)
{
    for (const wchar_t* const line :
         {L"", L"a;b;c;d;1", L"a;b;c;d;1;east;x", L"a;b;c;d;;2;x", L"a;b;c;d;90.1;0;x", L"a;b;c;d;0;-180.1;x",
          L"a;b;c;d;nan;0;x", L"a;b;c;d;inf;0;x", L"a;b;c;d;12,5;0;x"})
        EXPECT_FALSE(reports::LabelledPlace(line)) << wxString(line);
    EXPECT_TRUE(reports::LabelledPlace(L"a;b;c;d;-90;180"));
}

TEST(PlacesOfLabels, KeepTheOrderAndNameLinesWithout)
{
    const Places places = reports::PlacesOfLabels(L"a;B;x;x;1;2;x\n\nno label\na;A;x;x;3;4;x\na;C;x;x;300;4;x\n");
    EXPECT_THAT(NamesOf(places), ElementsAre("B", "A"));
    EXPECT_THAT(places.linesWithout, ElementsAre(3U, 5U));
}

TEST(PlacesOfLabels, PassOverWhatNoMapShows)
{
    const Places places = reports::PlacesOfLabels(L"a;B;Country;x;1;2;x\n  \t\n");
    EXPECT_TRUE(places.found.empty());
    EXPECT_TRUE(places.linesWithout.empty());
}

TEST(SquaresOfLog, AreThereOnceInTheOrderOfTheLog)
{
    EXPECT_THAT(NamesOf(reports::SquaresOfLog(L"DL0XYZ JO62qm\nx jo65 JO62\nJJ00JO65\n")),
                ElementsAre("JO62", "JO65", "JJ00"));
}

TEST(SquaresOfLog, StandForTheirMiddleSubsquare)
{
    const Places places = reports::SquaresOfLog(L"JO65");
    ASSERT_EQ(places.found.size(), 1U);
    EXPECT_DOUBLE_EQ(places.found[0].at.lat, 55 + 11 / 24.0 + 1 / 48.0);
    EXPECT_DOUBLE_EQ(places.found[0].at.lon, 12 + 11 / 12.0 + 1 / 24.0);
}

TEST(PlacesOf, TellLabelsFromALog)
{
    const wchar_t* const labels = L"# cities\nJO62;Lund;City;x;55.7;13.2;x\n";
    const wchar_t* const log = L"date;utc;mode;call;locator\n2026;0001;CW;SM7ABC;JO65\n";
    const wchar_t* const reportsInTheirPlace = L"2026;0001;CW;SM7ABC;59;59;JO65\n";
    EXPECT_THAT(NamesOf(reports::PlacesOf(labels, "places.txt")), ElementsAre("Lund"));
    EXPECT_THAT(NamesOf(reports::PlacesOf(log, "log.txt")), ElementsAre("JO65"));
    EXPECT_THAT(NamesOf(reports::PlacesOf(reportsInTheirPlace, "my.LOG")), ElementsAre("JO65"));
    EXPECT_THAT(NamesOf(reports::PlacesOf(reportsInTheirPlace, "my.dat")), ElementsAre("0001"));
}

TEST(WrittenPlace, TakesALocatorInAnyCase)
{
    const auto place = WrittenPlace("jo65hQ");
    ASSERT_TRUE(place);
    EXPECT_EQ(place->name, "jo65hQ");
    EXPECT_DOUBLE_EQ(place->at.lat, 55.6875);
    EXPECT_DOUBLE_EQ(place->at.lon, 12.625);
    EXPECT_DOUBLE_EQ(WrittenPlace("JO65")->at.lon, 12 + 11 / 12.0 + 1 / 24.0);
}

TEST(WrittenPlace, TakesLatitudeAndLongitude)
{
    for (const char* const text : {"-35.5 139.75", "-35.5,139.75", "-35.5;  139.75", "\t-35.5\t139.75"})
    {
        const auto place = WrittenPlace(text);
        ASSERT_TRUE(place) << text;
        EXPECT_EQ(place->at.lat, -35.5);
        EXPECT_EQ(place->at.lon, 139.75);
    }
}

TEST(WrittenPlace, IsNoneForAnythingElse)
{
    for (const char* const text : {"", " ", "JO6", "JO65H", "JO65HQ12", "SS00", "JO65YY", "12", "91 0", "0 181",
                                   "1 2 3", "nan 0", "1 x", "\xC3\xA5\xC3\xA4 1"})
        EXPECT_FALSE(WrittenPlace(wxString::FromUTF8(text))) << text;
}
} // namespace

#include "config/Configuration.h"
#include "config/SettingKeys.h"

#include "config/SettingsFile.h"
#include "tests/support/RecordedLog.h"
#include "tests/support/TemporaryHome.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <map>
#include <set>
#include <sstream>

namespace
{
using namespace std::string_literals;
using testing::HasSubstr;

/// Every setting as text, by key.
std::map<wxString, wxString> AllValues(Configuration& settings)
{
    std::map<wxString, wxString> values;
    settings.ForEachSetting(
        [&]<class Value>(const wxString& key, const Value& member, const auto&)
        {
            if constexpr (std::is_same_v<Value, wxString>)
                values[key] = "\"" + member + "\"";
            else
                values[key] = wxString::FromCDouble(static_cast<double>(member));
        });
    return values;
}

/// Another value than the one it has, of each type.
struct Change
{
    int n = 0;
    void operator()(const wxString&, wxString& member, const auto&) { member << "$HOME \"" << ++n << "\\å"; }
    void operator()(const wxString&, bool& member, const auto&) { member = !member; }
    void operator()(const wxString&, double& member, const auto&) { member += 0.1 + ++n; }
    template <class Integer>
    void operator()(const wxString&, Integer& member, const auto&)
    {
        member += static_cast<Integer>(++n);
    }
};

void ChangeEverything(Configuration& settings)
{
    settings.ForEachSetting(Change{});
}

TEST(Configuration, VisitsEveryKeyAndEveryMemberOnce)
{
    const TemporaryHome home;
    Configuration settings("Kavdex");
    std::set<wxString> keys;
    std::set<const void*> members;
    settings.ForEachSetting(
        [&](const wxString& key, const auto& member, const auto&)
        {
            EXPECT_TRUE(keys.insert(key).second) << key;
            EXPECT_TRUE(members.insert(&member).second) << key;
        });
    EXPECT_EQ(keys.size(), 238u);
}

TEST(Configuration, CompletesAnEmptyHomeWithAllDefaults)
{
    const TemporaryHome home;
    {
        Configuration settings("Kavdex");
    }
    Configuration reference("Kavdex");
    wxFileConfig written("", "", home.WorkingFile(), "", wxCONFIG_USE_LOCAL_FILE);
    reference.ForEachSetting([&](const wxString& key, const auto&, const auto&)
                             { EXPECT_TRUE(written.HasEntry(key)) << key; });
    EXPECT_EQ(written.Read("Center pos/Loc"), "JO65HQ");
    EXPECT_EQ(written.Read("Borders/File1"), "mapper.pnt");
    EXPECT_EQ(written.Read("Propagation/S10Value"), "-93");
    EXPECT_EQ(written.ReadLong("Propagation/S9PColour", 0), 255);
    EXPECT_THAT(home.Read(".Kavdex"), HasSubstr("[Center\\ pos]\n"));
    EXPECT_THAT(home.Read(".Kavdex"), HasSubstr("Zoom=20000\n"));
}

TEST(Configuration, WritesEveryDefaultInOrder)
{
    const TemporaryHome home;
    {
        Configuration settings("Kavdex");
    }
    // All but the date and time, whose default is now.
    std::istringstream written(home.Read(".Kavdex"));
    std::string lines;
    int clockLines = 0;
    for (std::string line; std::getline(written, line);)
        if (line.rfind("Cal", 0) == 0)
            ++clockLines;
        else
            lines += line + "\n";
    EXPECT_EQ(clockLines, 5);
    std::ifstream golden(KAV_TEST_DATA "/defaults.ini");
    EXPECT_EQ(lines, std::string(std::istreambuf_iterator<char>(golden), {}));
}

TEST(Configuration, HasItsDefaults)
{
    const TemporaryHome home;
    const Configuration settings("Kavdex");
    EXPECT_EQ(settings.centreLat, 55.6875);
    EXPECT_EQ(settings.centreLon, 12.625);
    EXPECT_EQ(settings.meridians.alpha, 50);
    EXPECT_EQ(settings.fields.lineWidth, 2);
    EXPECT_EQ(settings.squares.text.colour, 6579300);
    EXPECT_TRUE(settings.compass.insideMap);
    EXPECT_EQ(settings.radials.every, 3);
    EXPECT_EQ(settings.rangeCircles.distanceKm, 2500);
    EXPECT_EQ(settings.borders[1].file, "");
    EXPECT_EQ(settings.texts[2].colour, 65280);
    EXPECT_EQ(settings.plotSquares[1].fillColour, 16776960);
    EXPECT_EQ(settings.greyzone.darkeningNight, 30);
    EXPECT_EQ(settings.propagation.scales[0].colours[9], 255);
    EXPECT_EQ(settings.propagation.scales[3].values[0], "0.01");
    EXPECT_EQ(settings.propagation.scales[2].values[9], "29");
    EXPECT_EQ(settings.propagation.layerMultipliers[3], "0.00");
    EXPECT_FALSE(settings.resetOverlays);
}

TEST(Configuration, ReplacesADamagedValueInTheFile)
{
    const TemporaryHome home;
    home.Write(".Kavdex",
               "[Meridians]\nAlpha=abc\nColour=12\n[Compass]\nShow=perhaps\n[Center\\ pos]\nLat=nan\nLon=1e999\n");
    {
        const Configuration settings("Kavdex");
        EXPECT_EQ(settings.meridians.alpha, 50);
        EXPECT_EQ(settings.meridians.colour, 12);
        EXPECT_TRUE(settings.compass.show);
        EXPECT_EQ(settings.centreLat, 55.6875);
        EXPECT_EQ(settings.centreLon, 12.625);
    }
    EXPECT_THAT(home.Read(".Kavdex"), HasSubstr("Alpha=50\n"));
    EXPECT_THAT(home.Read(".Kavdex"), HasSubstr("Lat=55.6875\n"));
}

TEST(Configuration, LeavesKeysItDoesNotKnowAlone)
{
    const TemporaryHome home;
    home.Write(".Kavdex", "[Stranger]\nGuest=stays\n");
    {
        Configuration settings("Kavdex");
        settings.WriteAll();
    }
    EXPECT_THAT(home.Read(".Kavdex"), HasSubstr("Guest=stays\n"));
}

TEST(Configuration, KeepsAColourTypedByHandAsItStands)
{
    const TemporaryHome home;
    home.Write(".Kavdex", "[Meridians]\nColour=16777215\n");
    EXPECT_EQ(Configuration("Kavdex").meridians.colour, 16777215);
}

TEST(Configuration, BringsEveryChangedValueBackFromTheWorkingFile)
{
    const TemporaryHome home;
    std::map<wxString, wxString> written;
    {
        Configuration settings("Kavdex");
        ChangeEverything(settings);
        settings.WriteAll();
        written = AllValues(settings);
    }
    Configuration again("Kavdex");
    EXPECT_EQ(AllValues(again), written);
}

TEST(Configuration, BringsEveryChangedValueBackFromANamedFile)
{
    const TemporaryHome home;
    Configuration settings("Kavdex");
    ChangeEverything(settings);
    settings.WriteAllTo(*OpenSettingsFile("named.ini"));
    Configuration other("Kavdex");
    EXPECT_NE(AllValues(other), AllValues(settings));
    const std::string before = home.Read("named.ini");
    other.ReadAllFrom(*OpenSettingsFile("named.ini"));
    EXPECT_EQ(AllValues(other), AllValues(settings));
    EXPECT_EQ(home.Read("named.ini"), before);
}

TEST(Configuration, BringsTextsBackExactlyAsWritten)
{
    const TemporaryHome home;
    for (const char* text : {"$HOME", "${HOME}", "%HOME%", "\"quoted\"", "back\\slash\\n", "  leading blanks",
                             "trailing  ", "æøå 地図", "a=b;c#d", "/", "", "two\nlines\tand a tab"})
    {
        const wxString written = wxString::FromUTF8(text);
        {
            Configuration settings("Kavdex");
            settings.texts[0].file = written;
            settings.WriteAll();
        }
        EXPECT_EQ(Configuration("Kavdex").texts[0].file, written) << text;
    }
}

TEST(Configuration, TakesTheMomentOfLoadingAsOnceTimeOfAFileWithoutOne)
{
    const TemporaryHome home;
    home.Write("lat.ini", "[Center\\ pos]\nLat=10\n");
    Configuration settings("Kavdex");
    ChangeEverything(settings);
    const Clock before = SetClock([] { return std::time_t{1793446245}; });
    settings.ReadAllFrom(*OpenSettingsFile("lat.ini"));
    SetClock(before);
    EXPECT_EQ(settings.greyzone.once, (UtcTime{2026, 9, 31, 11, 30, 0}));
    EXPECT_EQ(settings.centreLat, 10.0);
    EXPECT_EQ(settings.centreLon, 12.625);
    EXPECT_EQ(settings.size, 900);
    EXPECT_EQ(home.Read("lat.ini"), "[Center\\ pos]\nLat=10\n");
}

TEST(Configuration, TakenFromAnotherFileLeavesTheWorkingFileAlone)
{
    const TemporaryHome home;
    home.Write(".Kavdex", "Size=777\n");
    home.Write("other.ini", "Zoom=5000\n");
    {
        const Configuration settings("Kavdex", *OpenSettingsFile("other.ini"));
        EXPECT_EQ(settings.zoom, 5000);
        EXPECT_EQ(settings.size, 900);
    }
    EXPECT_EQ(home.Read(".Kavdex"), "Size=777\n");
}

TEST(Configuration, ReportsNothingAboutDamagedFiles)
{
    const TemporaryHome home;
    home.Write(".Kavdex", "[Compass\nShow=7\n=\n\xff\xfe\x00junk\n[Greyzone]\nShow=maybe\n"s);
    const RecordedLog log;
    const Configuration settings("Kavdex");
    EXPECT_EQ(log.Text(), "");
    EXPECT_FALSE(settings.greyzone.show);
}

TEST(Configuration, WritesALocatorInPlace)
{
    wxString locator = "AA11RR";
    Configuration::LatLonToLocator(locator, 55.6875, 12.625);
    EXPECT_EQ(locator, "JO65HQ");
    Configuration::LatLonToLocator(locator, 90.0001, 0.0);
    EXPECT_EQ(locator, "JO65HQ");
}

TEST(Configuration, NeverWritesALocatorOutsideItsText)
{
    for (const char* text : {"", "J", "JO65H", "AA11RR and more"})
    {
        wxString locator = text;
        Configuration::LatLonToLocator(locator, -33.5, 151.2);
        EXPECT_EQ(locator.length(), wxString(text).length());
        EXPECT_EQ(locator.Left(6), wxString("QF56OM").Left(locator.length()));
    }
}

TEST(Configuration, CompletesALocatorOfFourCharactersInTheCallersText)
{
    wxString locator = "JO65";
    double lat = 0.0;
    double lon = 0.0;
    EXPECT_EQ(Configuration::LocatorToLatLon(lat, lon, locator), 1);
    EXPECT_EQ(locator, "JO65LL");
    EXPECT_NEAR(lat, 55.479166, 1e-6);
    EXPECT_NEAR(lon, 12.958333, 1e-6);
}

TEST(Configuration, RefusesWhatIsNoLocatorAndKeepsThePosition)
{
    for (const char* text : {"jo65hq", "JO65H", "SA00AA", "AA00AY", "", "ØØ00AA", "ZZ99"})
    {
        wxString locator = wxString::FromUTF8(text);
        double lat = 1.5;
        double lon = 2.5;
        EXPECT_EQ(Configuration::LocatorToLatLon(lat, lon, locator), 0) << text;
        EXPECT_EQ(lat, 1.5);
        EXPECT_EQ(lon, 2.5);
    }
}
} // namespace

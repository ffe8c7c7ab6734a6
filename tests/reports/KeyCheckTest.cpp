#include "reports/KeyCheck.h"

#include "config/QuietToolkit.h"
#include "config/SettingKeys.h"
#include "config/SettingsFile.h"
#include "reports/SettingRanges.h"
#include "tests/support/TemporaryHome.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace
{
using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::string> LinesOf(const reports::Findings& findings)
{
    std::vector<std::string> lines;
    for (const reports::Finding& finding : findings)
        lines.push_back((finding.key + ": " + finding.text).utf8_string());
    return lines;
}

class KeyCheckTest : public testing::Test
{
protected:
    std::unique_ptr<wxFileConfig> File(const std::string& text) { return OpenSettingsFile(home.Write("a.ini", text)); }
    std::vector<std::string> Values(const std::string& text)
    {
        const QuietToolkit quiet;
        return LinesOf(reports::CheckValues(*File(text), settings));
    }
    std::vector<std::string> Keys(const std::string& text) { return LinesOf(reports::CheckKeys(*File(text))); }

    const TemporaryHome home;
    Settings settings;
};

TEST_F(KeyCheckTest, FindsNothingInAllDefaults)
{
    std::string text;
    Settings all = DefaultSettings();
    auto file = File("");
    all.ForEachSetting([&file](const wxString& key, const auto& member, const auto&) { file->Write(key, member); });
    file.reset();
    const auto written = OpenSettingsFile("a.ini");
    EXPECT_THAT(LinesOf(reports::CheckValues(*written, settings)), IsEmpty());
    EXPECT_THAT(LinesOf(reports::CheckKeys(*written)), IsEmpty());
    EXPECT_THAT(Values(""), IsEmpty());
}

TEST_F(KeyCheckTest, NamesWhatCanNotBeRead)
{
    EXPECT_THAT(Values("Size=12x\n[Center\\ pos]\nLat=north\n[Meridians]\nShow=yes\n"),
                ElementsAre("Center pos/Lat: 'north' is not a number: the default, 55.6875, is used",
                            "Size: '12x' is not a whole number: the default, 900, is used",
                            "Meridians/Show: 'yes' is not 0 or 1: the default, 1, is used"));
    EXPECT_EQ(settings.size, 900);
    EXPECT_THAT(Values("[Meridians]\nShow=2\n"), ElementsAre("Meridians/Show: '2' is not 0 or 1: counts as 1"));
}

TEST_F(KeyCheckTest, NamesWhatIsOutOfRange)
{
    EXPECT_THAT(Values("Size=99\nZoom=20001\n[Text]\nAlign2=10\nFontColour2=16777216\n"),
                ElementsAre("Zoom: 20001 is out of range, 100 to 20000: the disc has the nearest",
                            "Size: 99 is out of range, 100 to 8000: no map is made",
                            "Text/FontColour2: 16777216 is out of range, 0 to 16777215: its low 24 bits count",
                            "Text/Align2: 10 is out of range, 0 to 9: counts as the first"));
    EXPECT_THAT(Values("Size=100\nZoom=20000\n[Text]\nAlign2=9\nFontColour2=16777215\n"), IsEmpty());
    EXPECT_EQ(settings.size, 100);
    // More than the member holds.
    EXPECT_EQ(Values("[Greyzone]\nCalMo=4294967296\n").size(), 1U);
}

TEST_F(KeyCheckTest, KnowsARangeForEveryNumber)
{
    settings.ForEachSetting(
        []<class Value>(const wxString& key, const Value&, const auto& fallback)
        {
            if constexpr (!std::is_same_v<Value, wxString> && !std::is_same_v<Value, bool>)
            {
                const reports::SettingRange* const range = reports::RangeOf(key);
                // How many sunspots voacapl reads is one of its own rules.
                EXPECT_EQ(range != nullptr, key != "Propagation/SSN") << key;
                if (range)
                {
                    EXPECT_GE(static_cast<double>(fallback), range->least) << key;
                    EXPECT_LE(static_cast<double>(fallback), range->most) << key;
                }
            }
        });
}

TEST_F(KeyCheckTest, NamesTheKeyNearestToAnUnknownOne)
{
    EXPECT_THAT(Keys("Sise=100\nsize=100\n[meridians]\nALPHA=3\nAlhpa=3\n[Kitchen]\nSink=1\n"),
                ElementsAre("Sise: no such key, it is ignored: is it Size?", "Kitchen/Sink: no such key, it is ignored",
                            "meridians/Alhpa: no such key, it is ignored: is it Meridians/Alpha?"));
    EXPECT_THAT(Keys("Size__=1\nSize___=1\nzz=1\n"),
                ElementsAre("Size__: no such key, it is ignored: is it Size?", "Size___: no such key, it is ignored",
                            "zz: no such key, it is ignored"));
    const std::string endless(1'000'000, 'x');
    EXPECT_THAT(Keys(endless + "=1\n"), ElementsAre(endless + ": no such key, it is ignored"));
}

TEST(CheckLines, NamesLinesThatSayNothing)
{
    EXPECT_THAT(
        LinesOf(reports::CheckLines("# a\n; b\n\n[Group]\n  \r\nkey=value\nkey value\nkey = \nlast\n  =x\n[open\n")),
        ElementsAre(
            "line 7: neither a group nor a key, it is ignored", "line 9: neither a group nor a key, it is ignored",
            "line 10: neither a group nor a key, it is ignored", "line 11: neither a group nor a key, it is ignored"));
}
} // namespace

#include "config/QuietToolkit.h"
#include "config/ReadSetting.h"
#include "config/SettingKeys.h"
#include "config/SettingsFile.h"
#include "maker/MapMaker.h"
#include "propagation/AreaInput.h"
#include "render/MapRows.h"
#include "tests/support/HeldClock.h"
#include "tests/support/TemporaryHome.h"

#include <gtest/gtest.h>

#include <wx/log.h>

#include <set>

namespace
{
constexpr std::time_t kNoon = 1774008000; // 2026-03-20
constexpr int kSide = 100;
constexpr std::size_t kPixels = kSide * kSide;

struct HostileValue
{
    const char* name;
    std::string bytes;
    bool isInteger; ///< of some size
};

const std::vector<HostileValue>& HostileValues()
{
    static const std::vector<HostileValue> values{
        {"smallest int", "-2147483648", true},
        {"largest int", "2147483647", true},
        {"smallest long", "-9223372036854775808", true},
        {"largest long", "9223372036854775807", true},
        {"beyond all", "1e308", false},
        {"beyond all, negative", "-1e308", false},
        {"no number", "nan", false},
        {"empty", "", false},
        {"10 kB", std::string(10240, 'x'), false},
        {"binary", std::string("\x01\x00\xFF\xFE\x80\x1B\\\x7F", 8), false},
        {"emoji", "\xF0\x9F\x93\xA1\xF0\x9F\x97\xBA\xEF\xB8\x8F", false},
    };
    return values;
}

wxString GroupOf(const wxString& key)
{
    return key.BeforeFirst('/');
}

std::vector<std::string> Groups()
{
    std::set<std::string> groups;
    Settings().ForEachSetting([&](const wxString& key, const auto&, const auto&)
                              { groups.insert(GroupOf(key).utf8_string()); });
    return {groups.begin(), groups.end()};
}

/// Small maps that show what the settings of one group are about, one setting being what nobody expects.
class HostileSettingsTest : public testing::TestWithParam<std::string>, protected MapListener
{
protected:
    void OnStep(const wxString&) override {}
    void OnError(const wxString&) override { ++errors; }

    /// Whether a key of that type can have such a value; if not, it keeps its default.
    template <class Value>
    static bool IsReadable(const HostileValue& value)
    {
        return value.isInteger || std::is_same_v<Value, wxString> ||
               (std::is_same_v<Value, double> && std::string(value.name).starts_with("beyond"));
    }

    /// What the group is about, as far as it can be shown, and nothing else.
    Settings Usual() const
    {
        Settings settings = DefaultSettings();
        settings.ForEachSetting(
            [&]<class Value>(const wxString& key, Value& member, const auto&)
            {
                if constexpr (std::is_same_v<Value, bool>)
                    member = GroupOf(key) == GetParam() && !key.Contains("Coll1");
            });
        settings.size = kSide;
        settings.greyzone.timeMode = kOnce;
        if (settings.squares.show)
            settings.zoom = 150; // there are 34,200 of them
        for (BorderSlot& slot : settings.borders)
            slot.file = m_borders;
        for (TextSlot& slot : settings.texts)
            slot.file = m_labels;
        for (SourceBitmapSlot& slot : settings.sourceBitmaps)
            slot.file = m_world;
        for (PlotSquaresSlot& slot : settings.plotSquares)
            slot.file = m_log;
        settings.propagation.externalResult = KAV_TEST_DATA "/area_36x36.vg1";
        return settings;
    }

    /// The pixels of a map; none for a size that can't be.
    std::vector<render::Argb> Picture(Settings settings)
    {
        const wxLogNull quiet;
        MapRows rows;
        MapMaker maker(settings, rows, *this);
        if (maker.MakeMap() != MapMaker::Creation::Finished)
            return {};
        const auto side = static_cast<std::size_t>(rows.Side());
        std::vector<render::Argb> pixels(side * side);
        for (std::size_t y = 0; y < side; ++y)
            rows.Row(static_cast<int>(y), std::span(pixels).subspan(y * side, side));
        return pixels;
    }

    /// What a run would get.
    static wxString InputOf(const Settings& settings)
    {
        return propagation::AreaInputText(settings, {settings.centreLat, settings.centreLon},
                                          propagation::AreaTimeOf(settings.greyzone, UtcNow()), {});
    }

    /// What only a run gets does not; of the steps of the scales, which are all alike, one stands for the others.
    static bool ShowsOnMap(const wxString& key)
    {
        static const std::set<wxString> kShown{"Show",        "Alpha",      "GreyScale", "Param",   "ParamLevel",
                                               "ParamLegend", "ExtVg1File", "S9PColour", "S10Value"};
        return GroupOf(key) != "Propagation" || kShown.contains(key.AfterLast('/'));
    }

    /// Reads one key as a settings file gives it.
    template <class Value>
    void Read(const wxString& key, Value& member, const Value& fallback, const std::string& bytes) const
    {
        const wxString group = key.Contains("/") ? "[" + GroupOf(key) + "]\n" : wxString();
        const QuietToolkit quiet;
        const auto file = OpenSettingsFile(
            home.Write("hostile.ini", (group + key.AfterLast('/') + "=").utf8_string() + bytes + "\n"));
        config::ReadSetting(*file, key, member, fallback);
    }

    /// The usual settings but for one.
    template <class Visited>
    Settings With(const wxString& wanted, const HostileValue& value, Visited visited) const
    {
        Settings settings = Usual();
        settings.ForEachSetting(
            [&]<class Value>(const wxString& key, Value& member, const auto&)
            {
                if (key != wanted)
                    return;
                const Value usual = member;
                Read(key, member, usual, value.bytes);
                visited(member, usual);
            });
        return settings;
    }

    template <class Value>
    static std::string TextOf(const Value& member)
    {
        if constexpr (std::is_same_v<Value, wxString>)
            return member.utf8_string();
        else
            return std::to_string(member);
    }

    std::vector<wxString> Keys() const
    {
        std::vector<wxString> keys;
        Settings().ForEachSetting(
            [&](const wxString& key, const auto&, const auto&)
            {
                if (GroupOf(key) == GetParam())
                    keys.push_back(key);
            });
        return keys;
    }

    const TemporaryHome home;
    int errors = 0;

private:
    HeldClock m_clock{kNoon};
    const wxString m_borders = home.Write("lines.pnt", std::string("\xe9\x03\0\0\0\0\x01\0\x88\x13\x10\x0e", 12));
    const wxString m_labels = home.Write("labels.dat", "1;Here;City;DK;55;12\n2;There;City;DK;57;12\n");
    const wxString m_world = home.Write("world.pnm", "P6\n4 2\n255\n" + std::string(24, '\x55'));
    const wxString m_log = home.Write("contacts.log", "JO65 KP20 AA00\n");
};

TEST_P(HostileSettingsTest, MakeAMapOrSayWhyNot)
{
    ASSERT_EQ(Picture(Usual()).size(), kPixels);
    for (const wxString& key : Keys())
    {
        std::set<std::string> drawn;
        for (const HostileValue& value : HostileValues())
        {
            SCOPED_TRACE(key.utf8_string() + ": " + value.name);
            bool isNew = false;
            const Settings settings = With(key, value,
                                           [&]<class Value>(const Value& member, const Value& usual)
                                           {
                                               EXPECT_TRUE(IsReadable<Value>(value) || member == usual);
                                               isNew = member != usual && drawn.insert(TextOf(member)).second;
                                           });
            errors = 0;
            EXPECT_TRUE(!isNew || !ShowsOnMap(key) || Picture(settings).size() == kPixels || errors > 0);
            EXPECT_EQ(InputOf(settings).Freq('\n'), 18);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Group, HostileSettingsTest, testing::ValuesIn(Groups()),
                         [](const testing::TestParamInfo<std::string>& group)
                         {
                             wxString name = group.param;
                             name.Replace(" ", "");
                             return name.utf8_string();
                         });
} // namespace

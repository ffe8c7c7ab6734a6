#include "config/SettingKeys.h"
#include "tests/support/HeapInUse.h"
#include "tests/support/Processes.h"
#include "tests/ui/MonkeyFixture.h"
#include "tests/ui/MonkeyInOptions.h"
#include "ui/options/KavMapOptions.h"

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <variant>

namespace
{
namespace fs = std::filesystem;

/// A number of the environment; a default where there is none.
int FromEnvironment(const char* name, int fallback)
{
    const char* const text = std::getenv(name);
    return text ? std::atoi(text) : fallback;
}

using Values = std::vector<std::variant<double, long, int, bool, wxString>>;

Values ValuesOf(Configuration& settings)
{
    Values values;
    settings.ForEachSetting([&values](const wxString&, const auto& member, const auto&)
                            { values.emplace_back(member); });
    return values;
}

/**
 * Random actions on the main window, after each of which it has to be in order. KAV_MONKEY_ACTIONS and KAV_MONKEY_SEED
 * ask for more of them and for others; a seed brings the same ones again.
 */
class Monkey : public MonkeyFixture, public testing::WithParamInterface<int>
{
protected:
    Monkey() : MonkeyFixture(SeedOf(GetParam())) {}

    static unsigned SeedOf(int param) { return static_cast<unsigned>(FromEnvironment("KAV_MONKEY_SEED", 0) + param); }

    void SetUp() override
    {
        MonkeyFixture::SetUp();
        for (const auto& file : fs::recursive_directory_iterator(KAV_DATA))
            if (file.is_regular_file())
                files.push_back(wxString::FromUTF8(file.path().string()));
        files.insert(files.end(), {"gone.png", "mapper.pnt", KAV_DATA, home.Path("map.png")});
        dialogs.onOtherDialog = [this](wxDialog& dialog)
        {
            if (dynamic_cast<KavMapOptions*>(&dialog))
                dialog.CallAfter([this, &dialog] { ActIn(dialog); });
            return wxID_NONE;
        };
    }

    void ActOnce()
    {
        int which = chance.Below(kAllWeights);
        const Action* action = kActions;
        for (; which >= action->weight; ++action)
            which -= action->weight;
        ++actions;
        trail += std::string(" ") + action->name;
        dialogs.chosenPath = AnyPath();
        const int maps = steps["Finished..."];
        (this->*action->act)();
        Settle();
        LeaveMenus();
        areToolsBehind = areToolsBehind && steps["Finished..."] == maps;
    }

    /// In the options dialog each change counts as an action.
    void ActIn(wxDialog& dialog)
    {
        MonkeyInOptions monkey(dialog, chance, files);
        for (int i = chance.Between(1, 20); i > 0; --i, ++actions)
        {
            dialogs.chosenPath = AnyPath();
            monkey.Act();
            if (chance.OneIn(10))
                MonkeyFixture::Tick();
        }
        ++steps["(options)"];
        monkey.Leave();
        hasLeftOptions = true;
    }

    /// Maps stay small, and the settings are those of the file.
    void AfterOptions()
    {
        if (!hasLeftOptions)
            return;
        hasLeftOptions = false;
        areToolsBehind = !settings->resetOverlays;
        if (settings->resetOverlays)
        {
            Configuration kept("Kavdex");
            EXPECT_TRUE(ValuesOf(kept) == ValuesOf(*settings));
        }
        if (settings->size > 300)
            settings->size = chance.Between(90, 300);
    }

    void ExpectOrder()
    {
        ExpectNothingModal();
        ExpectPictureInOrder();
        ExpectToolsInOrder();
        ExpectTimersInOrder();
    }

    void ExpectNothingModal() const
    {
        EXPECT_TRUE(frame->IsShown() && frame->IsEnabled());
        for (const wxWindow* const top : wxTopLevelWindows)
            EXPECT_TRUE(top == frame || !top->IsShown()) << top->GetLabel();
        EXPECT_EQ(gtk_grab_get_current(), nullptr);
        for (std::size_t menu = 0; menu < frame->GetMenuBar()->GetMenuCount(); ++menu)
            EXPECT_TRUE(frame->GetMenuBar()->IsEnabledTop(menu));
    }

    void ExpectPictureInOrder() const
    {
        const MapCanvas& canvas = Canvas();
        EXPECT_TRUE(canvas.mapReady);
        EXPECT_EQ(canvas.HasMap(), frame->View().has_value());
        EXPECT_TRUE(canvas.greylineBitmap || !canvas.showGreyline);
        EXPECT_TRUE(canvas.propagationBitmap || !canvas.showPropagation);
        for (const auto* const bitmap : {&canvas.mapBitmap, &canvas.greylineBitmap, &canvas.propagationBitmap})
            EXPECT_TRUE(!*bitmap || (*bitmap)->GetSize() == wxSize(1, 1) * frame->View()->frame.mapSize);
    }

    void ExpectToolsInOrder() const
    {
        EXPECT_EQ(IsEnabled(ui::kIdCreate), IsEnabled(ui::kIdOptions));
        EXPECT_TRUE(IsEnabled(ui::kIdCreate) || !IsEnabled(ui::kIdSave));
        EXPECT_TRUE(IsEnabled(ui::kIdHelp));
        EXPECT_TRUE(Canvas().HasMap() || !IsEnabled(ui::kIdGreyline));
        EXPECT_TRUE(Canvas().HasMap() || !IsEnabled(ui::kIdFirstFrequency));
        EXPECT_TRUE((IsEnabled(ui::kIdGreyline) && Tools().GetToolState(ui::kIdGreyline)) || !Canvas().showGreyline);
        ExpectOneChosen(FrequencyTools(), settings->propagation.frequency);
        ExpectOneChosen(ParameterTools(), settings->propagation.parameter);
    }

    bool IsEnabled(int id) const { return Tools().GetToolEnabled(id); }

    static std::vector<int> FrequencyTools()
    {
        std::vector<int> tools;
        for (int id = ui::kIdFirstFrequency; id <= ui::kIdLastFrequency; ++id)
            tools.push_back(id);
        return tools;
    }
    static std::vector<int> ParameterTools()
    {
        std::vector<int> tools;
        for (const auto& parameter : config::kParameters)
            tools.push_back(parameter.tool);
        return tools;
    }

    void ExpectOneChosen(const std::vector<int>& group, int wanted) const
    {
        std::vector<int> chosen;
        for (std::size_t i = 0; i < group.size(); ++i)
        {
            EXPECT_EQ(IsEnabled(group[i]), IsEnabled(ui::kIdFirstFrequency));
            if (Tools().GetToolState(group[i]))
                chosen.push_back(static_cast<int>(i));
        }
        EXPECT_EQ(chosen.size(), 1u);
        EXPECT_TRUE(areToolsBehind || chosen.at(0) == wanted) << wanted;
    }

    void ExpectTimersInOrder() const
    {
        for (const wxTimer* const timer : {&window->m_greylineTimer, &window->m_propagationTimer})
            EXPECT_TRUE(Canvas().HasMap() || !timer->IsRunning());
    }

    static std::ptrdiff_t OpenFiles()
    {
        return std::distance(fs::directory_iterator("/proc/self/fd"), fs::directory_iterator());
    }

    /// What has happened, where someone has asked for a seed or a number of actions.
    void Tell() const
    {
        if (!std::getenv("KAV_MONKEY_ACTIONS") && !std::getenv("KAV_MONKEY_SEED"))
            return;
        std::printf("seed %u: %d actions, %zu messages, %zu bytes of heap\n", SeedOf(GetParam()), actions,
                    dialogs.messages.size(), HeapInUse());
        for (const auto& [step, count] : steps)
            std::printf("  %d times %s\n", count, step.utf8_string().c_str());
    }

    struct Action
    {
        const char* name;
        int weight;
        void (Monkey::*act)();
    };
    static constexpr Action kActions[] = {{"tool", 16, &Monkey::PressTool},
                                          {"locator", 8, &Monkey::TypeLocator},
                                          {"key", 10, &Monkey::PressKey},
                                          {"pointer", 10, &Monkey::Point},
                                          {"click", 4, &Monkey::RightClick},
                                          {"F10", 2, &Monkey::PressMenuKey},
                                          {"menu", 4, &Monkey::UseMenu},
                                          {"Alt", 3, &Monkey::OpenMenuWithKeys},
                                          {"size", 4, &Monkey::Resize},
                                          {"scroll", 6, &Monkey::Scroll},
                                          {"tick", 16, &Monkey::Tick},
                                          {"clock", 10, &Monkey::MoveClock},
                                          {"voacapl", 4, &Monkey::ChangeVoacapl},
                                          {"quit", 2, &Monkey::Reopen}};
    static constexpr int kAllWeights = []
    {
        int sum = 0;
        for (const Action& action : kActions)
            sum += action.weight;
        return sum;
    }();

    std::vector<wxString> files;
    std::string trail;
    int actions = 0;
    bool hasLeftOptions = false;
    bool areToolsBehind = false; ///< settings were loaded and cancelled, and no map was made since
};

TEST_P(Monkey, LeavesTheWindowInOrder)
{
    constexpr std::size_t kHeapRoom = 64 << 20;
    const int wanted = FromEnvironment("KAV_MONKEY_ACTIONS", 250);
    const auto openFiles = OpenFiles();
    std::size_t before = 0;
    ASSERT_TRUE(frame->CreateMap());
    for (int i = 0; actions < wanted && !HasFailure(); ++i)
    {
        ActOnce();
        AfterOptions();
        ExpectOrder();
        if (i == 50)
            before = HeapInUse();
        EXPECT_TRUE(before == 0 || HeapInUse() < before + kHeapRoom) << HeapInUse() << " after " << before;
    }
    EXPECT_LT(OpenFiles(), openFiles + 16);
    EXPECT_TRUE(HaveEnded(ProcessesIn(home.Path("data/pids.txt").utf8_string())));
    EXPECT_FALSE(HasFailure()) << "seed " << SeedOf(GetParam()) << " after" << trail;
    Tell();
}

INSTANTIATE_TEST_SUITE_P(Screen, Monkey, testing::Range(1, 5));
} // namespace

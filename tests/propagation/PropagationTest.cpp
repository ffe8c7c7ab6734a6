#include "propagation/Propagation.h"

#include "propagation/AreaInput.h"
#include "tests/propagation/Results.h"
#include "tests/support/Pictures.h"
#include "tests/support/TemporaryHome.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fcntl.h>
#include <filesystem>
#include <functional>
#include <sys/stat.h>
#include <unistd.h>

namespace
{
using testing::ElementsAre;
using testing::IsEmpty;

/// Sets a variable of the environment for as long as it lives.
class EnvironmentVariable
{
public:
    EnvironmentVariable(const wxString& name, const wxString& value) : m_name(name), m_had(wxGetEnv(name, &m_before))
    {
        wxSetEnv(name, value);
    }
    ~EnvironmentVariable() { m_had ? wxSetEnv(m_name, m_before) : wxUnsetEnv(m_name); }
    EnvironmentVariable(const EnvironmentVariable&) = delete;
    EnvironmentVariable& operator=(const EnvironmentVariable&) = delete;

private:
    wxString m_name;
    wxString m_before;
    bool m_had;
};

/// The administrator may write everywhere; while this lives, the test may not.
class OrdinaryUser
{
public:
    OrdinaryUser() : m_wasAdministrator(geteuid() == 0 && seteuid(65534) == 0) {}
    ~OrdinaryUser() { EXPECT_TRUE(!m_wasAdministrator || seteuid(0) == 0); }
    OrdinaryUser(const OrdinaryUser&) = delete;
    OrdinaryUser& operator=(const OrdinaryUser&) = delete;

private:
    bool m_wasAdministrator;
};

class PropagationTest : public testing::Test, protected propagation::Progress
{
protected:
    PropagationTest()
    {
        settings.size = 200;
        settings.greyzone.timeMode = kOnce;
        settings.propagation.grid = 0;
        MakeDataDirectory("voacap");
        // As the program does: whoever asks for input gets none.
        const int nothing = open("/dev/null", O_RDONLY);
        dup2(nothing, STDIN_FILENO);
        close(nothing);
    }

    void MakeDataDirectory(const wxString& name)
    {
        settings.propagation.directory = home.Path(name);
        std::filesystem::create_directories(home.Path(name + "/areadata/default").utf8_string());
    }

    void OnStep(const wxString& step) override { steps.push_back(step.utf8_string()); }
    bool OnWaiting(std::chrono::milliseconds) override { return keepWaiting(); }

    /// Computes an overlay and returns the errors.
    std::vector<wxString> Compute(const wxString& behaviour = "")
    {
        const EnvironmentVariable how("KAV_STAND_IN", behaviour);
        steps.clear();
        view = render::MakeMapView(settings, 1);
        made = Propagation::Compute(settings, view, now, *this);
        return made.errors;
    }

    Colours ComputedColours() const { return ColoursOf(*BitmapOf(*made.overlay)); }

    int Runs() const
    {
        const std::string log = home.Read("voacap/runs.txt");
        return static_cast<int>(std::ranges::count(log, '\n'));
    }

    bool Exists(const wxString& name) const { return std::filesystem::exists(home.Path(name).utf8_string()); }

    const TemporaryHome home;
    wxString path = wxString(KAV_STAND_IN) + ":" + wxGetenv("PATH");
    EnvironmentVariable searchPath{"PATH", path};
    Settings settings = DefaultSettings();
    MapView view;
    UtcTime now{2026, 9, 21, 13, 31, 0};
    Propagation made{};
    std::vector<std::string> steps;
    std::function<bool()> keepWaiting = [] { return true; };
};

const char kInput[] = "voacap/areadata/default/kavdex.voa";
const char kResult[] = "voacap/areadata/default/kavdex.vg1";

TEST_F(PropagationTest, MakesTheOverlayOfARun)
{
    EXPECT_THAT(Compute(), IsEmpty());
    EXPECT_EQ(Runs(), 1);
    ASSERT_TRUE(made.overlay);
    EXPECT_EQ(made.overlay->Side(), 200);
    EXPECT_THAT(steps,
                ElementsAre("Calling VoaArea...", "Reading file...", "Calling Regrid...", "Creating prop img..."));
}

TEST_F(PropagationTest, ColoursTheResultOfTheRun)
{
    settings.centreLat = settings.centreLon = 0;
    settings.propagation.alpha = 255;
    ASSERT_THAT(Compute(), IsEmpty());
    const Colours colours = ComputedColours();
    // The stand-in's power grows from -160 dBW in the west to -90 in the east: -142.5, S2, 90 degrees west of the
    // middle and -107.5, S8, as far to the east.
    EXPECT_EQ(colours[100][50], render::OpaquePixel(0, 0, 128));
    EXPECT_EQ(colours[100][150], render::OpaquePixel(0, 0, 255));
}

TEST_F(PropagationTest, ReadsTheParameterThatIsChosen)
{
    settings.centreLat = settings.centreLon = 0;
    settings.propagation.alpha = 255;
    settings.propagation.parameter = 3;
    settings.propagation.greyScale = 1;
    ASSERT_THAT(Compute(), IsEmpty());
    // The stand-in's reliability grows from 0 in the south to 1 in the north.
    EXPECT_EQ(ComputedColours()[75][100], render::OpaquePixel(175, 175, 175));
    EXPECT_EQ(ComputedColours()[125][100], render::OpaquePixel(50, 50, 50));
}

TEST_F(PropagationTest, WritesTheInputOfTheRun)
{
    settings.propagation.transmitter.file = "/usr/local/share/voacapl/antennas/samples/sample.00";
    settings.propagation.receiver.file = "/usr/local/share/voacapl/antennas/default/isotrope";
    settings.greyzone.once = {2026, 2, 21, 17, 0, 0};
    ASSERT_THAT(Compute(), IsEmpty());
    EXPECT_EQ(home.Read(kInput), propagation::AreaInputText(settings, {settings.centreLat, settings.centreLon}, {3, 17},
                                                            {"samples \\sample.00   ", "default \\isotrope    "})
                                     .utf8_string());
}

TEST_F(PropagationTest, RunsForTheHourThatItIsInRealTime)
{
    settings.greyzone.timeMode = kRealTime;
    EXPECT_THAT(Compute(), IsEmpty()); // 13:31
    EXPECT_THAT(home.Read(kInput), testing::HasSubstr("\nMonths   :  10.00 "));
    EXPECT_THAT(home.Read(kInput), testing::HasSubstr("\nHours    :     14 "));
}

TEST_F(PropagationTest, TurnsTheEngineToVoacapOnceTheInputIsOpen)
{
    settings.propagation.engine = 0;
    Compute();
    EXPECT_EQ(made.engine, 1);
    Compute("fails");
    EXPECT_EQ(made.engine, 1);
    settings.propagation.directory = home.Path("none");
    Compute();
    EXPECT_EQ(made.engine, 0);
}

TEST_F(PropagationTest, PassesDirectoriesWithBlanksAndForeignLetters)
{
    for (const char* name : {"two words", "blåbær 地図", "-s", "a'b\"c"})
    {
        MakeDataDirectory(wxString::FromUTF8(name));
        EXPECT_THAT(Compute(), IsEmpty()) << name;
        EXPECT_TRUE(made.overlay);
    }
}

TEST_F(PropagationTest, GivesTheRunAnEmptyInput)
{
    EXPECT_THAT(Compute("reads input"), IsEmpty());
    EXPECT_TRUE(made.overlay);
}

TEST_F(PropagationTest, ReportsARunThatFailsOnce)
{
    for (const char* behaviour : {"fails", "dies"})
    {
        EXPECT_THAT(Compute(behaviour), ElementsAre("Error calling VOACAP")) << behaviour;
        EXPECT_FALSE(made.overlay);
    }
}

TEST_F(PropagationTest, ReportsAMissingProgramOnce)
{
    const EnvironmentVariable nowhere("PATH", home.Path("voacap"));
    EXPECT_THAT(Compute(), ElementsAre("Error calling VOACAP"));
    EXPECT_FALSE(made.overlay);
}

TEST_F(PropagationTest, NeverTakesAnOldResultForANewOne)
{
    for (const char* behaviour : {"no result", "empty result"})
    {
        home.Write(kResult, SdbwResult(18, [](int, int) { return -50; }));
        EXPECT_THAT(Compute(behaviour), ElementsAre("File open error in Prop")) << behaviour;
        EXPECT_FALSE(made.overlay);
    }
}

TEST_F(PropagationTest, DoesNotRunOverAResultThatCantBeRemoved)
{
    home.Write(wxString(kResult) + "/file", "");
    EXPECT_THAT(Compute(), ElementsAre("Error calling VOACAP"));
    EXPECT_EQ(Runs(), 0);
}

TEST_F(PropagationTest, DrawsWhatThereIsOfAShortResult)
{
    settings.centreLat = settings.centreLon = 0;
    settings.propagation.alpha = 255;
    EXPECT_THAT(Compute("truncated"), IsEmpty());
    EXPECT_TRUE(made.overlay);
    EXPECT_EQ(ComputedColours()[60][100], render::OpaquePixel(255, 0, 0)); // 0 dBW
}

TEST_F(PropagationTest, ReportsAnInputThatCantBeWritten)
{
    home.Write("file", "");
    std::filesystem::create_symlink("/dev/full", home.Path(kInput).utf8_string());
    for (const wxString& directory : {wxString(), home.Path("none"), home.Path("file"), home.Path("voacap")})
    {
        settings.propagation.directory = directory;
        EXPECT_THAT(Compute(), ElementsAre("File open error in Prop", "Error calling VOACAP")) << directory;
        EXPECT_FALSE(made.overlay);
    }
    EXPECT_EQ(Runs(), 0);
}

TEST_F(PropagationTest, ReportsADirectoryThatMayNotBeWritten)
{
    std::filesystem::permissions(home.Path("").utf8_string(), std::filesystem::perms(0755));
    std::filesystem::permissions(home.Path("voacap/areadata/default").utf8_string(), std::filesystem::perms(0555));
    const OrdinaryUser user;
    EXPECT_THAT(Compute(), ElementsAre("File open error in Prop", "Error calling VOACAP"));
}

TEST_F(PropagationTest, RefusesAntennasWithLongNamesBeforeAnythingIsWritten)
{
    home.Write(kInput, "old");
    settings.propagation.engine = 0;
    settings.propagation.receiver.file = "a/b/c/d/e/default/1234567890.antenna";
    EXPECT_THAT(Compute(), ElementsAre("File name max 12 characters", "Error calling VOACAP"));
    settings.propagation.transmitter.file = "home/user/itshfbc/antennas/samples/sample.00";
    EXPECT_THAT(Compute(), ElementsAre("Directory name max 8 characters", "Error calling VOACAP"));
    EXPECT_FALSE(made.overlay);
    EXPECT_EQ(home.Read(kInput), "old");
    EXPECT_EQ(made.engine, 0);
    EXPECT_THAT(steps, IsEmpty());
}

TEST_F(PropagationTest, ReadsAnotherRunsResultWithoutRunningAnything)
{
    const EnvironmentVariable nowhere("PATH", home.Path("voacap"));
    settings.propagation.useExternalResult = true;
    settings.propagation.externalResult = KAV_TEST_DATA "/area_36x36.vg1";
    settings.propagation.transmitter.file = "home/user/itshfbc/antennas/samples/sample.00";
    settings.propagation.engine = 0;
    EXPECT_THAT(Compute(), IsEmpty());
    EXPECT_TRUE(made.overlay);
    EXPECT_THAT(steps, ElementsAre("Reading file...", "Calling Regrid...", "Creating prop img..."));
    EXPECT_FALSE(Exists(kInput));
    EXPECT_EQ(made.engine, 0);
}

TEST_F(PropagationTest, ReportsAnotherRunsResultThatCantBeOpened)
{
    settings.propagation.useExternalResult = true;
    for (const wxString& file : {wxString(), home.Path("none.vg1"), home.Path("voacap")})
    {
        settings.propagation.externalResult = file;
        EXPECT_THAT(Compute(), ElementsAre("File open error in Prop")) << file;
        EXPECT_FALSE(made.overlay);
    }
}

TEST_F(PropagationTest, IsSilentAboutAResultWithTooFewPoints)
{
    settings.propagation.useExternalResult = true;
    for (const std::string& text : {std::string(), ResultHeader(" 17"), ResultHeader("xyz")})
    {
        settings.propagation.externalResult = home.Write("small.vg1", text);
        EXPECT_THAT(Compute(), IsEmpty());
        EXPECT_FALSE(made.overlay);
    }
}

TEST_F(PropagationTest, DrawsTheLegendOnRequest)
{
    settings.size = 400;
    Compute();
    const Colours without = ComputedColours();
    settings.propagation.legend = 1;
    Compute();
    EXPECT_FALSE(SamePicture(ComputedColours(), without));
    settings.propagation.legend = 2;
    Compute();
    EXPECT_TRUE(SamePicture(ComputedColours(), without));
}

TEST_F(PropagationTest, TakesTheLowEightBitsOfTheOpacity)
{
    settings.propagation.alpha = 300;
    Compute();
    std::vector<render::Argb> row(static_cast<std::size_t>(made.overlay->Side()));
    made.overlay->Row(1, row);
    EXPECT_EQ(row[1] >> 24, 44u);
}

TEST_F(PropagationTest, BelongsToTheMapNotToTheSettings)
{
    Compute();
    const std::string input = home.Read(kInput);
    settings.size = 333;
    settings.zoom = 100;
    settings.centreLat = -12;
    settings.centreLon = 95;
    made = Propagation::Compute(settings, view, now, *this);
    EXPECT_EQ(made.overlay->Side(), 200);
    EXPECT_EQ(home.Read(kInput), input);
}

TEST_F(PropagationTest, NeverWaitsForAPipeInPlaceOfTheInput)
{
    std::filesystem::remove(home.Path(kInput).utf8_string());
    ASSERT_EQ(mkfifo(home.Path(kInput).fn_str(), 0600), 0);
    EXPECT_THAT(Compute(), ElementsAre("File open error in Prop", "Error calling VOACAP"));
}

TEST_F(PropagationTest, IsSilentAboutARunThatIsEnded)
{
    keepWaiting = [] { return false; };
    EXPECT_THAT(Compute("hangs"), IsEmpty());
    EXPECT_FALSE(made.overlay);
}
} // namespace

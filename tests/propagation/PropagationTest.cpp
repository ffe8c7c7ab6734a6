#include "propagation/Propagation.h"

#include "propagation/AreaInput.h"
#include "render/MapPicture.h"
#include "tests/propagation/Results.h"
#include "tests/support/Pictures.h"
#include "tests/support/ScarceMemory.h"
#include "tests/support/TemporaryHome.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fcntl.h>
#include <filesystem>
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

class PropagationTest : public testing::Test
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

    /// Draws an overlay and returns the errors that were reported.
    std::vector<std::string> Draw(const wxString& behaviour = "")
    {
        const EnvironmentVariable how("KAV_STAND_IN", behaviour);
        steps.clear();
        std::vector<std::string> errors;
        view = render::MakeMapView(settings, 1);
        const Propagation propagation(picture, view, settings,
                                      {[this](const wxString& step) { steps.push_back(step.utf8_string()); },
                                       [&errors](const wxString& error) { errors.push_back(error.utf8_string()); }},
                                      keepWaiting);
        return errors;
    }

    /// Puts an overlay into the picture that a failure has to leave alone.
    wxBitmap* ShowPreviousOverlay()
    {
        picture.propagationBitmap = std::make_unique<wxBitmap>(5, 5, 32);
        picture.showPropagation = true;
        return picture.propagationBitmap.get();
    }

    void ExpectPreviousOverlayHidden(const wxBitmap* previous) const
    {
        EXPECT_EQ(picture.propagationBitmap.get(), previous);
        EXPECT_FALSE(picture.showPropagation);
    }

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
    MapPicture picture;
    MapView view;
    std::vector<std::string> steps;
    propagation::KeepWaiting keepWaiting;
};

const char kInput[] = "voacap/areadata/default/kavdex.voa";
const char kResult[] = "voacap/areadata/default/kavdex.vg1";

TEST_F(PropagationTest, ShowsTheOverlayOfARun)
{
    EXPECT_THAT(Draw(), IsEmpty());
    EXPECT_EQ(Runs(), 1);
    EXPECT_TRUE(picture.showPropagation);
    ASSERT_TRUE(picture.propagationBitmap);
    EXPECT_EQ(picture.propagationBitmap->GetSize(), wxSize(200, 200));
    EXPECT_THAT(steps,
                ElementsAre("Calling VoaArea...", "Reading file...", "Calling Regrid...", "Creating prop img..."));
    EXPECT_FALSE(Propagation::IsBusy());
}

TEST_F(PropagationTest, ColoursTheResultOfTheRun)
{
    settings.centreLat = settings.centreLon = 0;
    settings.propagation.alpha = 255;
    ASSERT_THAT(Draw(), IsEmpty());
    const Colours colours = ColoursOf(*picture.propagationBitmap);
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
    ASSERT_THAT(Draw(), IsEmpty());
    // The stand-in's reliability grows from 0 in the south to 1 in the north.
    EXPECT_EQ(ColoursOf(*picture.propagationBitmap)[75][100], render::OpaquePixel(175, 175, 175));
    EXPECT_EQ(ColoursOf(*picture.propagationBitmap)[125][100], render::OpaquePixel(50, 50, 50));
}

TEST_F(PropagationTest, WritesTheInputOfTheRun)
{
    settings.propagation.transmitter.file = "/usr/local/share/voacapl/antennas/samples/sample.00";
    settings.propagation.receiver.file = "/usr/local/share/voacapl/antennas/default/isotrope";
    settings.greyzone.once = {2026, 2, 21, 17, 0, 0};
    ASSERT_THAT(Draw(), IsEmpty());
    EXPECT_EQ(home.Read(kInput), propagation::AreaInputText(settings, {settings.centreLat, settings.centreLon}, {3, 17},
                                                            {"samples \\sample.00   ", "default \\isotrope    "})
                                     .utf8_string());
}

TEST_F(PropagationTest, RunsForTheHourByTheClockInRealTime)
{
    settings.greyzone.timeMode = kRealTime;
    const Clock before = SetClock([] { return std::time_t{1792589460}; }); // 2026-10-21 13:31 UTC
    EXPECT_THAT(Draw(), IsEmpty());
    SetClock(before);
    EXPECT_THAT(home.Read(kInput), testing::HasSubstr("\nMonths   :  10.00 "));
    EXPECT_THAT(home.Read(kInput), testing::HasSubstr("\nHours    :     14 "));
}

TEST_F(PropagationTest, TurnsTheEngineToVoacapOnceTheInputIsOpen)
{
    settings.propagation.engine = 0;
    Draw();
    EXPECT_EQ(settings.propagation.engine, 1);
    settings.propagation.engine = 0;
    settings.propagation.directory = home.Path("none");
    Draw();
    EXPECT_EQ(settings.propagation.engine, 0);
}

TEST_F(PropagationTest, PassesDirectoriesWithBlanksAndForeignLetters)
{
    for (const char* name : {"two words", "blåbær 地図", "-s", "a'b\"c"})
    {
        MakeDataDirectory(wxString::FromUTF8(name));
        EXPECT_THAT(Draw(), IsEmpty()) << name;
        EXPECT_TRUE(picture.showPropagation);
    }
}

TEST_F(PropagationTest, GivesTheRunAnEmptyInput)
{
    EXPECT_THAT(Draw("reads input"), IsEmpty());
    EXPECT_TRUE(picture.showPropagation);
}

TEST_F(PropagationTest, ReplacesThePreviousOverlay)
{
    Draw();
    const wxBitmap* const first = picture.propagationBitmap.get();
    Draw();
    EXPECT_NE(picture.propagationBitmap.get(), first);
    EXPECT_EQ(Runs(), 2);
}

TEST_F(PropagationTest, ReportsARunThatFailsOnce)
{
    for (const char* behaviour : {"fails", "dies"})
    {
        const wxBitmap* const previous = ShowPreviousOverlay();
        EXPECT_THAT(Draw(behaviour), ElementsAre("Error calling VOACAP")) << behaviour;
        ExpectPreviousOverlayHidden(previous);
    }
}

TEST_F(PropagationTest, ReportsAMissingProgramOnce)
{
    const EnvironmentVariable nowhere("PATH", home.Path("voacap"));
    const wxBitmap* const previous = ShowPreviousOverlay();
    EXPECT_THAT(Draw(), ElementsAre("Error calling VOACAP"));
    ExpectPreviousOverlayHidden(previous);
}

TEST_F(PropagationTest, NeverTakesAnOldResultForANewOne)
{
    for (const char* behaviour : {"no result", "empty result"})
    {
        home.Write(kResult, SdbwResult(18, [](int, int) { return -50; }));
        const wxBitmap* const previous = ShowPreviousOverlay();
        EXPECT_THAT(Draw(behaviour), ElementsAre("File open error in Prop")) << behaviour;
        ExpectPreviousOverlayHidden(previous);
    }
}

TEST_F(PropagationTest, DoesNotRunOverAResultThatCantBeRemoved)
{
    home.Write(wxString(kResult) + "/file", "");
    EXPECT_THAT(Draw(), ElementsAre("Error calling VOACAP"));
    EXPECT_EQ(Runs(), 0);
}

TEST_F(PropagationTest, DrawsWhatThereIsOfAShortResult)
{
    settings.centreLat = settings.centreLon = 0;
    settings.propagation.alpha = 255;
    EXPECT_THAT(Draw("truncated"), IsEmpty());
    EXPECT_TRUE(picture.showPropagation);
    EXPECT_EQ(ColoursOf(*picture.propagationBitmap)[60][100], render::OpaquePixel(255, 0, 0)); // 0 dBW
}

TEST_F(PropagationTest, ReportsAnInputThatCantBeWritten)
{
    home.Write("file", "");
    std::filesystem::create_symlink("/dev/full", home.Path(kInput).utf8_string());
    for (const wxString& directory : {wxString(), home.Path("none"), home.Path("file"), home.Path("voacap")})
    {
        settings.propagation.directory = directory;
        const wxBitmap* const previous = ShowPreviousOverlay();
        EXPECT_THAT(Draw(), ElementsAre("File open error in Prop", "Error calling VOACAP")) << directory;
        ExpectPreviousOverlayHidden(previous);
    }
    EXPECT_EQ(Runs(), 0);
}

TEST_F(PropagationTest, ReportsADirectoryThatMayNotBeWritten)
{
    std::filesystem::permissions(home.Path("").utf8_string(), std::filesystem::perms(0755));
    std::filesystem::permissions(home.Path("voacap/areadata/default").utf8_string(), std::filesystem::perms(0555));
    const OrdinaryUser user;
    EXPECT_THAT(Draw(), ElementsAre("File open error in Prop", "Error calling VOACAP"));
}

TEST_F(PropagationTest, RefusesAntennasWithLongNamesBeforeAnythingIsWritten)
{
    home.Write(kInput, "old");
    settings.propagation.engine = 0;
    settings.propagation.receiver.file = "a/b/c/d/e/default/1234567890.antenna";
    const wxBitmap* const previous = ShowPreviousOverlay();
    EXPECT_THAT(Draw(), ElementsAre("File name max 12 characters", "Error calling VOACAP"));
    settings.propagation.transmitter.file = "home/user/itshfbc/antennas/samples/sample.00";
    EXPECT_THAT(Draw(), ElementsAre("Directory name max 8 characters", "Error calling VOACAP"));
    ExpectPreviousOverlayHidden(previous);
    EXPECT_EQ(home.Read(kInput), "old");
    EXPECT_EQ(settings.propagation.engine, 0);
    EXPECT_THAT(steps, IsEmpty());
}

TEST_F(PropagationTest, ReadsAnotherRunsResultWithoutRunningAnything)
{
    const EnvironmentVariable nowhere("PATH", home.Path("voacap"));
    settings.propagation.useExternalResult = true;
    settings.propagation.externalResult = KAV_TEST_DATA "/area_36x36.vg1";
    settings.propagation.transmitter.file = "home/user/itshfbc/antennas/samples/sample.00";
    settings.propagation.engine = 0;
    EXPECT_THAT(Draw(), IsEmpty());
    EXPECT_TRUE(picture.showPropagation);
    EXPECT_THAT(steps, ElementsAre("Reading file...", "Calling Regrid...", "Creating prop img..."));
    EXPECT_FALSE(Exists(kInput));
    EXPECT_EQ(settings.propagation.engine, 0);
}

TEST_F(PropagationTest, ReportsAnotherRunsResultThatCantBeOpened)
{
    settings.propagation.useExternalResult = true;
    for (const wxString& file : {wxString(), home.Path("none.vg1"), home.Path("voacap")})
    {
        settings.propagation.externalResult = file;
        const wxBitmap* const previous = ShowPreviousOverlay();
        EXPECT_THAT(Draw(), ElementsAre("File open error in Prop")) << file;
        ExpectPreviousOverlayHidden(previous);
    }
}

TEST_F(PropagationTest, ReportsThatThereIsNoMemoryForTheOverlay)
{
    settings.propagation.useExternalResult = true;
    settings.propagation.externalResult = KAV_TEST_DATA "/area_36x36.vg1";
    settings.size = 6000;
    const wxBitmap* const previous = ShowPreviousOverlay();
    const ScarceMemory memory;
    EXPECT_THAT(Draw(), ElementsAre("Error creating bitmap original function Prop"));
    ExpectPreviousOverlayHidden(previous);
}

TEST_F(PropagationTest, IsSilentAboutAResultWithTooFewPoints)
{
    settings.propagation.useExternalResult = true;
    for (const std::string& text : {std::string(), ResultHeader(" 17"), ResultHeader("xyz")})
    {
        settings.propagation.externalResult = home.Write("small.vg1", text);
        const wxBitmap* const previous = ShowPreviousOverlay();
        EXPECT_THAT(Draw(), IsEmpty());
        ExpectPreviousOverlayHidden(previous);
    }
}

TEST_F(PropagationTest, DrawsTheLegendOnRequest)
{
    settings.size = 400;
    Draw();
    const Colours without = ColoursOf(*picture.propagationBitmap);
    settings.propagation.legend = 1;
    Draw();
    EXPECT_FALSE(SamePicture(ColoursOf(*picture.propagationBitmap), without));
    settings.propagation.legend = 2;
    Draw();
    EXPECT_TRUE(SamePicture(ColoursOf(*picture.propagationBitmap), without));
}

TEST_F(PropagationTest, TakesTheLowEightBitsOfTheOpacity)
{
    settings.propagation.alpha = 300;
    Draw();
    const render::BitmapPixels pixels(*picture.propagationBitmap);
    EXPECT_EQ(pixels.Row(1)[1] >> 24, 44u);
}

TEST_F(PropagationTest, BelongsToTheMapNotToTheSettings)
{
    Draw();
    const std::string input = home.Read(kInput);
    settings.size = 333;
    settings.zoom = 100;
    settings.centreLat = -12;
    settings.centreLon = 95;
    const Propagation again(picture, view, settings, {[](const wxString&) {}, [](const wxString&) {}});
    EXPECT_EQ(picture.propagationBitmap->GetSize(), wxSize(200, 200));
    EXPECT_EQ(home.Read(kInput), input);
}

TEST_F(PropagationTest, NeverWaitsForAPipeInPlaceOfTheInput)
{
    std::filesystem::remove(home.Path(kInput).utf8_string());
    ASSERT_EQ(mkfifo(home.Path(kInput).fn_str(), 0600), 0);
    EXPECT_THAT(Draw(), ElementsAre("File open error in Prop", "Error calling VOACAP"));
}

TEST_F(PropagationTest, IsNotStartedASecondTimeWhileItRuns)
{
    int busy = 0;
    keepWaiting = [&](std::chrono::milliseconds)
    {
        busy += Propagation::IsBusy();
        const Propagation second(picture, view, settings,
                                 {[](const wxString&) { ADD_FAILURE(); }, [](const wxString&) { ADD_FAILURE(); }});
        if (busy >= 4)
            home.Write("voacap/go on", "");
        return true;
    };
    EXPECT_THAT(Draw("waits"), IsEmpty());
    EXPECT_TRUE(Exists("voacap/go on"));
    EXPECT_EQ(Runs(), 1);
    EXPECT_TRUE(picture.showPropagation);
}

TEST_F(PropagationTest, HidesThePreviousOverlayOfARunThatIsEnded)
{
    keepWaiting = [](std::chrono::milliseconds) { return false; };
    const wxBitmap* const previous = ShowPreviousOverlay();
    EXPECT_THAT(Draw("hangs"), IsEmpty());
    ExpectPreviousOverlayHidden(previous);
    EXPECT_FALSE(Propagation::IsBusy());
}
} // namespace

// What surrounds the working settings file: the system-wide file, other time zones, the toolkit's state.

#include "config/Configuration.h"
#include "config/QuietToolkit.h"
#include "config/SettingsFile.h"

#include "tests/support/RecordedLog.h"
#include "tests/support/TemporaryHome.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <wx/app.h>
#include <wx/apptrait.h>
#include <wx/stdpaths.h>

#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace
{
using testing::HasSubstr;
using testing::Not;

/// An application takes the place of the one before, and leaves it empty.
struct ApplicationBefore
{
    ~ApplicationBefore() { wxApp::SetInstance(application); }

    wxAppConsole* application = wxApp::GetInstance();
};

/// An application whose system-wide configuration directory is one of the test's own, for as long as it lives.
class OwnSystemDirectory : private ApplicationBefore, public wxAppConsole
{
public:
    explicit OwnSystemDirectory(const wxString& directory) : m_directory(directory) {}

    wxAppTraits* CreateTraits() override { return new Traits(m_directory); }

private:
    class Paths : public wxStandardPaths
    {
    public:
        explicit Paths(const wxString& directory) : m_directory(directory) {}
        wxString GetConfigDir() const override { return m_directory; }

    private:
        wxString m_directory;
    };

    class Traits : public wxConsoleAppTraits
    {
    public:
        explicit Traits(const wxString& directory) : m_paths(directory) {}
        wxStandardPaths& GetStandardPaths() override { return m_paths; }

    private:
        Paths m_paths;
    };

    wxString m_directory;
};

TEST(WorkingFile, TakesFromTheSystemWideFileWhatTheUsersOwnLeavesOpen)
{
    const TemporaryHome home;
    const std::string systemWide = "Size=444\nZoom=3333\n[Compass]\nShow=0\n";
    home.Write("etc/Kavdex.conf", systemWide);
    home.Write(".Kavdex", "Zoom=7777\n");
    const OwnSystemDirectory system(home.Path("etc"));
    {
        Configuration settings("Kavdex");
        EXPECT_EQ(settings.size, 444);
        EXPECT_EQ(settings.zoom, 7777);
        EXPECT_FALSE(settings.compass.show);
        EXPECT_EQ(settings.meridians.alpha, 50);
    }
    // What the system-wide file says is not copied, so that a change there is still seen.
    EXPECT_THAT(home.Read(".Kavdex"), Not(HasSubstr("Size=")));
    EXPECT_EQ(home.Read("etc/Kavdex.conf"), systemWide);
    {
        Configuration settings("Kavdex");
        settings.size = 555;
        settings.WriteAll();
    }
    EXPECT_EQ(Configuration("Kavdex").size, 555);
    EXPECT_EQ(home.Read("etc/Kavdex.conf"), systemWide);
}

TEST(WorkingFile, IsNeitherReadNorCompletedForNamedFiles)
{
    const TemporaryHome home;
    home.Write("etc/Kavdex.conf", "Size=444\n");
    const OwnSystemDirectory system(home.Path("etc"));
    EXPECT_FALSE(OpenSettingsFile("none.ini")->HasEntry("Size"));
    Configuration settings("Kavdex");
    settings.ReadAllFrom(*OpenSettingsFile("none.ini"));
    EXPECT_EQ(settings.size, 900);
}

TEST(WorkingFile, HasTheDefaultsAgainWhenItIsReadAgainAfterwards)
{
    const TemporaryHome home;
    Configuration settings("Kavdex");
    settings.Write("Size", 321);
    settings.DeleteEntry("Zoom");
    settings.zoom = 1;
    settings.ReadAll();
    EXPECT_EQ(settings.size, 321);
    EXPECT_EQ(settings.zoom, 20000);
    EXPECT_EQ(settings.ReadLong("Zoom", 0), 20000);
}

TEST(WorkingFile, OfAnotherNameIsAnotherFile)
{
    const TemporaryHome home;
    home.Write(".Another", "Size=222\n");
    EXPECT_EQ(Configuration("Another").size, 222);
    EXPECT_EQ(Configuration("Kavdex").size, 900);
}

TEST(WorkingFile, BringsBackEveryDamagedKindOfValue)
{
    const TemporaryHome home;
    home.Write(".Kavdex", "Size=9e2\nZoom=\n[Center\\ pos]\nLat=-inf\nLon=twelve\n[Radials]\nEvery=3.5\nShow=2x\n");
    {
        const Configuration settings("Kavdex");
        EXPECT_EQ(settings.size, 900);
        EXPECT_EQ(settings.zoom, 20000);
        EXPECT_EQ(settings.centreLat, 55.6875);
        EXPECT_EQ(settings.centreLon, 12.625);
        EXPECT_EQ(settings.radials.every, 3);
        EXPECT_TRUE(settings.radials.show);
    }
    for (const char* line : {"Size=900\n", "Zoom=20000\n", "Lat=55.6875\n", "Lon=12.625\n", "Every=3\n"})
        EXPECT_THAT(home.Read(".Kavdex"), HasSubstr(line));
}

TEST(WorkingFile, LeavesTheSourceOfALoadExpandingVariablesAsItDidBefore)
{
    const TemporaryHome home;
    home.Write("named.ini", "[Text]\nFile1=$HOME/a.dat\n");
    Configuration settings("Kavdex");
    EXPECT_TRUE(settings.IsExpandingEnvVars());
    wxFileConfig source("", "", home.Path("named.ini"), "", wxCONFIG_USE_LOCAL_FILE);
    for (const bool expanding : {true, false})
    {
        source.SetExpandEnvVars(expanding);
        settings.ReadAllFrom(source);
        EXPECT_EQ(settings.texts[0].file, "$HOME/a.dat");
        EXPECT_EQ(source.IsExpandingEnvVars(), expanding);
    }
}

TEST(QuietToolkit, GivesTheAssertHandlerBack)
{
    const auto handler = [](const wxString&, int, const wxString&, const wxString&, const wxString&) {};
    const wxAssertHandler_t mine = handler;
    const wxAssertHandler_t before = wxSetAssertHandler(mine);
    {
        const QuietToolkit quiet;
        EXPECT_EQ(wxSetAssertHandler(static_cast<wxAssertHandler_t>(nullptr)), nullptr);
        EXPECT_FALSE(wxLog::IsEnabled());
    }
    EXPECT_TRUE(wxLog::IsEnabled());
    EXPECT_EQ(wxSetAssertHandler(before), mine);
}

/// The value of an environment variable for as long as this lives.
class Environment
{
public:
    Environment(const wxString& name, const wxString& value) : m_name(name), m_had(wxGetEnv(name, &m_before))
    {
        wxSetEnv(name, value);
    }
    ~Environment() { m_had ? wxSetEnv(m_name, m_before) : wxUnsetEnv(m_name); }
    Environment(const Environment&) = delete;
    Environment& operator=(const Environment&) = delete;

private:
    wxString m_name;
    wxString m_before;
    bool m_had;
};

TEST(WorkingFile, HasUtcAsOnceTimeInEveryTimeZone)
{
    const TemporaryHome home;
    const Clock before = SetClock([] { return std::time_t{1793446245}; });
    for (const char* zone : {"XYZ-14", "XYZ+12", "XYZ+5:30"})
    {
        const Environment environment("TZ", zone);
        tzset();
        home.Write(".Kavdex", "");
        EXPECT_EQ(Configuration("Kavdex").greyzone.once, (UtcTime{2026, 9, 31, 11, 30, 0})) << zone;
        EXPECT_THAT(home.Read(".Kavdex"), HasSubstr("CalYr=2026\nCalMo=9\nCalDa=31\nCalHo=11\nCalMi=30\n")) << zone;
    }
    tzset();
    SetClock(before);
}

TEST(WorkingFile, IsNeverWaitedForInAPipe)
{
    const TemporaryHome home;
    ASSERT_EQ(mkfifo(home.WorkingFile().fn_str(), 0600), 0);
    const RecordedLog log;
    {
        Configuration settings("Kavdex");
        EXPECT_EQ(settings.size, 900);
        settings.WriteAll();
    }
    EXPECT_TRUE(log.Text().Contains("can't keep settings in '" + home.WorkingFile() + "': it is a pipe or a device"));
    struct stat status
    {
    };
    EXPECT_EQ(stat(home.WorkingFile().fn_str(), &status), 0);
    EXPECT_TRUE(S_ISFIFO(status.st_mode));
}

/// Whether a log holds one error and no more. The time comes before it.
testing::AssertionResult SaysOnly(const RecordedLog& log, const wxString& error)
{
    const bool isIt = log.Text().EndsWith("Error: " + error + "\n") && log.Text().Freq('\n') == 1;
    return (isIt ? testing::AssertionSuccess() : testing::AssertionFailure()) << log.Text().utf8_string();
}

TEST(WorkingFile, IsKeptWhereALinkLeads)
{
    const TemporaryHome home;
    ASSERT_EQ(symlink("elsewhere.ini", home.WorkingFile().fn_str()), 0);
    {
        Configuration("Kavdex").Write("Unknown", "new there"); // is not there yet
    }
    EXPECT_THAT(home.Read("elsewhere.ini"), HasSubstr("Unknown=new there\n"));
    home.Write("elsewhere.ini", "Size=321\n");
    {
        Configuration settings("Kavdex");
        EXPECT_EQ(settings.size, 321);
        settings.size = 654;
        settings.WriteAll();
    }
    EXPECT_THAT(home.Read("elsewhere.ini"), HasSubstr("Size=654\n"));
    EXPECT_TRUE(std::filesystem::is_symlink(home.WorkingFile().utf8_string()));
}

TEST(WorkingFile, LeavesALoopOfLinksAndALinkToADeviceAlone)
{
    const TemporaryHome home;
    for (const auto& [target, reason] :
         {std::pair{".Kavdex", "Too many levels of symbolic links"}, {"/dev/full", "it is a pipe or a device"}})
    {
        ASSERT_EQ(symlink(target, home.WorkingFile().fn_str()), 0);
        const RecordedLog log;
        {
            Configuration settings("Kavdex");
            EXPECT_EQ(settings.size, 900);
            settings.WriteAll();
        }
        EXPECT_TRUE(SaysOnly(log, "can't keep settings in '" + home.WorkingFile() + "': " + reason));
        EXPECT_EQ(std::filesystem::read_symlink(home.WorkingFile().utf8_string()), target);
        ASSERT_EQ(unlink(home.WorkingFile().fn_str()), 0);
    }
}

TEST(WorkingFile, IsMissedOnceAndNowhereElseWhereThereIsNoHome)
{
    const TemporaryHome home;
    home.Write("file", "");
    for (const auto& [directory, reason] :
         {std::pair{home.Path("none"), home.Path("none/.Kavdex") + "': No such file or directory"},
          {home.Path("file"), home.Path("file/.Kavdex") + "': Not a directory"},
          {wxString(), wxString("~/.Kavdex': there is no home directory")}})
    {
        const Environment environment("HOME", directory);
        const RecordedLog log;
        {
            Configuration settings("Kavdex");
            EXPECT_EQ(settings.size, 900);
        }
        EXPECT_TRUE(SaysOnly(log, "can't keep settings in '" + reason));
    }
    EXPECT_FALSE(std::filesystem::exists("/.Kavdex"));
    EXPECT_FALSE(std::filesystem::exists(home.WorkingFile().utf8_string()));
}

TEST(WorkingFile, IsThereFromTheFirstStartOn)
{
    const TemporaryHome home;
    const Configuration settings("Kavdex");
    EXPECT_THAT(home.Read(".Kavdex"), HasSubstr("Size=900\n"));
}

TEST(ConfigFile, LosesAKeyThatIsRemovedOnTheDiskToo)
{
    const TemporaryHome home;
    const wxString path = home.Write("some.ini", "Kept=1\nRemoved=2\n");
    WholeFileConfig("", path, 0).DeleteEntry("Removed");
    EXPECT_EQ(home.Read("some.ini"), "Kept=1\n");
}
} // namespace

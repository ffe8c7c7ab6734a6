#include "tests/support/OptionsFixture.h"
#include "tests/support/RecordedLog.h"

#include <wx/log.h>

#include <csignal>
#include <filesystem>
#include <sys/resource.h>
#include <sys/stat.h>

namespace
{
/// No file can grow beyond a few bytes while this lives.
class FullDisk
{
public:
    FullDisk()
    {
        getrlimit(RLIMIT_FSIZE, &m_before);
        m_signal = std::signal(SIGXFSZ, SIG_IGN);
        const rlimit full{16, m_before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &full);
    }
    ~FullDisk()
    {
        setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_signal);
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

private:
    rlimit m_before{};
    void (*m_signal)(int) = nullptr;
};

/// Loading and saving named settings files.
class OptionsFiles : public OptionsFixture
{
protected:
    static void SetClockToLeapDay()
    {
        SetClock([]() -> std::time_t { return 1709210096; }); // 2024-02-29 12:34:56 UTC
    }
};

TEST_F(OptionsFiles, OffersTheIniFilesAndStartsWhereAFileWasLastSaved)
{
    settings.lastIniDirectory = home.Path("");
    Load("");
    Save("");
    EXPECT_EQ(dialogs.fileDialogs[0], "Choose a configuration file");
    EXPECT_EQ(dialogs.fileDialogs[3], "INI files (*.ini)|*.ini");
    EXPECT_EQ(dialogs.fileDialogs[4], "Save a configuration file");
    EXPECT_EQ(dialogs.fileDialogs[5], home.Path(""));
    EXPECT_EQ(dialogs.fileDialogs[6], "");
    EXPECT_EQ(dialogs.fileDialogs[7], "INI files (*.ini)|*.ini");
}

TEST_F(OptionsFiles, ThatAreNotChosenChangeNothing)
{
    dialog->m_settingsPage.meridians.alpha->SetValue(7);
    Save("");
    Load("");
    EXPECT_EQ(settings.meridians.alpha, 50);
    EXPECT_EQ(dialog->m_settingsPage.meridians.alpha->GetValue(), 7);
    EXPECT_EQ(settings.lastIniDirectory, "");
}

TEST_F(OptionsFiles, LoadedReplaceEverySettingAndControlAndStayAsTheyAre)
{
    const Clock before = SetClock(nullptr);
    SetClockToLeapDay();
    const std::string bytes = "[Center\\ pos]\nLat=10\n";
    const wxString path = home.Write("sub/mine.ini", bytes);
    settings.size = 321;
    dialog->m_settingsPage.meridians.alpha->SetValue(7);
    const std::string working = home.Read(".Kavdex");
    Load(path);
    EXPECT_EQ(settings.centreLat, 10.0);
    EXPECT_EQ(settings.size, 900);
    EXPECT_EQ(settings.meridians.alpha, 50);
    EXPECT_EQ(settings.greyzone.once, (UtcTime{2024, 1, 29, 12, 34, 0}));
    EXPECT_EQ(dialog->m_homePage.latitude.decimal->GetValue(), "10");
    EXPECT_EQ(dialog->m_homePage.latitude.deg->GetValue(), "10");
    EXPECT_EQ(dialog->m_settingsPage.size->GetValue(), "900");
    EXPECT_EQ(dialog->m_settingsPage.meridians.alpha->GetValue(), 50);
    EXPECT_EQ(dialog->m_timePage.hour->GetSelection(), 12);
    EXPECT_EQ(dialog->m_timePage.date->GetDate().GetMonth(), wxDateTime::Feb);
    EXPECT_EQ(home.Read("sub/mine.ini"), bytes);
    EXPECT_EQ(home.Read(".Kavdex"), working);
    SetClock(before);
}

TEST_F(OptionsFiles, LeaveTheirDirectoryAsTheRememberedOne)
{
    Load(home.Write("sub/mine.ini", "[DefaultIniDir]\nIniDir=/somewhere/else\n"));
    EXPECT_EQ(settings.lastIniDirectory, home.Path("sub"));
}

TEST_F(OptionsFiles, LoadedStayInMemoryOnCancelButNotOnDisk)
{
    dialog->Show();
    Load(home.Write("mine.ini", "Size=321\n"));
    const std::string working = home.Read(".Kavdex");
    Click(dialog->FindWindow(wxID_CANCEL));
    EXPECT_EQ(settings.size, 321);
    EXPECT_FALSE(settings.resetOverlays);
    EXPECT_EQ(home.Read(".Kavdex"), working);
}

TEST_F(OptionsFiles, LoadedAndConfirmedReachTheWorkingFileAndResetTheOverlays)
{
    Load(home.Write("mine.ini", "Size=321\n"));
    ClickOk();
    EXPECT_TRUE(settings.resetOverlays);
    EXPECT_EQ(ValueIn(home.WorkingFile(), "Size"), "321");
}

TEST_F(OptionsFiles, SavedHoldTheControlsAndKeepWhatTheProgramDoesNotKnow)
{
    const std::string working = home.Read(".Kavdex");
    const wxString path = home.Write("mine.ini", "Size=5\n[Stranger]\nGuest=keep me\n");
    Type(dialog->m_settingsPage.size, "432");
    Save(path);
    EXPECT_EQ(ValueIn(path, "Size"), "432");
    EXPECT_EQ(ValueIn(path, "Stranger/Guest"), "keep me");
    EXPECT_EQ(ValueIn(path, "Propagation/Rx1Dir"), "0.0");
    EXPECT_EQ(settings.size, 432);
    EXPECT_EQ(home.Read(".Kavdex"), working);
}

TEST_F(OptionsFiles, SavedTwiceHoldTheDirectoryOfTheSaveBefore)
{
    home.Write("one/there", "");
    home.Write("two/there", "");
    Save(home.Path("one/first.ini"));
    EXPECT_EQ(ValueIn(home.Path("one/first.ini"), "DefaultIniDir/IniDir"), "");
    Save(home.Path("two/second.ini"));
    EXPECT_EQ(ValueIn(home.Path("two/second.ini"), "DefaultIniDir/IniDir"), home.Path("one"));
    EXPECT_EQ(settings.lastIniDirectory, home.Path("two"));
    Load(home.Path("one/first.ini"));
    EXPECT_EQ(settings.lastIniDirectory, home.Path("one"));
}

TEST_F(OptionsFiles, SavedUnderTheNameAsItWasTyped)
{
    const wxString name = wxString::FromUTF8("blåbær 地図");
    Save(home.Path(name));
    EXPECT_TRUE(std::filesystem::exists(home.Path(name).utf8_string()));
    EXPECT_FALSE(std::filesystem::exists(home.Path(name + ".ini").utf8_string()));
}

TEST_F(OptionsFiles, ThatCannotBeReadGiveDefaultsInSilence)
{
    const wxString secret = home.Write("secret.ini", "Size=321\n");
    std::filesystem::permissions(secret.utf8_string(), std::filesystem::perms::none);
    home.Write("directory.ini/file", "");
    wxLogBuffer log;
    wxLog* const before = wxLog::SetActiveTarget(&log);
    settings.size = 5;
    Load(home.Path("directory.ini"));
    EXPECT_EQ(settings.size, 900);
    Load(home.Write("noise.ini", std::string("\x00\xff\xfe[[[=\n]=\x80\x01\n[Size", 18)));
    EXPECT_EQ(settings.size, 900);
    Load(secret); // the superuser may read it
    EXPECT_TRUE(settings.size == 900 || settings.size == 321);
    wxLog::SetActiveTarget(before);
    EXPECT_EQ(log.GetBuffer(), "");
    EXPECT_TRUE(dialogs.messages.empty());
    std::filesystem::permissions(secret.utf8_string(), std::filesystem::perms::owner_all);
}

TEST_F(OptionsFiles, ThatCannotBeWrittenAreReportedByTheToolkitAndStayWhole)
{
    wxLogBuffer log;
    wxLog* const before = wxLog::SetActiveTarget(&log);
    home.Write("occupied.ini/file", "whole");
    Save(home.Path("occupied.ini"));
    EXPECT_NE(log.GetBuffer(), "");
    wxLog::SetActiveTarget(before);
    EXPECT_EQ(home.Read("occupied.ini/file"), "whole");
    EXPECT_TRUE(dialogs.messages.empty());
    ClickOk();
    EXPECT_EQ(ValueIn(home.WorkingFile(), "Size"), "900");
}
TEST_F(OptionsFiles, StayWholeOnAFullDisk)
{
    const std::string whole = "Size=5\n[Stranger]\nGuest=keep me\n";
    const wxString path = home.Write("mine.ini", whole);
    wxLogBuffer log;
    wxLog* const before = wxLog::SetActiveTarget(&log);
    {
        const FullDisk full;
        Save(path);
    }
    EXPECT_NE(log.GetBuffer(), "");
    wxLog::SetActiveTarget(before);
    EXPECT_EQ(home.Read("mine.ini"), whole);
}

TEST_F(OptionsFiles, AreNeitherLoadedFromNorSavedToAPipe)
{
    const wxString pipe = home.Path("pipe.ini");
    ASSERT_EQ(mkfifo(pipe.fn_str(), 0600), 0);
    const wxLogNull silent;
    settings.size = 123;
    Load(pipe);
    Save(pipe);
    EXPECT_EQ(settings.size, 123);
    EXPECT_EQ(settings.lastIniDirectory, "");
}

TEST_F(OptionsFiles, AreNotLoadedWhenTheyAreLongerThanAMegabyte)
{
    const auto load = [this](std::size_t bytes)
    {
        const std::string wanted = "Size=321\n#";
        const RecordedLog log;
        settings.size = 123;
        Load(home.Write("long.ini", wanted + std::string(bytes - wanted.size(), 'x')));
        return std::pair(settings.size, log.Text());
    };
    EXPECT_EQ(load(1 << 20), std::pair(321L, wxString()));
    const auto [size, said] = load((1 << 20) + 1);
    EXPECT_EQ(size, 123);
    EXPECT_TRUE(said.Contains("it is longer than 1 MB")) << said;
}

TEST_F(OptionsFiles, RememberTheDirectoryOfASaveWhenTheDialogEndsWithOk)
{
    Save(home.Path("mine.ini"));
    const wxString directory = settings.lastIniDirectory;
    EXPECT_NE(directory, "");
    ClickOk();
    EXPECT_EQ(settings.lastIniDirectory, directory);
}
} // namespace

#include "config/SettingsFile.h"

#include "config/Configuration.h"
#include "tests/support/RecordedLog.h"
#include "tests/support/TemporaryHome.h"

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>
#include <wx/filefn.h>

namespace
{
TEST(SettingsFile, IsLookedUpInTheWorkingDirectory)
{
    const TemporaryHome home;
    home.Write("sub/mine.ini", "Size=321\n");
    EXPECT_EQ(OpenSettingsFile("sub/mine.ini")->ReadLong("Size", 0), 321);
    wxSetWorkingDirectory(home.Path("sub")); // not the home directory
    EXPECT_EQ(OpenSettingsFile("mine.ini")->ReadLong("Size", 0), 321);
    EXPECT_EQ(OpenSettingsFile(home.Path("sub/mine.ini"))->ReadLong("Size", 0), 321);
}

TEST(SettingsFile, GivesTextsAsTheyStand)
{
    const TemporaryHome home;
    home.Write("mine.ini", "Text=$HOME\n");
    EXPECT_EQ(OpenSettingsFile("mine.ini")->Read("Text"), "$HOME");
}

TEST(SettingsFile, IsTheOnlyFileWritten)
{
    const TemporaryHome home;
    OpenSettingsFile("mine.ini")->Write("Size", 5L);
    EXPECT_EQ(home.Read("mine.ini"), "Size=5\n");
    EXPECT_EQ(home.Read(".Kavdex"), "");
}

TEST(SettingsFile, KeepsEntriesThatTheProgramDoesNotKnow)
{
    const TemporaryHome home;
    home.Write("mine.ini", "Size=321\n[Stranger]\nGuest=keep me\n");
    Configuration settings("Kavdex");
    settings.WriteAllTo(*OpenSettingsFile("mine.ini"));
    const auto written = OpenSettingsFile("mine.ini");
    EXPECT_EQ(written->Read("Stranger/Guest"), "keep me");
    EXPECT_EQ(written->ReadLong("Size", 0), 900);
    EXPECT_EQ(written->Read("Center pos/Loc"), "JO65HQ");
}

TEST(SettingsFile, ThatCannotBeReadGivesDefaultsSilently)
{
    const TemporaryHome home;
    home.Write("noise.ini", std::string("\x00\xff\xfe[[[=\n]=\x80\x01\n[Size", 18));
    home.Write("directory.ini/file", "");
    const RecordedLog log;
    Configuration settings("Kavdex");
    for (const char* name : {"noise.ini", "directory.ini", "missing.ini"})
    {
        settings.size = 1;
        settings.ReadAllFrom(*OpenSettingsFile(name));
        EXPECT_EQ(settings.size, 900) << name;
    }
    EXPECT_EQ(log.Text(), "");
}

TEST(SettingsFile, IsNeverWaitedForInAPipe)
{
    const TemporaryHome home;
    const wxString pipe = home.Path("pipe.ini");
    ASSERT_EQ(mkfifo(pipe.fn_str(), 0600), 0);
    const RecordedLog log;
    EXPECT_FALSE(OpenSettingsFile(pipe));
    EXPECT_TRUE(log.Text().Contains("can't open the settings file '" + pipe + "': it is a pipe or a device"));
    EXPECT_TRUE(OpenSettingsFile("/dev/null"));
}

TEST(SettingsFile, IsWrittenWhereALinkLeadsAndNeverInPlaceOfADevice)
{
    const TemporaryHome home;
    ASSERT_EQ(symlink("target.ini", home.Path("link.ini").fn_str()), 0);
    OpenSettingsFile("link.ini")->Write("Size", 5L);
    EXPECT_EQ(home.Read("target.ini"), "Size=5\n");
    const RecordedLog log;
    OpenSettingsFile("/dev/null")->Write("Size", 5L);
    EXPECT_TRUE(log.Text().EndsWith("can't keep settings in '/dev/null': it is a pipe or a device\n"));
}
} // namespace

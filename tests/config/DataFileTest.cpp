#include "config/DataFile.h"

#include "tests/support/RecordedLog.h"
#include "tests/support/TemporaryHome.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <wx/filename.h>
#include <wx/stdpaths.h>

#include <sys/stat.h>

namespace
{
using testing::AllOf;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

TEST(DataFile, IsTakenAsItStandsFirst)
{
    const TemporaryHome home;
    home.Write("README.md", "mine");
    EXPECT_EQ(FindDataFile("README.md"), "README.md");
}

TEST(DataFile, IsLookedUpAmongTheShippedFilesNext)
{
    const TemporaryHome home;
    const wxString found = FindDataFile("README.md");
    EXPECT_TRUE(wxFileName(found).IsAbsolute()) << found;
    EXPECT_TRUE(wxFileName::FileExists(found)) << found;
}

TEST(DataFile, ThatIsNowhereKeepsItsName)
{
    const TemporaryHome home;
    EXPECT_EQ(FindDataFile("no such file.pnt"), "no such file.pnt");
    EXPECT_EQ(FindDataFile("/no/such/file.pnt"), "/no/such/file.pnt");
    EXPECT_EQ(FindDataFile(""), "");
}

TEST(DataFile, WithAnAbsoluteNameIsNotLookedUpAmongTheShippedFiles)
{
    const TemporaryHome home;
    ASSERT_NE(FindDataFile("README.md"), "README.md");
    EXPECT_EQ(FindDataFile("/README.md"), "/README.md");
}

TEST(DataFile, IsLookedUpBesideTheProgramsDirectory)
{
    const TemporaryHome home;
    wxFileName program(wxStandardPaths::Get().GetExecutablePath());
    const wxString prefix = wxFileName(program.GetPath()).GetPath();
    EXPECT_EQ(FindDataFile("README.md"), prefix + "/share/kavmap/README.md");
}

/// Whether a file can be opened, and what the log says about it.
std::string Opening(const wxString& name)
{
    const RecordedLog log;
    wxFile file;
    const bool open = OpenDataFile(file, name);
    EXPECT_EQ(open, file.IsOpened());
    return (open ? "open: " : "closed: ") + log.Text().utf8_string();
}

TEST(DataFile, OpensFilesAndNothingElse)
{
    const TemporaryHome home;
    home.Write("mine.pnt", "bytes");
    EXPECT_EQ(Opening("mine.pnt"), "open: ");
    EXPECT_EQ(Opening(home.Path("mine.pnt")), "open: ");
    EXPECT_EQ(Opening("README.md"), "open: "); // a shipped one

    ASSERT_EQ(mkfifo(home.Path("pipe").fn_str(), 0600), 0);
    EXPECT_THAT(Opening("pipe"), HasSubstr("can't open file 'pipe': it is a pipe or a device"));
    EXPECT_THAT(Opening("pipe"), StartsWith("closed: "));
    EXPECT_THAT(Opening("/dev/null"), HasSubstr("can't open file '/dev/null': it is a pipe or a device"));
    EXPECT_THAT(Opening("/dev/null"), StartsWith("closed: "));
    EXPECT_THAT(Opening("missing.pnt"),
                AllOf(StartsWith("closed: "), HasSubstr("missing.pnt"), Not(HasSubstr("it is a pipe or a device"))));
    home.Write("directory/file", "");
    EXPECT_THAT(Opening("directory"), Not(HasSubstr("it is a pipe or a device")));
}
} // namespace

#include "config/DataFile.h"

#include "tests/support/TemporaryHome.h"

#include <gtest/gtest.h>

#include <wx/filename.h>

namespace
{
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
} // namespace

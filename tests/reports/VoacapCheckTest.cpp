#include "reports/VoacapCheck.h"

#include "tests/support/TemporaryHome.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <wx/filename.h>
#include <wx/utils.h>

#include <filesystem>

#include <sys/wait.h>
#include <unistd.h>

namespace
{
using testing::ElementsAre;
using testing::IsEmpty;
using testing::StartsWith;

class VoacapCheckTest : public testing::Test
{
protected:
    VoacapCheckTest()
    {
        wxGetEnv("PATH", &m_pathBefore);
        wxSetEnv("PATH", home.Path("bin"));
        home.Write("bin/voacapl", "#!/bin/sh\n");
        std::filesystem::permissions("bin/voacapl", std::filesystem::perms::owner_all);
        for (const char* const part : {"antennas", "areadata/default", "coeffs", "database"})
            std::filesystem::create_directories(std::string("data/") + part);
        settings.propagation.show = true;
        settings.propagation.directory = "data";
    }
    ~VoacapCheckTest() override { wxSetEnv("PATH", m_pathBefore); }

    std::vector<std::string> Lines()
    {
        std::vector<std::string> lines;
        for (const reports::Finding& finding : reports::CheckPropagation(settings))
            lines.push_back((finding.key + ": " + finding.text).utf8_string());
        return lines;
    }

    const TemporaryHome home;
    Settings settings = DefaultSettings();

private:
    wxString m_pathBefore;
};

TEST_F(VoacapCheckTest, FindsNothingWhereAllIsThere)
{
    EXPECT_THAT(Lines(), IsEmpty());
}

TEST_F(VoacapCheckTest, LooksAtNothingThatIsNotShown)
{
    settings.propagation.show = false;
    settings.propagation.directory = "gone";
    EXPECT_THAT(Lines(), IsEmpty());
}

TEST_F(VoacapCheckTest, MissesVoacapl)
{
    std::filesystem::permissions("bin/voacapl", std::filesystem::perms::owner_read);
    EXPECT_THAT(Lines(), ElementsAre("Propagation/Show: voacapl can't be run: " +
                                     home.Path("bin/voacapl").utf8_string() + " is not executable"));
    std::filesystem::remove("bin/voacapl");
    EXPECT_THAT(Lines(), ElementsAre(StartsWith("Propagation/Show: voacapl is not found on the search path")));
}

TEST_F(VoacapCheckTest, MissesTheDirectoryAndItsParts)
{
    for (const char* const part : {"antennas", "coeffs", "database"})
    {
        std::filesystem::remove(std::string("data/") + part);
        EXPECT_THAT(Lines(), ElementsAre(StartsWith(std::string("Propagation/Dir: data: it lacks ") + part)));
        std::filesystem::create_directories(std::string("data/") + part);
    }
    std::filesystem::remove("data/areadata/default");
    EXPECT_THAT(Lines(), ElementsAre(StartsWith("Propagation/Dir: data: it lacks areadata/default")));
    settings.propagation.directory = "gone";
    EXPECT_THAT(Lines(), ElementsAre(StartsWith("Propagation/Dir: gone: there is no such directory")));
    settings.propagation.directory = "";
    EXPECT_THAT(Lines(), ElementsAre(StartsWith("Propagation/Dir: no data directory is named")));
}

/// What somebody does who may not write everywhere.
template <class Act>
bool AsOrdinaryUser(Act act)
{
    const pid_t child = fork();
    if (child == 0)
        _exit((geteuid() != 0 || setuid(65534) == 0) && act() ? 0 : 1);
    int status = -1;
    waitpid(child, &status, 0);
    return status == 0;
}

TEST_F(VoacapCheckTest, WantsToWrite)
{
    using std::filesystem::perms;
    const perms readable = perms::all & ~(perms::owner_write | perms::group_write | perms::others_write);
    std::filesystem::permissions(home.Path("").utf8_string(), perms::all);
    std::filesystem::permissions("bin/voacapl", perms::all);
    const std::vector<std::string> expected{"Propagation/Dir: data/areadata/default: it is not yours to write to"};
    std::filesystem::permissions("data/areadata/default", perms::all);
    EXPECT_TRUE(AsOrdinaryUser([this] { return Lines().empty(); }));
    std::filesystem::permissions("data/areadata/default", readable);
    EXPECT_TRUE(AsOrdinaryUser([&] { return Lines() == expected; }));
    std::filesystem::permissions("data/areadata/default", perms::all);
    home.Write("data/areadata/default/kavdex.voa", "");
    std::filesystem::permissions("data/areadata/default/kavdex.voa", readable);
    EXPECT_TRUE(AsOrdinaryUser([&] { return Lines() == expected; }));
}

TEST_F(VoacapCheckTest, TellsWhatVoacaplReadsOtherwise)
{
    settings.propagation.sunspotNumber = 120;
    EXPECT_THAT(Lines(), ElementsAre("Propagation/SSN: the last digit is lost: 120 counts as 12 (fits: 0 to 99)"));
}

TEST_F(VoacapCheckTest, WantsNumbersForThresholds)
{
    settings.propagation.scales[0].values[9] = "S9+";
    settings.propagation.scales[3].values[0] = "";
    EXPECT_THAT(Lines(),
                ElementsAre("Propagation/S10Value: 'S9+' is no number", "Propagation/REL01Value: '' is no number"));
}

TEST_F(VoacapCheckTest, LooksAtAResultInPlaceOfVoacapl)
{
    settings.propagation.directory = "gone";
    settings.propagation.useExternalResult = true;
    settings.propagation.externalResult = KAV_TEST_DATA "/area_36x36.vg1";
    EXPECT_THAT(Lines(), IsEmpty());
    settings.propagation.externalResult = "gone.vg1";
    EXPECT_THAT(Lines(), ElementsAre("Propagation/ExtVg1File: gone.vg1: it can't be read"));
}
} // namespace

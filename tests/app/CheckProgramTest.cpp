#include "tests/support/ProgramFixture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

#include <sys/stat.h>

namespace
{
using testing::HasSubstr;

class CheckProgramTest : public ProgramTest
{
protected:
    /// Without a display: it needs none.
    static int Check(const std::string& arguments)
    {
        return Run("--check " + arguments, "-u DISPLAY -u WAYLAND_DISPLAY");
    }

    static constexpr char kClean[] = "Size=100\n[Compass]\nFont=Sans 12\n";
};

TEST_F(CheckProgramTest, SaysNothingOfWhatWorks)
{
    home.Write("clean.ini", kClean);
    EXPECT_EQ(Check("-s clean.ini"), 0);
    EXPECT_EQ(Out() + Err(), "");
    for (const char* const sample : {"contest", "everything", "polar", "poster"})
        EXPECT_EQ(Check(std::string("-s " KAV_DATA_DIR "/samples/") + sample + ".ini"), 0) << sample << Out();
}

TEST_F(CheckProgramTest, SaysFileKeyAndTrouble)
{
    home.Write("a.ini", std::string(kClean) + "nonsense\nAlhpa=3\n[Meridians]\nColour=16777215\nAlpha=999\n"
                                              "[Borders]\nShow2=1\nFile2=gone.pnt\n");
    EXPECT_EQ(Check("-s a.ini"), 2);
    EXPECT_EQ(Out(), "a.ini:line 4: neither a group nor a key, it is ignored\n"
                     "a.ini:Compass/Alhpa: no such key, it is ignored: is it Compass/Alpha?\n"
                     "a.ini:Meridians/Alpha: 999 is out of range, 0 to 255: the nearest counts\n"
                     "a.ini:Meridians/Colour: pure white counts as nothing drawn: take 16711679, which is (255, 255, "
                     "254)\n"
                     "a.ini:Borders/File2: gone.pnt: No such file or directory\n");
    EXPECT_EQ(Err(), "");
    EXPECT_EQ(CountFilesLike("*"), 3U); // and what was printed
}

TEST_F(CheckProgramTest, KeepsEachFindingToItsLine)
{
    home.Write("a.ini", std::string(kClean) + "[Borders]\nShow1=1\nFile1=a\\nb\n");
    EXPECT_EQ(Check("-s a.ini"), 2);
    EXPECT_EQ(Out(), "a.ini:Borders/File1: a b: No such file or directory\n");
}

TEST_F(CheckProgramTest, ChecksTheWorkingFileAndLeavesItAlone)
{
    home.Write(".Kavdex", std::string(kClean) + "Colour=x\n");
    EXPECT_EQ(Check(""), 2);
    EXPECT_EQ(Out(), home.WorkingFile().utf8_string() +
                         ":Compass/Colour: 'x' is not a whole number: the default, 0, is used\n");
    EXPECT_EQ(home.Read(".Kavdex"), std::string(kClean) + "Colour=x\n");
    std::filesystem::remove(".Kavdex");
    EXPECT_NE(Check(""), 1);
    EXPECT_EQ(home.Read(".Kavdex"), "");
}

TEST_F(CheckProgramTest, RefusesWhatIsNoSettingsFile)
{
    home.Write("empty", "");
    home.Write("binary", std::string("Size=100\n\0\x89PNG", 14));
    home.Write("huge", "");
    std::filesystem::resize_file("huge", std::uintmax_t{1} << 30);
    ASSERT_EQ(mkfifo("pipe", 0600), 0);
    for (const auto& [name, why] : {std::pair{"empty", "it is empty"},
                                    {"binary", "it is no text"},
                                    {"huge", "it is longer than 1 MB"},
                                    {"pipe", "it is a pipe or a device"},
                                    {".", "it is a directory"},
                                    {"gone", "No such file or directory"}})
    {
        EXPECT_EQ(Check(std::string("-s ") + name), 1) << name;
        EXPECT_EQ(Out(), "") << name;
        EXPECT_THAT(Err(), HasSubstr(std::string(name) + ": " + why)) << name;
    }
    home.Write(".Kavdex", std::string(1, '\0'));
    EXPECT_EQ(Check(""), 1);
}

TEST_F(CheckProgramTest, SaysThatNobodyCanReadIt)
{
    home.Write("a.ini", "Size=1\n");
    EXPECT_EQ(Shell("timeout 100 $KAVMAP --check -s a.ini >/dev/full 2>err.txt"), 1);
    EXPECT_EQ(Err(), "kavmap: can't write the findings\n");
}

TEST_F(CheckProgramTest, GoesAlone)
{
    for (const char* const other : {"-r a.png", "--bearings -", "-r a.png --bearings -"})
    {
        EXPECT_EQ(Check(other), 1) << other;
        EXPECT_EQ(Err(), "kavmap: --render, --aim, --check and --bearings exclude each other\n") << other;
    }
}
} // namespace

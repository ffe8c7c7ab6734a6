#include "tests/support/ProgramFixture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <wx/filename.h>

#include <sys/stat.h>

namespace
{
using testing::HasSubstr;
using testing::StartsWith;

TEST_F(ProgramTest, PrintsItsOptionsWithoutADisplay)
{
    EXPECT_EQ(Run("--help", "-u DISPLAY"), 0);
    for (const char* option : {"--help", "--version", "--settings", "--render", "--time"})
        EXPECT_THAT(Out(), HasSubstr(option));
    EXPECT_EQ(Err(), "");
}

TEST_F(ProgramTest, PrintsItsVersionWithoutADisplay)
{
    EXPECT_EQ(Run("--version", "-u DISPLAY"), 0);
    EXPECT_THAT(Out(), StartsWith("Kavmap 3.1.9\nwxWidgets 3.2"));
}

TEST_F(ProgramTest, SaysWhatIsMissingForTheWindowWithoutADisplay)
{
    EXPECT_EQ(Run("", "-u DISPLAY -u WAYLAND_DISPLAY"), 1);
    EXPECT_EQ(Err(), "kavmap: no display for the window: set DISPLAY. Pictures need none: kavmap --render PICTURE\n");
}

TEST_F(ProgramTest, RefusesWrongUse)
{
    for (const char* arguments : {"--nonsense", "--render", "--time yesterday --render a.png", "stray.png",
                                  "--settings nowhere.ini --render a.png", "--settings . --render a.png"})
    {
        EXPECT_EQ(Run(arguments), 1) << arguments;
        EXPECT_THAT(Err(), StartsWith("kavmap: ")) << arguments;
    }
}

TEST_F(ProgramTest, DrawsTheDefaultMapInEveryFormat)
{
    home.Write("small.ini", "Size=150\n");
    for (const char* name : {"a.png", "a.jpg", "a.bmp", "a.pcx", "a.pnm", "a.tif", "B.PNG"})
    {
        EXPECT_EQ(Run(std::string("--settings small.ini --render ") + name), 0) << name;
        EXPECT_EQ(Picture(name).GetSize(), wxSize(150, 150)) << name;
        EXPECT_EQ(Err(), "") << name;
    }
}

TEST_F(ProgramTest, RefusesOtherEndingsBeforeDrawing)
{
    for (const char* name : {"a.jpeg", "a.gif", "a", "png"})
    {
        EXPECT_EQ(Run(std::string("-r ") + name), 1) << name;
        EXPECT_EQ(Err(), std::string("kavmap: Couldn't save ") + name + "\n");
        EXPECT_FALSE(wxFileName::Exists(home.Path(name)));
    }
}

TEST_F(ProgramTest, CompletesTheWorkingFileAndUsesItsValues)
{
    home.Write(".Kavdex", "Size=123\n");
    EXPECT_EQ(Run("-r a.png"), 0);
    EXPECT_EQ(Picture("a.png").GetWidth(), 123);
    EXPECT_THAT(home.Read(".Kavdex"), HasSubstr("Zoom=20000"));
}

TEST_F(ProgramTest, LeavesTheWorkingFileAloneWithSettingsOfItsOwn)
{
    home.Write(".Kavdex", "Size=123\nZoom=777\n");
    home.Write("own.ini", "Size=140\n");
    EXPECT_EQ(Run("-s own.ini -r a.png"), 0);
    EXPECT_EQ(Picture("a.png").GetWidth(), 140);
    EXPECT_EQ(home.Read(".Kavdex"), "Size=123\nZoom=777\n");
    EXPECT_EQ(home.Read("own.ini"), "Size=140\n");
}

TEST_F(ProgramTest, WritesNothingWhenTheCreationStops)
{
    home.Write("map.png", "precious");
    home.Write("big.ini", "Size=8001\n");
    EXPECT_EQ(Run("-s big.ini -r map.png"), 1);
    EXPECT_EQ(Err(), "kavmap: Size must be between 100 and 8000 pixels.\nIt might fail with large pixel values.\n");
    home.Write("source.ini", "Size=120\n[SourceBitmap]\nShow1=1\nFile1=gone.png\n");
    EXPECT_EQ(Run("-s source.ini -r map.png"), 1);
    EXPECT_EQ(Err(), "kavmap: Error creating bitmap in function OnCreateMap1\n");
    EXPECT_EQ(home.Read("map.png"), "precious");
}

TEST_F(ProgramTest, ReplacesAPictureWholeAndLeavesNothingBeside)
{
    home.Write("map.png", "old");
    home.Write("small.ini", "Size=120\n");
    EXPECT_EQ(Run("-s small.ini -r map.png"), 0);
    EXPECT_TRUE(Picture("map.png").IsOk());
    EXPECT_EQ(CountFilesLike("map.png*"), 1u);
}

TEST_F(ProgramTest, SaysWhenThePictureCannotBeWritten)
{
    home.Write("small.ini", "Size=120\n");
    EXPECT_EQ(Run("-s small.ini -r nowhere/map.png"), 1);
    EXPECT_EQ(Err(), "kavmap: Couldn't write the picture nowhere/map.png: No such file or directory\n");
    wxFileName::Mkdir(home.Path("dir.png"));
    EXPECT_EQ(Run("-s small.ini -r dir.png"), 1);
    EXPECT_EQ(Err(), "kavmap: Couldn't write the picture dir.png: it is a directory\n");
}

TEST_F(ProgramTest, SaysWhenTheDiscIsFull)
{
    home.Write("small.ini", "Size=120\n");
    // No file may grow beyond one block.
    const int status =
        std::system(("cd " + home.Path("").utf8_string() +
                     " && bash -c 'trap \"\" XFSZ; ulimit -f 1; timeout 60 $KAVMAP -s small.ini -r map.bmp' 2>err.txt")
                        .c_str());
    EXPECT_EQ(WEXITSTATUS(status), 1);
    EXPECT_EQ(Err(), "kavmap: Couldn't write the picture map.bmp: File too large\n");
    wxArrayString files;
    wxDir::GetAllFiles(home.Path(""), &files, "map.bmp*");
    EXPECT_EQ(files.size(), 0u);
}

TEST_F(ProgramTest, TakesFileNamesOutsideAsciiInAnyLocale)
{
    const wxString name = wxString::FromUTF8("blåbær/地図.png");
    home.Write(wxString::FromUTF8("blåbær/stilling ø.ini"), "Size=110\n");
    for (const char* locale : {"LC_ALL=C", "LC_ALL=C.UTF-8"})
    {
        wxRemoveFile(home.Path(name));
        EXPECT_EQ(Run("-s 'blåbær/stilling ø.ini' -r blåbær/地図.png", locale), 0) << locale;
        EXPECT_EQ(Picture(name).GetWidth(), 110) << locale;
    }
}

TEST_F(ProgramTest, LoadsUsersPicturesOfAnyKind)
{
    wxImage grey(37, 19);
    grey.SetRGB(wxRect(0, 0, 37, 19), 90, 90, 90);
    grey.SaveFile(home.Path("grey.png"), wxBITMAP_TYPE_PNG);
    wxImage pixel(1, 1);
    pixel.SetRGB(0, 0, 1, 2, 3);
    pixel.SaveFile(home.Path("pixel.bmp"), wxBITMAP_TYPE_BMP);
    wxImage alpha(8, 4);
    alpha.InitAlpha();
    alpha.SaveFile(home.Path("alpha.png"), wxBITMAP_TYPE_PNG);
    wxImage(8000, 4000).SaveFile(home.Path("large.jpg"), wxBITMAP_TYPE_JPEG);
    for (const char* name : {"grey.png", "pixel.bmp", "alpha.png", "large.jpg"})
    {
        home.Write("own.ini", std::string("Size=130\n[SourceBitmap]\nShow1=1\nFile1=") + name + "\n");
        EXPECT_EQ(Run("-s own.ini -r a.png"), 0) << name;
        EXPECT_EQ(Picture("a.png").GetWidth(), 130) << name;
    }
}

TEST_F(ProgramTest, WaitsForNoPipe)
{
    ASSERT_EQ(mkfifo(home.Path("pipe").utf8_str(), 0600), 0);
    for (const char* key : {"[Borders]\nShow1=1\nFile1", "[Text]\nShow1=1\nFile1", "[PlotSquares]\nShow1=1\nFile1"})
    {
        home.Write("pipe.ini", std::string("Size=100\n") + key + "=pipe\n");
        EXPECT_EQ(Run("-s pipe.ini -r a.png"), 2) << key;
        EXPECT_THAT(Err(), HasSubstr("pipe")) << key;
    }
    home.Write("pipe.ini", "Size=100\n[SourceBitmap]\nShow1=1\nFile1=pipe\n");
    EXPECT_EQ(Run("-s pipe.ini -r a.png"), 1);
    EXPECT_THAT(Err(), HasSubstr("Error creating bitmap in function OnCreateMap1"));
}

TEST_F(ProgramTest, WaitsForNoPipeInPlaceOfSettingsAResultOrThePicture)
{
    ASSERT_EQ(mkfifo(home.Path("pipe.png").utf8_str(), 0600), 0);
    for (const std::string path : {"pipe.png", "/dev/zero"})
    {
        EXPECT_EQ(Run("-s " + path + " -r a.png"), 1);
        EXPECT_EQ(Err(), "kavmap: can't read the settings file " + path + ": it is a pipe or a device\n");
    }
    home.Write("result.ini", "Size=100\n[Propagation]\nShow=1\nExtVg1=1\nExtVg1File=pipe.png\n");
    EXPECT_EQ(Run("-s result.ini -r a.png"), 2);
    EXPECT_EQ(Err(), "kavmap: File open error in Prop\n");
    home.Write("small.ini", "Size=100\n");
    EXPECT_EQ(Run("-s small.ini -r pipe.png"), 1);
    EXPECT_EQ(Err(), "kavmap: Couldn't write the picture pipe.png: it is a pipe or a device\n");
    struct stat status;
    ASSERT_EQ(stat(home.Path("pipe.png").utf8_str(), &status), 0);
    EXPECT_TRUE(S_ISFIFO(status.st_mode));
}

TEST_F(ProgramTest, NamesADirectoryInPlaceOfAFile)
{
    wxFileName::Mkdir(home.Path("folder"));
    for (const char* key : {"[Borders]\nShow2=1\nFile2", "[PlotSquares]\nShow1=1\nFile1"})
    {
        home.Write("folder.ini", std::string("Size=100\n") + key + "=folder\n");
        EXPECT_EQ(Run("-s folder.ini -r a.png"), 2) << key;
        EXPECT_EQ(Err(), "kavmap: can't open file 'folder': it is a directory\n") << key;
    }
    home.Write("folder.ini", "Size=100\n[Text]\nShow1=1\nFile1=folder\n");
    EXPECT_EQ(Run("-s folder.ini -r a.png"), 2);
    EXPECT_EQ(Err(), "kavmap: Error opening file folder\n");
    EXPECT_EQ(Run("-s folder -r a.png"), 1);
    EXPECT_EQ(Err(), "kavmap: can't read the settings file folder: it is a directory\n");
    EXPECT_EQ(Run("-s gone.ini -r a.png"), 1);
    EXPECT_EQ(Err(), "kavmap: can't read the settings file gone.ini: No such file or directory\n");
}

TEST_F(ProgramTest, EndsWithTwoWhereTheMapLacksALayer)
{
    home.Write("lacking.ini", "Size=100\n[Propagation]\nShow=1\nDir=/nonexistent\n");
    EXPECT_EQ(Run("-s lacking.ini -r a.png"), 2);
    EXPECT_EQ(Picture("a.png").GetWidth(), 100);
    EXPECT_THAT(Err(), StartsWith("kavmap: "));
}

TEST_F(ProgramTest, DrawsTheGreylineOfTheTimeThatIsGiven)
{
    home.Write("grey.ini", "Size=150\n[Greyzone]\nShow=1\nOpt=0\n");
    const auto pixels = [this](const std::string& time)
    {
        EXPECT_EQ(Run("-s grey.ini -t " + time + " -r a.pnm"), 0);
        return home.Read("a.pnm");
    };
    const std::string noon = pixels("2026-06-21T12:00");
    EXPECT_EQ(pixels("2026-06-21T12:00"), noon);
    EXPECT_NE(pixels("2026-06-21T18:00"), noon);
}

TEST_F(ProgramTest, GivesVoacaplNothingToReadWhateverItReadsItself)
{
    home.Write("bin/voacapl", "#!/bin/sh\nreadlink /proc/self/fd/0 > \"$HOME/input.txt\"\nexit 1\n");
    wxFileName(home.Path("bin/voacapl")).SetPermissions(0700);
    wxFileName::Mkdir(home.Path("data/areadata/default"), 0700, wxPATH_MKDIR_FULL);
    home.Write("own.ini", "Size=100\n[Propagation]\nShow=1\nDir=" + home.Path("data").utf8_string() + "\n");
    const std::string path = "PATH=" + home.Path("bin").utf8_string() + ":$PATH ";
    for (const char* redirections : {"</dev/zero", "<&-", "</dev/zero >&-"})
    {
        home.Write("input.txt", "");
        const std::string command = path + "timeout 100 $KAVMAP -s own.ini -r a.png " + redirections + " 2>err.txt";
        EXPECT_EQ(WEXITSTATUS(std::system(command.c_str())), 2) << redirections;
        EXPECT_EQ(home.Read("input.txt"), "/dev/null\n") << redirections;
        EXPECT_THAT(Err(), HasSubstr("Error calling VOACAP")) << redirections;
    }
}

TEST_F(ProgramTest, DrawsTheSmallestMap)
{
    home.Write("tiny.ini", "Size=100\nZoom=100\n[Compass]\nFont=Sans 99\n");
    EXPECT_EQ(Run("-s tiny.ini -r a.png"), 0);
    EXPECT_EQ(Picture("a.png").GetWidth(), 100);
}
} // namespace

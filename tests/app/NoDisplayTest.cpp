#include "tests/support/ProgramFixture.h"

namespace
{
/// Pictures where there is no display.
class NoDisplayTest : public ProgramTest
{
protected:
    static int RunWithout(const std::string& arguments) { return Run(arguments, "-u DISPLAY -u WAYLAND_DISPLAY"); }
};

TEST_F(NoDisplayTest, DrawsTheDefaultMap)
{
    EXPECT_EQ(RunWithout("--render map.png"), 0);
    EXPECT_EQ(home.Read("err.txt"), "");
    EXPECT_EQ(Picture("map.png").GetSize(), wxSize(900, 900));
}

TEST_F(NoDisplayTest, DrawsInEveryFormat)
{
    home.Write("small.ini", "Size=120\n");
    for (const char* name : {"a.png", "a.jpg", "a.bmp", "a.pcx", "a.pnm", "a.tif"})
    {
        EXPECT_EQ(RunWithout(std::string("-s small.ini -r ") + name), 0) << name;
        EXPECT_EQ(Picture(name).GetSize(), wxSize(120, 120)) << name;
    }
}

TEST_F(NoDisplayTest, SaysWhatFails)
{
    home.Write("lacking.ini", "Size=100\n[Borders]\nShow2=1\nFile2=gone.pnt\n[Text]\nShow1=1\nFile1=gone.dat\n");
    EXPECT_EQ(RunWithout("-s lacking.ini -r a.png"), 2);
    EXPECT_EQ(home.Read("err.txt"), "kavmap: can't open file 'gone.pnt' (error 2: No such file or directory)\n"
                                    "kavmap: Error opening file gone.dat\n");
    EXPECT_TRUE(Picture("a.png").IsOk());
}
} // namespace

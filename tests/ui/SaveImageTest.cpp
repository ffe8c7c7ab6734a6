#include "tests/support/FrameFixture.h"
#include "tests/support/LayerFixture.h"
#include "tests/support/Pictures.h"

#include <wx/filename.h>
#include <wx/log.h>

#include <filesystem>

namespace
{
class SaveImageTest : public FrameFixture
{
protected:
    void SetUp() override
    {
        FrameFixture::SetUp();
        ClickTool(ui::kIdCreate);
    }

    void SaveAs(const wxString& path)
    {
        dialogs.chosenPath = path;
        ClickTool(ui::kIdSave);
    }
};

TEST_F(SaveImageTest, SaysSoWhereThereIsNoMapYet)
{
    frame->Destroy();
    FrameFixture::SetUp();
    settings->size = 99;
    ClickTool(ui::kIdCreate); // a size error leaves the tool enabled
    dialogs.messages.clear();
    SaveAs(home.Path("map.png"));
    EXPECT_EQ(dialogs.Texts(), "Couldn't save " + home.Path("map.png") + "\n");
    EXPECT_FALSE(wxFileName::Exists(home.Path("map.png")));
}

TEST_F(SaveImageTest, FollowsALink)
{
    home.Write("shown.png", "an older picture");
    std::filesystem::create_symlink(home.Path("shown.png").utf8_string(), home.Path("link.png").utf8_string());
    SaveAs(home.Path("link.png"));
    EXPECT_TRUE(std::filesystem::is_symlink(home.Path("link.png").utf8_string()));
    wxImage image;
    EXPECT_TRUE(image.LoadFile(home.Path("shown.png"), wxBITMAP_TYPE_PNG));
    EXPECT_TRUE(dialogs.messages.empty());
}

TEST_F(SaveImageTest, WritesEachFormatByItsEnding)
{
    const std::map<wxString, wxBitmapType> types{{"map.png", wxBITMAP_TYPE_PNG}, {"map.jpg", wxBITMAP_TYPE_JPEG},
                                                 {"map.bmp", wxBITMAP_TYPE_BMP}, {"map.pcx", wxBITMAP_TYPE_PCX},
                                                 {"map.pnm", wxBITMAP_TYPE_PNM}, {"map.tif", wxBITMAP_TYPE_TIFF},
                                                 {"MAP.JPG", wxBITMAP_TYPE_JPEG}};
    for (const auto& [name, type] : types)
    {
        SaveAs(home.Path(name));
        wxImage image;
        EXPECT_TRUE(image.LoadFile(home.Path(name), type)) << name;
        EXPECT_EQ(image.GetSize(), wxSize(200, 200)) << name;
    }
    EXPECT_TRUE(dialogs.messages.empty());
}

TEST_F(SaveImageTest, WritesWhatTheCanvasShows)
{
    SaveAs(home.Path("map.png"));
    wxBitmap saved(home.Path("map.png"), wxBITMAP_TYPE_PNG);
    EXPECT_TRUE(SamePicture(ColoursOf(saved), ColoursOf(*frame->Picture().mapBitmap)));
}

TEST_F(SaveImageTest, RefusesOtherEndings)
{
    for (const char* name : {"map.jpeg", "map.tiff", "map.gif", "map", "png"})
    {
        dialogs.messages.clear();
        SaveAs(home.Path(name));
        ASSERT_EQ(dialogs.messages.size(), 1u);
        EXPECT_EQ(dialogs.messages[0].text, "Couldn't save " + home.Path(name));
        EXPECT_EQ(dialogs.messages[0].caption, "Error");
        EXPECT_FALSE(wxFileName::Exists(home.Path(name)));
    }
}

TEST_F(SaveImageTest, DoesNothingOnCancel)
{
    SaveAs("");
    EXPECT_TRUE(dialogs.messages.empty());
    EXPECT_EQ(dialogs.fileDialogs.size(), 4u);
}

TEST_F(SaveImageTest, OffersTheLocatorAsName)
{
    SaveAs("");
    EXPECT_EQ(dialogs.fileDialogs[0], "Save Image");
    EXPECT_EQ(dialogs.fileDialogs[1], home.Path("").BeforeLast('/'));
    EXPECT_EQ(dialogs.fileDialogs[2], "JO65HQ.jpg");
    EXPECT_TRUE(dialogs.fileDialogs[3].StartsWith("Image Files (*.bmp;"));
}

TEST_F(SaveImageTest, NamesTheParameterThatIsPlotted)
{
    settings->propagation.show = true;
    const std::map<int, wxString> names{
        {0, "JO65HQ_SDBW.jpg"}, {1, "JO65HQ_SNR.jpg"}, {2, "JO65HQ_MUF.jpg"}, {3, "JO65HQ_REL.jpg"}, {4, ""}, {-1, ""}};
    for (const auto& [parameter, name] : names)
    {
        dialogs.fileDialogs.clear();
        settings->propagation.parameter = parameter;
        SaveAs("");
        EXPECT_EQ(dialogs.fileDialogs[2], name);
    }
}

TEST_F(SaveImageTest, KeepsTheOldFileWhenTheNewOneCannotBeWritten)
{
    const wxString path = home.Write("directory/map.png", "precious");
    wxFileName::Mkdir(home.Path("target.png"));
    const wxLogNull silent;
    SaveAs(home.Path("target.png")); // a directory
    SaveAs(home.Path("missing/map.png"));
    EXPECT_TRUE(wxFileName::DirExists(home.Path("target.png")));
    EXPECT_EQ(home.Read("directory/map.png"), "precious");
}

TEST_F(SaveImageTest, SaysWhyThePictureCannotBeWritten)
{
    const wxString path = home.Path("folder.png");
    wxFileName::Mkdir(path);
    const LogLines log;
    SaveAs(path);
    ASSERT_EQ(log.lines.size(), 1u);
    EXPECT_TRUE(log.lines[0].EndsWith("Couldn't write the picture " + path + ": it is a directory")) << log.lines[0];
}
} // namespace

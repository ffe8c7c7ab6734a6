#include "tests/support/FrameFixture.h"
#include "tests/support/LayerFixture.h"
#include "tests/support/Pictures.h"
#include "tests/support/ScarceMemory.h"

#include <wx/dir.h>
#include <wx/filename.h>

#include <csignal>
#include <filesystem>
#include <sys/resource.h>

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

/// Keeps how the last file dialog was opened.
class FileDialogStyle : public wxModalDialogHook
{
public:
    FileDialogStyle() { Register(); }
    ~FileDialogStyle() override { Unregister(); }

    long style = 0;
    wxWindow* parent = nullptr;

protected:
    int Enter(wxDialog* dialog) override
    {
        style = dynamic_cast<wxFileDialog&>(*dialog).GetWindowStyle();
        parent = dialog->GetParent();
        return wxID_NONE;
    }
};

TEST_F(SaveImageTest, OffersEveryPictureAndAsksNothingBeforeOverwriting)
{
    const FileDialogStyle dialog;
    home.Write("map.png", "an older picture");
    SaveAs(home.Path("map.png"));
    EXPECT_EQ(dialog.style & (wxFD_SAVE | wxFD_OPEN | wxFD_OVERWRITE_PROMPT | wxFD_MULTIPLE | wxFD_CHANGE_DIR),
              wxFD_SAVE);
    EXPECT_EQ(dialog.parent, frame);
    EXPECT_EQ(dialogs.fileDialogs[3], "Image Files " + wxImage::GetImageExtWildcard());
    EXPECT_TRUE(dialogs.messages.empty());
    EXPECT_TRUE(wxImage().LoadFile(home.Path("map.png"), wxBITMAP_TYPE_PNG));
}

TEST_F(SaveImageTest, BeginsInTheWorkingDirectoryOfTheMoment)
{
    wxFileName::Mkdir(home.Path("elsewhere"));
    wxSetWorkingDirectory(home.Path("elsewhere"));
    SaveAs("");
    EXPECT_EQ(dialogs.fileDialogs[1], home.Path("elsewhere"));
}

TEST_F(SaveImageTest, SaysSoWhereACreationStoppedBeforeThereWasAMap)
{
    settings->size = 6000;
    {
        const ScarceMemory memory;
        EXPECT_FALSE(frame->CreateMap());
    }
    dialogs.messages.clear();
    SaveAs(home.Path("map.png"));
    EXPECT_EQ(dialogs.Texts(), "Couldn't save " + home.Path("map.png") + "\n");
    dialogs.messages.clear();
    ClickTool(1017, true); // nothing to lay a greyline over
    EXPECT_FALSE(frame->Picture().greylineBitmap);
    EXPECT_EQ(dialogs.Texts(), "");
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

/// No file grows beyond a block for as long as it lives: as on a disc that is full.
class FullDisc
{
public:
    FullDisc() : m_handlerBefore(std::signal(SIGXFSZ, SIG_IGN))
    {
        getrlimit(RLIMIT_FSIZE, &m_before);
        rlimit small = m_before;
        small.rlim_cur = 512;
        EXPECT_EQ(setrlimit(RLIMIT_FSIZE, &small), 0);
    }
    ~FullDisc()
    {
        setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_handlerBefore);
    }
    FullDisc(const FullDisc&) = delete;
    FullDisc& operator=(const FullDisc&) = delete;

private:
    rlimit m_before{};
    void (*m_handlerBefore)(int);
};

TEST_F(SaveImageTest, KeepsTheOldPictureWhenTheNewOneCannotBeWrittenInItsPlace)
{
    LogLines log;
    for (const char* const name : {"map.png", "map.bmp", "map.jpg", "map.tif"})
    {
        home.Write(name, "precious");
        {
            const FullDisc disc;
            SaveAs(home.Path(name));
        }
        EXPECT_EQ(home.Read(name), "precious") << name;
        EXPECT_TRUE(log.lines.back().EndsWith(": Couldn't write the picture " + home.Path(name) + ": File too large"))
            << log.lines.back();
    }
    wxArrayString files;
    wxDir::GetAllFiles(home.Path(""), &files, "map*");
    EXPECT_EQ(files.size(), 4u); // and nothing beside
}

TEST_F(SaveImageTest, LeavesADirectoryOfThatNameAlone)
{
    wxFileName::Mkdir(home.Path("target.png"));
    LogLines log;
    SaveAs(home.Path("target.png"));
    EXPECT_TRUE(
        log.lines.back().EndsWith("Couldn't write the picture " + home.Path("target.png") + ": it is a directory"));
    EXPECT_TRUE(wxFileName::DirExists(home.Path("target.png")));
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

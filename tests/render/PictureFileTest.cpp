#include "render/PictureFile.h"

#include "tests/support/LayerFixture.h"

#include <wx/dir.h>
#include <wx/filename.h>
#include <wx/mstream.h>

#include <csignal>
#include <cstring>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace
{
/// A picture in rows in which neighbours differ.
class MotleyRows : public render::PictureRows
{
public:
    int Side() const override { return 30; }
    void Row(int y, std::span<render::Argb> out) const override
    {
        for (unsigned x = 0; x < out.size(); ++x)
            out[x] = render::OpaquePixel(x * 6, static_cast<unsigned>(y) * 8, x * static_cast<unsigned>(y) % 256);
    }
};

class PictureFileTest : public testing::Test
{
protected:
    /// A picture in which neighbours differ.
    static wxImage Motley()
    {
        wxImage image(40, 30);
        for (int y = 0; y < 30; ++y)
            for (int x = 0; x < 40; ++x)
                image.SetRGB(x, y, static_cast<unsigned char>(x * 6), static_cast<unsigned char>(y * 8),
                             static_cast<unsigned char>(x * y));
        return image;
    }

    /// The file that a JPEG of a quality is.
    static std::string JpegOf(wxImage image, int quality)
    {
        image.SetOption("quality", quality);
        wxMemoryOutputStream stream;
        image.SaveFile(stream, wxBITMAP_TYPE_JPEG);
        std::string bytes(stream.GetSize(), '\0');
        stream.CopyTo(bytes.data(), bytes.size());
        return bytes;
    }

    mode_t PermissionsOf(const char* name) const
    {
        struct stat status
        {
        };
        EXPECT_EQ(stat(home.Path(name).fn_str(), &status), 0);
        return status.st_mode & 07777;
    }

    /// The names in the home.
    wxArrayString Files() const
    {
        wxArrayString names;
        wxDir::GetAllFiles(home.Path(""), &names, "", wxDIR_FILES | wxDIR_HIDDEN);
        for (wxString& name : names)
            name = wxFileName(name).GetFullName();
        names.Sort();
        return names;
    }

    /// Whether a line of the log is an error that says so; the time comes before it.
    static testing::AssertionResult Says(const wxString& line, const wxString& text)
    {
        return (line.EndsWith(": Error: " + text) ? testing::AssertionSuccess() : testing::AssertionFailure())
               << line.utf8_string();
    }

    const TemporaryHome home;
    LogLines log;
};

TEST_F(PictureFileTest, HasTheFormatThatItsLastFourCharactersName)
{
    const std::vector<std::pair<const char*, wxBitmapType>> types{
        {".png", wxBITMAP_TYPE_PNG}, {".jpg", wxBITMAP_TYPE_JPEG}, {".bmp", wxBITMAP_TYPE_BMP},
        {".pcx", wxBITMAP_TYPE_PCX}, {".pnm", wxBITMAP_TYPE_PNM},  {".tif", wxBITMAP_TYPE_TIFF}};
    for (const auto& [ending, type] : types)
    {
        EXPECT_EQ(render::PictureTypeOf(ending), type);
        EXPECT_EQ(render::PictureTypeOf(wxString("/some.where/map") + ending), type);
        EXPECT_EQ(render::PictureTypeOf("a" + wxString(ending).Upper()), type);
        EXPECT_EQ(render::PictureTypeOf(wxString("a") + ending + "x"), std::nullopt);
    }
    for (const char* path : {"", "png", "map", "map.jpeg", "map.tiff", "map.gif", "map.png ", ".png/map"})
        EXPECT_EQ(render::PictureTypeOf(path), std::nullopt) << path;
}

TEST_F(PictureFileTest, KeepsEveryPixel)
{
    for (const char* name : {"a.png", "a.bmp", "a.pcx", "a.pnm", "a.tif"})
    {
        ASSERT_TRUE(render::SavePicture(Motley(), home.Path(name))) << name;
        const wxImage read(home.Path(name), *render::PictureTypeOf(name)); // fails for any other format
        ASSERT_EQ(read.GetSize(), Motley().GetSize()) << name;
        EXPECT_EQ(0, std::memcmp(read.GetData(), Motley().GetData(), 3 * 40 * 30)) << name;
    }
    EXPECT_EQ(Files().size(), 5u);
    EXPECT_TRUE(log.lines.empty());
}

TEST_F(PictureFileTest, IsTheSameOfAPictureInRows)
{
    for (const char* ending : {".png", ".jpg", ".bmp", ".pcx", ".pnm", ".tif"})
    {
        ASSERT_TRUE(render::SavePicture(render::ImageOf(MotleyRows()), home.Path("whole") + ending));
        ASSERT_TRUE(render::SavePicture(MotleyRows(), home.Path("rows") + ending));
        EXPECT_TRUE(home.Read("rows" + wxString(ending)) == home.Read("whole" + wxString(ending))) << ending;
        EXPECT_GT(home.Read("rows" + wxString(ending)).size(), 100u);
    }
}

TEST_F(PictureFileTest, IsAJpegOfQuality90)
{
    ASSERT_TRUE(render::SavePicture(Motley(), home.Path("a.JPG")));
    EXPECT_EQ(home.Read("a.JPG"), JpegOf(Motley(), 90));
    EXPECT_NE(JpegOf(Motley(), 90), JpegOf(Motley(), 91));
}

TEST_F(PictureFileTest, HasThePermissionsOfAnyNewFile)
{
    for (const mode_t mask : {0022, 0077, 0002})
    {
        const mode_t before = umask(mask);
        render::SavePicture(Motley(), home.Path("new.png"));
        EXPECT_EQ(umask(before), mask); // left as it was
        EXPECT_EQ(PermissionsOf("new.png"), 0666 & ~mask);
        ASSERT_EQ(unlink(home.Path("new.png").fn_str()), 0);
    }
}

TEST_F(PictureFileTest, KeepsThePermissionsOfTheFileItReplaces)
{
    home.Write("old.png", "old");
    for (const mode_t mode : {0640, 0777, 0604})
    {
        chmod(home.Path("old.png").fn_str(), mode);
        EXPECT_TRUE(render::SavePicture(Motley(), home.Path("old.png")));
        EXPECT_EQ(PermissionsOf("old.png"), mode);
    }
    EXPECT_TRUE(wxImage(home.Path("old.png")).IsOk());
    EXPECT_EQ(Files().size(), 1u);
}

TEST_F(PictureFileTest, IsWrittenWhereALinkLeads)
{
    home.Write("target.png", "old");
    ASSERT_EQ(symlink("target.png", home.Path("link.png").fn_str()), 0);
    EXPECT_TRUE(render::SavePicture(Motley(), home.Path("link.png")));
    EXPECT_TRUE(wxFileName::Exists(home.Path("link.png"), wxFILE_EXISTS_SYMLINK | wxFILE_EXISTS_NO_FOLLOW));
    EXPECT_TRUE(wxImage(home.Path("target.png")).IsOk());
    // The format is that of the name, not of what it leads to.
    home.Write("target.png", "old");
    ASSERT_EQ(symlink("target.png", home.Path("link.bmp").fn_str()), 0);
    EXPECT_TRUE(render::SavePicture(Motley(), home.Path("link.bmp")));
    EXPECT_EQ(home.Read("target.png").substr(0, 2), "BM");
    // Also where nothing is yet.
    ASSERT_EQ(unlink(home.Path("target.png").fn_str()), 0);
    EXPECT_TRUE(render::SavePicture(Motley(), home.Path("link.bmp")));
    EXPECT_EQ(home.Read("target.png").substr(0, 2), "BM");
}

TEST_F(PictureFileTest, MayHaveANameInAnyScript)
{
    const wxString path = home.Path(wxString::FromUTF8("bl\xC3\xA5\x62\xC3\xA6r \xE5\x9C\xB0\xE5\x9B\xB3.png"));
    EXPECT_TRUE(render::SavePicture(Motley(), path));
    EXPECT_TRUE(wxFileExists(path));
}

TEST_F(PictureFileTest, IsReportedWhereItCannotBeBegun)
{
    const wxString path = home.Path("no such directory/a.png");
    EXPECT_FALSE(render::SavePicture(Motley(), path));
    ASSERT_EQ(log.lines.size(), 1u);
    EXPECT_TRUE(Says(log.lines[0], "Couldn't write the picture " + path + ": No such file or directory"));
}

TEST_F(PictureFileTest, IsReportedWhereThereIsNoPictureForLackOfMemory)
{
    home.Write("a.png", "old");
    EXPECT_FALSE(render::SavePicture(wxImage(), home.Path("a.png")));
    ASSERT_EQ(log.lines.size(), 1u);
    EXPECT_TRUE(Says(log.lines[0], "Not enough memory to write the picture " + home.Path("a.png")));
    EXPECT_EQ(home.Read("a.png"), "old");
}

TEST_F(PictureFileTest, LeavesADirectoryInItsPlaceAlone)
{
    wxFileName::Mkdir(home.Path("a.png"));
    EXPECT_FALSE(render::SavePicture(Motley(), home.Path("a.png")));
    ASSERT_FALSE(log.lines.empty());
    EXPECT_TRUE(Says(log.lines.back(), "Couldn't write the picture " + home.Path("a.png") + ": it is a directory"));
    EXPECT_TRUE(wxDirExists(home.Path("a.png")));
    EXPECT_TRUE(Files().empty()) << Files()[0];
}

/// No file can grow longer than so many bytes while one of these lives, as on a full disk.
class FullDisk
{
public:
    explicit FullDisk(rlim_t bytes)
    {
        std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &m_before);
        rlimit limit = m_before;
        limit.rlim_cur = bytes;
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FullDisk()
    {
        setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, SIG_DFL);
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

private:
    rlimit m_before{};
};

TEST_F(PictureFileTest, LeavesTheOlderOneAloneWhenItCannotBeFinished)
{
    for (const char* name : {"a.png", "a.jpg", "a.bmp", "a.pcx", "a.pnm", "a.tif"})
    {
        home.Write(name, "old");
        for (const rlim_t room : {0, 60})
            for (const bool inRows : {false, true})
            {
                log.lines.clear();
                {
                    const FullDisk disk(room);
                    EXPECT_FALSE(inRows ? render::SavePicture(MotleyRows(), home.Path(name))
                                        : render::SavePicture(Motley(), home.Path(name)))
                        << name << ", " << room;
                }
                ASSERT_FALSE(log.lines.empty()) << name;
                EXPECT_TRUE(
                    Says(log.lines.back(), "Couldn't write the picture " + home.Path(name) + ": File too large"));
                EXPECT_EQ(home.Read(name), "old");
            }
    }
    EXPECT_EQ(Files().size(), 6u);
}
} // namespace

#include "render/DecodeApart.h"

#include "tests/support/TemporaryHome.h"

#include <gtest/gtest.h>

#include <wx/log.h>

#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

namespace
{
using namespace std::string_literals;

wxImage Motley()
{
    wxImage image(50, 20);
    for (int i = 0; i < 3 * 50 * 20; ++i)
        image.GetData()[i] = static_cast<unsigned char>(i * 7);
    return image;
}

bool SamePixels(const wxImage& one, const wxImage& other)
{
    return one.IsOk() && one.GetSize() == other.GetSize() &&
           std::memcmp(one.GetData(), other.GetData(),
                       3 * static_cast<std::size_t>(one.GetWidth()) * static_cast<std::size_t>(one.GetHeight())) == 0;
}

/// A number of four bytes, the highest first.
std::string Number(unsigned number)
{
    std::string bytes;
    for (int shift = 24; shift >= 0; shift -= 8)
        bytes += static_cast<char>(number >> shift);
    return bytes;
}

/// An IFF picture of 10 x 10 pixels in so many planes, with a body that ends too early.
std::string IffOf(char planes)
{
    const std::string header = "\0\x0A\0\x0A\0\0\0\0"s + planes + "\0\0\0\0\0\1\1\0\x0A\0\x0A"s;
    const std::string chunks =
        "ILBMBMHD" + Number(20) + header + "CMAP" + Number(6) + "\1\2\3\4\5\6" + "BODY" + Number(4) + "abcd";
    return "FORM" + Number(static_cast<unsigned>(chunks.size())) + chunks;
}

class DecodeApart : public testing::Test
{
protected:
    static void SetUpTestSuite()
    {
        if (!wxImage::FindHandler(wxBITMAP_TYPE_IFF))
            wxInitAllImageHandlers();
    }

    const TemporaryHome home;
};

TEST_F(DecodeApart, GivesThePicture)
{
    EXPECT_TRUE(SamePixels(render::DecodeApart(Motley), Motley()));
}

TEST_F(DecodeApart, LoadsFiles)
{
    for (const char* name : {"a.png", "a.bmp", "a.pnm", "a.tif", "a.pcx"})
    {
        ASSERT_TRUE(Motley().SaveFile(home.Path(name)));
        EXPECT_TRUE(SamePixels(render::LoadImageApart(name), Motley())) << name;
    }
}

TEST_F(DecodeApart, HasNoneWhereThereIsNoFileAndWhereItIsNoPicture)
{
    home.Write("text.png", "no picture");
    for (const char* name : {"", "none.png", "text.png", "/dev/zero", "."})
        EXPECT_FALSE(render::LoadImageApart(name).IsOk()) << name;
}

TEST_F(DecodeApart, OutlivesADecoderThatDies)
{
    EXPECT_FALSE(render::DecodeApart([]() -> wxImage { std::abort(); }).IsOk());
    EXPECT_FALSE(render::DecodeApart([]() -> wxImage { throw 1; }).IsOk());
    EXPECT_FALSE(render::DecodeApart([]() -> wxImage { std::exit(0); }).IsOk()); // without a picture
}

TEST_F(DecodeApart, EndsADecoderThatHangs)
{
    const auto hang = []() -> wxImage
    {
        for (volatile bool hangs = true; hangs;)
            continue;
        return {};
    };
    EXPECT_FALSE(render::DecodeApart(hang, {.seconds = 1}).IsOk());
}

TEST_F(DecodeApart, RefusesMemoryBeyondTheLimit)
{
    const auto takeMuch = []
    {
        std::vector<char> much(std::size_t{400} << 20, 'x');
        return much.back() == 'x' ? Motley() : wxImage();
    };
    EXPECT_TRUE(render::DecodeApart(takeMuch, {.bytes = std::size_t{800} << 20}).IsOk());
    EXPECT_FALSE(render::DecodeApart(takeMuch, {.bytes = std::size_t{300} << 20}).IsOk());
}

TEST_F(DecodeApart, OutlivesHostilePictures)
{
    for (const char* kind : {"P2", "P3", "P5", "P6"})
    {
        home.Write("a.pnm", kind + "\n2 2\n0\n0 0 0 0 0 0 0 0 0 0 0 0\n"s); // no shades at all
        EXPECT_FALSE(render::LoadImageApart("a.pnm").IsOk()) << kind;
    }
    home.Write("a.iff", IffOf(0));
    EXPECT_FALSE(render::LoadImageApart("a.iff").IsOk());
    home.Write("a.iff", IffOf(8));
    render::LoadImageApart("a.iff"); // with what is there, or not at all
}

TEST_F(DecodeApart, RefusesPicturesThatSayTheyAreHuge)
{
    for (const char* size : {"65535 65535", "26000 26000", "16000 16000", "1000000 1000"})
        for (const char* kind : {"P3", "P6"})
        {
            home.Write("a.pnm", kind + "\n"s + size + "\n255\n1 2 3 4");
            EXPECT_FALSE(render::LoadImageApart("a.pnm").IsOk()) << kind << " " << size;
        }
}
} // namespace

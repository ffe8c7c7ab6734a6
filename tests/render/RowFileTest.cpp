#include "render/RowFile.h"

#include "render/Images.h"
#include "tests/render/RandomRows.h"

#include <gtest/gtest.h>

#include <wx/image.h>
#include <wx/mstream.h>

#include <random>

namespace
{
std::string BytesOf(const wxMemoryOutputStream& stream)
{
    std::string bytes(stream.GetSize(), '\0');
    stream.CopyTo(bytes.data(), bytes.size());
    return bytes;
}

constexpr wxBitmapType kRowFormats[] = {wxBITMAP_TYPE_BMP, wxBITMAP_TYPE_PNM};

TEST(RowFile, IsByteForByteTheToolkitsFile)
{
    if (!wxImage::FindHandler(wxBITMAP_TYPE_BMP))
        wxInitAllImageHandlers();
    for (const wxBitmapType type : kRowFormats)
        for (const int side : {1, 2, 3, 4, 5, 15, 16, 17, 31, 33, 100, 101, 102, 103})
        {
            wxMemoryOutputStream expected;
            wxMemoryOutputStream written;
            ASSERT_TRUE(render::ImageOf(RandomRows(side)).SaveFile(expected, type));
            ASSERT_TRUE(render::WriteRows(written, RandomRows(side), type));
            EXPECT_TRUE(BytesOf(written) == BytesOf(expected)) << type << ", " << side;
        }
}

TEST(RowFile, IsNotThereForFormatsThatAreMoreThanTheirPixels)
{
    for (const wxBitmapType type : kRowFormats)
        EXPECT_TRUE(render::HasRowFormat(type));
    for (const wxBitmapType type : {wxBITMAP_TYPE_PNG, wxBITMAP_TYPE_JPEG, wxBITMAP_TYPE_PCX, wxBITMAP_TYPE_TIFF})
        EXPECT_FALSE(render::HasRowFormat(type));
}

/// Takes so many bytes.
class ShortStream : public wxOutputStream
{
public:
    explicit ShortStream(std::size_t room) : m_room(room) {}
    int calls = 0;

protected:
    std::size_t OnSysWrite(const void*, std::size_t count) override
    {
        ++calls;
        const std::size_t taken = std::min(count, m_room);
        m_room -= taken;
        m_lasterror = taken == count ? wxSTREAM_NO_ERROR : wxSTREAM_WRITE_ERROR;
        return taken;
    }

private:
    std::size_t m_room;
};

TEST(RowFile, EndsWithTheFirstWriteThatFails)
{
    for (const wxBitmapType type : kRowFormats)
        for (const std::size_t room : {0U, 10U, 100U, 3 * 100 * 20U, 3 * 100 * 100U})
        {
            ShortStream stream(room);
            EXPECT_FALSE(render::WriteRows(stream, RandomRows(100), type));
            const int calls = stream.calls;
            ShortStream endless(1 << 20);
            EXPECT_TRUE(render::WriteRows(endless, RandomRows(100), type));
            EXPECT_LE(calls, endless.calls);
            EXPECT_EQ(calls == 1, room < 15);
        }
}
} // namespace

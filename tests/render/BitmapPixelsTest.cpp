#include "render/BitmapPixels.h"

#include "render/Bitmaps.h"
#include "render/HugePages.h"
#include "render/Images.h"
#include "render/Layer.h"
#include "tests/support/Pictures.h"
#include "tests/support/ScarceMemory.h"

#include <cairo.h>
#include <gtest/gtest.h>
#include <wx/dcmemory.h>
#include <wx/graphics.h>

#include <cmath>
#include <sstream>
#include <string>
#include <sys/mman.h>

namespace
{
using render::Argb;

TEST(Pixel, HoldsOpacityRedGreenAndBlueFromTheTop)
{
    EXPECT_EQ(render::OpaquePixel(0x12, 0x34, 0x56), 0xFF123456);
    EXPECT_EQ(render::PremultipliedPixel(0x12, 0x34, 0x56, 255), 0xFF123456);
    EXPECT_EQ(render::kWhite, 0xFFFFFFFF);
    for (unsigned alpha = 0; alpha < 256; ++alpha)
        for (unsigned channel = 0; channel < 256; ++channel)
        {
            const auto scaled = static_cast<unsigned>(std::lround(channel * alpha / 255.0));
            ASSERT_EQ(render::PremultipliedPixel(channel, 0, 0, alpha), alpha << 24 | scaled << 16);
            ASSERT_EQ(render::PremultipliedPixel(0, channel, 255, alpha), alpha << 24 | scaled << 8 | alpha);
        }
}

TEST(NewBitmap, HasTheSideAndTheDepthAskedFor)
{
    const auto map = render::NewWhiteBitmap(50);
    EXPECT_EQ(map->GetSize(), wxSize(50, 50));
    EXPECT_FALSE(map->HasAlpha());
    EXPECT_EQ(map->GetDepth(), wxBitmap(1, 1).GetDepth());
    const auto overlay = render::NewOverlayBitmap(50);
    EXPECT_EQ(overlay->GetSize(), wxSize(50, 50));
    EXPECT_EQ(overlay->GetDepth(), 32);
}

TEST(BitmapPixels, AreSeenByTheToolkitAtOnce)
{
    const auto source = render::NewOverlayBitmap(10);
    const auto target = render::NewWhiteBitmap(10);
    for (const Argb colour : {render::OpaquePixel(1, 2, 3), render::OpaquePixel(200, 100, 0)})
    {
        {
            const render::BitmapPixels pixels(*source);
            for (int y = 0; y < 10; ++y)
                std::ranges::fill(pixels.Row(y), colour);
        }
        {
            wxMemoryDC dc(*target);
            dc.DrawBitmap(*source, 0, 0);
        }
        EXPECT_EQ(ColoursOf(*target), Colours(10, std::vector<Argb>(10, colour)));
    }
}

TEST(Bitmaps, GiveTheirMemoryBack)
{
    if (UnderAddressSanitizer())
        GTEST_SKIP() << "AddressSanitizer keeps memory that was given back";
    // A round takes up to 32 MB at a time, and 48 MB are left.
    const ScarceMemory scarce;
    for (int i = 0; i < 8; ++i)
    {
        auto map = render::NewWhiteBitmap(2000);
        ASSERT_TRUE(map) << i;
        ASSERT_TRUE(render::ImageOf(*map).IsOk()) << i;
        map.reset();
        render::Layer layer(2000, render::Inks::Many);
        ASSERT_TRUE(layer.IsOk()) << i;
        layer.Begin(*wxBLACK, 1).DrawLine(0, 0, 9, 9);
        layer.Begin(*wxBLACK, 1).DrawLine(0, 0, 9, 9);
    }
}

/// How many bytes of a stretch of memory are advised to be backed with huge pages.
std::size_t AdvisedBytes(const void* memory, std::size_t bytes)
{
    const auto from = reinterpret_cast<std::uintptr_t>(memory);
    std::ifstream maps("/proc/self/smaps");
    std::uintptr_t first = 0;
    std::uintptr_t last = 0;
    std::size_t advised = 0;
    for (std::string line; std::getline(maps, line);)
    {
        char dash = '\0';
        std::uintptr_t begin = 0;
        std::uintptr_t end = 0;
        if (std::istringstream(line) >> std::hex >> begin >> dash >> end && dash == '-')
        {
            first = std::max(begin, from);
            last = std::min(end, from + bytes);
        }
        else if (line.starts_with("VmFlags:") && line.find(" hg") != std::string::npos && first < last)
            advised += last - first;
    }
    return advised;
}

class HugePagesTest : public testing::Test
{
protected:
    static constexpr std::size_t kPage = 2 << 20;
    static constexpr std::size_t kRoom = 8 * kPage;

    void SetUp() override
    {
        m_room = Reserve();
        if (!m_room)
            GTEST_SKIP() << "this system has no huge pages to ask for";
    }
    void TearDown() override
    {
        if (m_room)
            munmap(m_room, kRoom);
    }

    /// A fresh stretch of memory, nothing of it advised; none where the system has no huge pages.
    static char* Reserve()
    {
        void* const room = mmap(nullptr, kRoom, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
        if (room == MAP_FAILED || madvise(room, kRoom, MADV_HUGEPAGE) != 0 || AdvisedBytes(room, kRoom) != kRoom)
            return nullptr;
        madvise(room, kRoom, MADV_NOHUGEPAGE);
        return static_cast<char*>(room);
    }

    /// Where the first huge page in the memory begins.
    char* FirstPage() const
    {
        const auto at = reinterpret_cast<std::uintptr_t>(m_room);
        return m_room + (kPage - at % kPage) % kPage;
    }

    /// Whether all huge pages that lie wholly in the memory are advised.
    static bool IsAdvised(const void* memory, std::size_t bytes)
    {
        return AdvisedBytes(memory, bytes) > bytes - 2 * kPage;
    }

    char* m_room = nullptr;
};

TEST_F(HugePagesTest, AreAskedForWhereTheyFitWholly)
{
    char* const page = FirstPage();
    struct Case
    {
        std::ptrdiff_t from, to; ///< bytes from the first page
        std::size_t first, last; ///< pages
    };
    for (const Case& c :
         {Case{kPage, 3 * kPage, 1, 3}, Case{kPage - 1, 3 * kPage, 1, 3}, Case{kPage + 1, 4 * kPage + 1, 2, 4},
          Case{kPage, 3 * kPage - 1, 1, 2}, Case{kPage, 2 * kPage - 1, 0, 0},
          Case{kPage + 4096, 2 * kPage + 4096, 0, 0}, Case{kPage + 8, kPage + 16, 0, 0}})
    {
        SCOPED_TRACE(c.from);
        madvise(m_room, kRoom, MADV_NOHUGEPAGE);
        render::PreferHugePages(page + c.from, static_cast<std::size_t>(c.to - c.from));
        EXPECT_EQ(AdvisedBytes(m_room, kRoom), (c.last - c.first) * kPage);
        EXPECT_EQ(AdvisedBytes(page + c.first * kPage, (c.last - c.first) * kPage), (c.last - c.first) * kPage);
    }
}

TEST_F(HugePagesTest, AreAskedForAllLargePictures)
{
    constexpr int kSide = 4000;
    constexpr std::size_t kPixels = std::size_t{kSide} * kSide;
    auto map = render::NewWhiteBitmap(kSide);
    EXPECT_TRUE(IsAdvised(render::BitmapPixels(*map).Row(0).data(), 4 * kPixels));
    const wxImage image = render::ImageOf(*map);
    EXPECT_TRUE(IsAdvised(image.GetData(), 3 * kPixels));
    map.reset();
    const auto overlay = render::NewOverlayBitmap(kSide);
    EXPECT_TRUE(IsAdvised(render::BitmapPixels(*overlay).Row(0).data(), 4 * kPixels));
    for (const render::Inks inks : {render::Inks::One, render::Inks::Many})
    {
        render::Layer layer(kSide, inks);
        auto* const context = static_cast<cairo_t*>(layer.Begin(*wxBLACK, 1).GetGraphicsContext()->GetNativeContext());
        EXPECT_TRUE(IsAdvised(cairo_image_surface_get_data(cairo_get_target(context)),
                              inks == render::Inks::One ? kPixels : 4 * kPixels));
    }
}
} // namespace

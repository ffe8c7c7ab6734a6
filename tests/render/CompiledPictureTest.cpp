#include "render/CompiledPicture.h"

#include "render/WorldPixels.h"
#include "resources/world.xpm"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <wx/image.h>

namespace
{
using testing::ElementsAre;

TEST(UnpackXpm, GivesEachPixelTheColourOfItsKey)
{
    const char* const xpm[] = {"3 2 3 3", "   c #010203", "~~~ c #FFfe00", "AbC c #000000", "AbC   ~~~", "   AbCAbC"};
    const render::PixelGrid grid = render::UnpackXpm(xpm);
    EXPECT_EQ(grid.width, 3);
    EXPECT_EQ(grid.height, 2);
    EXPECT_THAT(grid.pixels, ElementsAre(0xFF000000, 0xFF010203, 0xFFFFFE00, 0xFF010203, 0xFF000000, 0xFF000000));
}

TEST(UnpackXpm, TellsKeysApartByEveryCharacter)
{
    const char* const xpm[] = {"12 1 4 3",      "  ~ c #000001", " !  c #000002",
                               " ~~ c #000003", "!   c #000004", "!    ~ !  ~~ ~~ !   ~  ~!    ~ !  ~~"};
    const render::PixelGrid grid = render::UnpackXpm(xpm);
    EXPECT_EQ(wxSize(grid.width, grid.height), wxSize(12, 1));
    EXPECT_THAT(grid.pixels, ElementsAre(0xFF000004, 0xFF000001, 0xFF000002, 0xFF000003, 0xFF000003, 0xFF000002,
                                         0xFF000001, 0xFF000001, 0xFF000004, 0xFF000001, 0xFF000002, 0xFF000003));
}

TEST(WorldPixels, AreWhatTheToolkitReads)
{
    const wxImage expected(world_xpm);
    ASSERT_EQ(wxSize(render::kWorldPixels.width, render::kWorldPixels.height), expected.GetSize());
    std::size_t different = 0;
    const unsigned char* rgb = expected.GetData();
    for (const render::Argb pixel : render::kWorldPixels.pixels)
    {
        different += pixel != render::OpaquePixel(rgb[0], rgb[1], rgb[2]);
        rgb += 3;
    }
    EXPECT_EQ(different, 0u);
}
} // namespace

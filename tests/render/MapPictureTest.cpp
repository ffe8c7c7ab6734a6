#include "render/MapPicture.h"

#include "render/Bitmaps.h"
#include "render/Images.h"
#include "tests/support/Pictures.h"
#include "tests/support/ScarceMemory.h"

#include <gtest/gtest.h>

#include <cstring>

namespace
{
constexpr render::Argb kBlue = render::OpaquePixel(0, 0, 255);

std::unique_ptr<wxBitmap> Filled(int side, render::Argb pixel, int depth)
{
    auto bitmap = std::make_unique<wxBitmap>(side, side, depth);
    const render::BitmapPixels pixels(*bitmap);
    for (int y = 0; y < side; ++y)
        std::ranges::fill(pixels.Row(y), pixel);
    return bitmap;
}

MapPicture BluePictureWithOverlays()
{
    MapPicture picture;
    picture.mapBitmap = Filled(8, kBlue, 24);
    picture.greylineBitmap = Filled(8, render::PremultipliedPixel(0, 0, 0, 128), 32);
    picture.propagationBitmap = Filled(8, render::PremultipliedPixel(255, 0, 0, 255), 32);
    picture.mapReady = true;
    return picture;
}

render::Argb Composed(const MapPicture& picture)
{
    wxBitmap composed(picture.Compose());
    return ColoursOf(composed)[3][3];
}

TEST(MapPicture, ShowsTheMapAloneWhileOverlaysAreHidden)
{
    EXPECT_EQ(Composed(BluePictureWithOverlays()), kBlue);
}

TEST(MapPicture, ShowsNothingBeforeTheMapIsReady)
{
    MapPicture picture = BluePictureWithOverlays();
    picture.mapReady = false;
    EXPECT_EQ(Composed(picture), render::kWhite);
}

TEST(MapPicture, LaysTheGreylineOverTheMapByItsOpacity)
{
    MapPicture picture = BluePictureWithOverlays();
    picture.showGreyline = true;
    EXPECT_EQ(Composed(picture), render::OpaquePixel(0, 0, 127));
}

TEST(MapPicture, LaysPropagationOnTop)
{
    MapPicture picture = BluePictureWithOverlays();
    picture.showGreyline = true;
    picture.showPropagation = true;
    EXPECT_EQ(Composed(picture), render::OpaquePixel(255, 0, 0));
}

TEST(MapPicture, ForgetsAndHidesEverythingWhenCleared)
{
    MapPicture picture = BluePictureWithOverlays();
    picture.showGreyline = picture.showPropagation = true;
    picture.Clear();
    EXPECT_FALSE(picture.mapBitmap || picture.greylineBitmap || picture.propagationBitmap);
    EXPECT_FALSE(picture.showGreyline || picture.showPropagation);
}

TEST(MapPicture, ShowsAnOverlayFlagWithoutABitmapAsNothing)
{
    MapPicture picture = BluePictureWithOverlays();
    picture.greylineBitmap.reset();
    picture.showGreyline = true;
    EXPECT_EQ(Composed(picture), kBlue);
}

TEST(MapPicture, ShowsABitmapThatIsNoneAsNothing)
{
    MapPicture picture = BluePictureWithOverlays();
    picture.propagationBitmap = std::make_unique<wxBitmap>();
    picture.showPropagation = true;
    EXPECT_EQ(Composed(picture), kBlue);
}

TEST(MapPicture, BeginsWithNothingToShow)
{
    const MapPicture picture;
    EXPECT_FALSE(picture.mapReady || picture.showGreyline || picture.showPropagation);
}

TEST(MapPicture, LiesInTheUpperLeftCornerWithItsOverlays)
{
    MapPicture picture = BluePictureWithOverlays();
    picture.showPropagation = true;
    {
        const render::BitmapPixels pixels(*picture.propagationBitmap);
        for (int y = 0; y < 8; ++y)
            for (int x = 0; x < 8; ++x)
                pixels.Row(y)[static_cast<std::size_t>(x)] =
                    (x + y) % 3 == 0 ? 0 : render::OpaquePixel(static_cast<unsigned>(x), static_cast<unsigned>(y), 9);
    }
    wxBitmap composed(picture.Compose());
    const Colours colours = ColoursOf(composed);
    for (unsigned y = 0; y < 8; ++y)
        for (unsigned x = 0; x < 8; ++x)
            EXPECT_EQ(colours[y][x], (x + y) % 3 == 0 ? kBlue : render::OpaquePixel(x, y, 9)) << x << ", " << y;
}

TEST(MapPicture, OfAMapAloneNeedsNoSecondBitmap)
{
    MapPicture picture;
    picture.mapBitmap = render::NewWhiteBitmap(3900); // 61 MB; an image takes 46
    picture.mapReady = true;
    const ScarceMemory scarce;
    EXPECT_TRUE(picture.Compose().IsOk());
}

/// A picture whose pixels all differ.
class Numbered : public render::PictureRows
{
public:
    explicit Numbered(int side) : m_side(side) {}
    int Side() const override { return m_side; }
    void Row(int y, std::span<render::Argb> out) const override
    {
        for (int x = 0; x < m_side; ++x)
            out[static_cast<std::size_t>(x)] = 0xFF000000U | static_cast<unsigned>((y * m_side + x + 1) * 7919);
    }

private:
    int m_side;
};

TEST(ImagesOfPictures, HaveEveryPixel)
{
    for (const int side : {1, 2, 3, 4, 5, 6, 7, 101, 128})
    {
        const auto bitmap = BitmapOf(Numbered(side));
        const wxImage converted = bitmap->ConvertToImage();
        for (const wxImage& image : {render::ImageOf(*bitmap), render::ImageOf(Numbered(side))})
        {
            ASSERT_EQ(image.GetSize(), converted.GetSize());
            EXPECT_EQ(0, std::memcmp(image.GetData(), converted.GetData(), static_cast<std::size_t>(3 * side * side)))
                << side;
        }
    }
}

TEST(ImagesOfPictures, AreOblongWhereBitmapsAre)
{
    wxImage oblong(3, 5);
    oblong.SetRGB(2, 0, 10, 20, 30);
    oblong.SetRGB(0, 4, 40, 50, 60);
    wxBitmap bitmap(oblong);
    const wxImage image = render::ImageOf(bitmap);
    ASSERT_EQ(image.GetSize(), wxSize(3, 5));
    EXPECT_EQ(0, std::memcmp(image.GetData(), oblong.GetData(), 3 * 3 * 5));
}
} // namespace

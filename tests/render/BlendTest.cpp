#include "render/Blend.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <vector>

namespace
{
using testing::Each;

TEST(BlendChannel, DividesEachTermBy256)
{
    EXPECT_EQ(render::BlendChannel(255, 255, 255), 254u);
    EXPECT_EQ(render::BlendChannel(200, 100, 50), 200u * 205 / 256 + 100u * 50 / 256);
    EXPECT_EQ(render::BlendChannel(255, 0, 255), 0u);
}

/// A layer and a map of 5 x 4 pixels, the map all (200, 100, 50).
struct Rows
{
    static constexpr int kWidth = 5;
    static constexpr int kHeight = 4;
    std::vector<std::uint8_t> layer = std::vector<std::uint8_t>(3 * kWidth * kHeight, 255);
    std::vector<std::uint8_t> map;

    Rows()
    {
        for (int i = 0; i < kWidth * kHeight; ++i)
            map.insert(map.end(), {200, 100, 50});
    }
    void Blend(std::uint8_t alpha) { render::BlendLayer(layer, map, kWidth, kHeight, alpha); }
    static std::size_t At(int x, int y) { return static_cast<std::size_t>(3 * (y * kWidth + x)); }
};

TEST(BlendLayer, TakesPureWhiteAsTransparent)
{
    Rows rows;
    const auto before = rows.map;
    rows.Blend(255);
    EXPECT_EQ(rows.map, before);
}

TEST(BlendLayer, BlendsAlmostWhite)
{
    Rows rows;
    rows.layer[Rows::At(2, 1) + 2] = 254;
    rows.Blend(255);
    EXPECT_EQ(rows.map[Rows::At(2, 1)], 254);
    EXPECT_EQ(rows.map[Rows::At(2, 1) + 2], 254 * 255 / 256);
}

TEST(BlendLayer, NeverChangesTheOutermostFrame)
{
    Rows rows;
    std::ranges::fill(rows.layer, std::uint8_t{0});
    rows.Blend(255);
    for (int y = 0; y < Rows::kHeight; ++y)
        for (int x = 0; x < Rows::kWidth; ++x)
        {
            const bool frame = x == 0 || y == 0 || x == Rows::kWidth - 1 || y == Rows::kHeight - 1;
            EXPECT_EQ(rows.map[Rows::At(x, y)], frame ? 200 : 0) << x << ", " << y;
        }
}

TEST(BlendLayer, WithOpacityZeroChangesNothing)
{
    Rows rows;
    const auto before = rows.map;
    std::ranges::fill(rows.layer, std::uint8_t{0});
    rows.Blend(0);
    EXPECT_EQ(rows.map, before);
}

TEST(BlendLayer, CopesWithPicturesThatAreAllFrame)
{
    std::vector<std::uint8_t> layer(6, 0);
    std::vector<std::uint8_t> map(6, 9);
    render::BlendLayer(layer, map, 2, 1, 255);
    render::BlendLayer(layer, map, 1, 2, 255);
    EXPECT_THAT(map, Each(9));
}

TEST(BlendPixel, BlendsEachChannelAndStaysOpaque)
{
    EXPECT_EQ(render::BlendPixel(render::OpaquePixel(200, 100, 50), render::OpaquePixel(0, 255, 7), 44),
              render::OpaquePixel(200 * 211 / 256, 100 * 211 / 256 + 255 * 44 / 256, 50 * 211 / 256 + 7 * 44 / 256));
}
} // namespace

#include "render/Layer.h"

#include "tests/support/Pictures.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>

namespace
{
std::set<render::Argb> DistinctColours(const Colours& colours)
{
    std::set<render::Argb> distinct;
    for (const auto& row : colours)
        distinct.insert(row.begin(), row.end());
    return distinct;
}

TEST(Layer, DrawsShapesInExactlyTheirColour)
{
    const auto map = render::NewWhiteBitmap(60);
    render::Layer layer(60);
    wxDC& dc = layer.Begin(wxColour(10, 20, 30), 1);
    dc.DrawLine(3, 5, 50, 33);
    dc.DrawEllipse(10, 10, 31, 31);
    layer.BlendOnto(*map, 255);
    const render::Argb blended = render::OpaquePixel(9, 19, 29); // 10 * 255 / 256 and so on
    EXPECT_EQ(DistinctColours(ColoursOf(*map)), (std::set<render::Argb>{render::kWhite, blended}));
}

TEST(Layer, DrawsTextsInExactlyTheirColour)
{
    const auto map = render::NewWhiteBitmap(120);
    render::Layer layer(120);
    wxDC& dc = layer.Begin(*wxBLACK, 1);
    dc.SetTextForeground(wxColour(10, 20, 30));
    dc.DrawText("JO65", 5, 5);
    dc.DrawRotatedText("12500", 30, 90, 33);
    layer.BlendOnto(*map, 255);
    const render::Argb blended = render::OpaquePixel(9, 19, 29);
    EXPECT_EQ(DistinctColours(ColoursOf(*map)), (std::set<render::Argb>{render::kWhite, blended}));
}

TEST(Layer, LeavesCirclesUnfilled)
{
    const auto map = render::NewWhiteBitmap(60);
    render::Layer layer(60);
    layer.Begin(*wxBLACK, 1).DrawEllipse(10, 10, 40, 40);
    layer.BlendOnto(*map, 255);
    EXPECT_EQ(ColoursOf(*map)[30][30], render::kWhite);
}

TEST(Layer, StartsWhiteAgainForTheNextLayer)
{
    const auto map = render::NewWhiteBitmap(40);
    render::Layer layer(40);
    layer.Begin(*wxBLACK, 1).DrawLine(0, 20, 40, 20);
    layer.BlendOnto(*map, 0);
    EXPECT_EQ(DistinctColours(ColoursOf(*map)), std::set<render::Argb>{render::kWhite});
    layer.Begin(*wxRED, 1);
    layer.BlendOnto(*map, 255);
    EXPECT_EQ(DistinctColours(ColoursOf(*map)), std::set<render::Argb>{render::kWhite});
}

TEST(Layer, DrawsThePensWidth)
{
    const auto map = render::NewWhiteBitmap(40);
    render::Layer layer(40);
    layer.Begin(*wxBLACK, 5).DrawLine(5, 20, 35, 20);
    layer.BlendOnto(*map, 255);
    const Colours colours = ColoursOf(*map);
    int dark = 0;
    for (const auto& row : colours)
        dark += row[20] != render::kWhite;
    EXPECT_EQ(dark, 5);
}

TEST(NewWhiteBitmap, IsWhiteAtOnce)
{
    const auto bitmap = render::NewWhiteBitmap(100);
    ASSERT_TRUE(bitmap);
    EXPECT_EQ(DistinctColours(ColoursOf(*bitmap)), std::set<render::Argb>{render::kWhite});
}

TEST(NewBitmap, IsNoneWhereThereIsNoMemory)
{
    // No surface can be larger than 32767 pixels: it fails as for a lack of memory.
    EXPECT_FALSE(render::NewWhiteBitmap(32768));
    EXPECT_FALSE(render::NewOverlayBitmap(32768));
}
} // namespace

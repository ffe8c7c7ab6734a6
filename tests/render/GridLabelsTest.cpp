#include "render/GridLabels.h"

#include "tests/support/Stencil.h"

#include <map>

namespace
{
std::string NameOf(int lon, int lat)
{
    const render::GridName name = render::FieldName(lon, lat);
    return {name.begin(), name.end()};
}

class GridLabelsTest : public LayerFixture
{
protected:
    std::map<std::string, geo::Pixel> Fields() const
    {
        std::map<std::string, geo::Pixel> fields;
        render::TraceFieldLabels(View(), [&](geo::Pixel pixel, render::GridName name)
                                 { fields[std::string(name.begin(), name.end())] = pixel; });
        return fields;
    }

    std::vector<std::pair<geo::Pixel, int>> Squares() const
    {
        std::vector<std::pair<geo::Pixel, int>> squares;
        render::TraceSquareLabels(View(), [&](geo::Pixel pixel, int number) { squares.emplace_back(pixel, number); });
        return squares;
    }

    std::size_t CountSquaresAt(double lat, double lon, int number) const
    {
        const OtherWay place(View(), lat, lon);
        std::size_t count = 0;
        for (const auto& [pixel, found] : Squares())
            count +=
                found == number && std::abs(pixel.x - 0.5 - place.x) <= 1 && std::abs(pixel.y - 0.5 - place.y) <= 1;
        return count;
    }
};

TEST_F(GridLabelsTest, NameFieldsFromAbToRq)
{
    EXPECT_EQ(NameOf(-170, -75), "AB");
    EXPECT_EQ(NameOf(170, 75), "RQ");
    EXPECT_EQ(NameOf(10, 55), "JO");
    EXPECT_EQ(NameOf(-70, -35), "FF");
}

TEST_F(GridLabelsTest, LeaveTheFieldsAtThePolesUnnamed)
{
    const auto fields = Fields();
    EXPECT_EQ(fields.size(), 18u * 16u);
    for (const auto& [name, pixel] : fields)
        EXPECT_TRUE(name[1] >= 'B' && name[1] <= 'Q') << name;
}

TEST_F(GridLabelsTest, NameTheStationsOwnFieldAtItsMiddle)
{
    const MapView view = View();
    const OtherWay middle(view, 55, 10);
    const geo::Pixel pixel = Fields().at("JO");
    EXPECT_EQ(pixel.x, std::floor(middle.x + 0.5));
    EXPECT_EQ(pixel.y, std::floor(middle.y + 0.5));
}

TEST_F(GridLabelsTest, LeaveTheCentreOfTheMapUnnamed)
{
    settings.centreLat = 55;
    settings.centreLon = 10;
    EXPECT_FALSE(Fields().contains("JO"));
}

TEST_F(GridLabelsTest, StayInsideTheZoomWithTheCompass)
{
    settings.zoom = 1000;
    const auto expectNear = [&](geo::Pixel pixel)
    {
        const MapView view = View();
        const double pixels = std::hypot(pixel.x - view.frame.half, pixel.y - view.frame.half);
        ASSERT_LT(pixels * view.frame.metresPerPixel, 1000000 + 2 * view.frame.metresPerPixel);
    };
    EXPECT_FALSE(Fields().empty());
    for (const auto& [name, pixel] : Fields())
        expectNear(pixel);
    EXPECT_GT(Squares().size(), 100u);
    for (const auto& [pixel, number] : Squares())
        expectNear(pixel);
    settings.compass.show = false;
    EXPECT_GT(Squares().size(), 30000u);
}

TEST_F(GridLabelsTest, NumberSquaresByLongitudeThenLatitude)
{
    settings.zoom = 500;
    EXPECT_EQ(CountSquaresAt(55.5, 13, 65), 1u); // JO65
    EXPECT_EQ(CountSquaresAt(55.5, 11, 55), 1u);
    EXPECT_EQ(CountSquaresAt(56.5, 13, 66), 1u);
}

TEST_F(GridLabelsTest, FoldTheNineteenthRowOverThePole)
{
    settings.centreLat = 85;
    settings.centreLon = 60;
    settings.zoom = 2000;
    settings.size = 900;
    // 99 is the last square of a field. At latitude 89.5 stands the real one, at 90.5 a 90 from the other side.
    EXPECT_EQ(CountSquaresAt(89.5, 79, 99), 1u);
    EXPECT_EQ(CountSquaresAt(89.5, 79, 90), 1u);
    EXPECT_EQ(CountSquaresAt(80.5, 79, 99), 1u);
}

TEST_F(GridLabelsTest, StandCentredOnTheirPlace)
{
    settings.size = 600;
    settings.zoom = 800;
    const MapView view = View();
    TextStyle style{true, "Sans 12", 0x2040FF, 255};
    // Only the middle of JO lies within reach.
    ASSERT_EQ(Fields().size(), 1u);
    const geo::Pixel place = Fields().at("JO");
    const Ink ink = Paint([&](wxDC& dc) { render::DrawFieldLabels(dc, view, style); });
    EXPECT_EQ(ink.colours, Only(wxColour(0xFF, 0x40, 0x20)));
    const wxRect bounds = ink.Bounds();
    EXPECT_NEAR(bounds.x + bounds.width / 2.0, place.x, 3);
    EXPECT_NEAR(bounds.y + bounds.height / 2.0, place.y, 4);
    EXPECT_GT(bounds.width, 8);
}

TEST_F(GridLabelsTest, LeaveOnlyTheirColour)
{
    settings.size = 500;
    settings.zoom = 1000;
    const TextStyle style{true, "Sans 9", 0x0A141E, 255};
    const Ink ink = Paint([&](wxDC& dc) { render::DrawSquareLabels(dc, View(), style); });
    EXPECT_EQ(ink.colours, Only(wxColour(0x1E, 0x14, 0x0A)));
}
} // namespace

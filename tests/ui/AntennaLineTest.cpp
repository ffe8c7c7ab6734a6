#include "ui/AntennaLine.h"

#include "render/Bitmaps.h"
#include "tests/support/OnScreen.h"
#include "tests/support/Rotctld.h"
#include "tests/ui/MenuFixture.h"

#include <cmath>
#include <numbers>

namespace
{
constexpr render::Argb kRed = render::OpaquePixel(200, 0, 0);
constexpr int kSide = 200;
constexpr int kHalf = kSide / 2;

/// Where the antenna points, on a map of 200 pixels whose ring has a radius of 99.
class ScreenAntennaLine : public MenuFixture
{
protected:
    void SetUp() override
    {
        rotator = rotator::ParseAddress(rotctld.Address());
        MenuFixture::SetUp();
    }

    void Create()
    {
        MenuFixture::Create(kSide);
        wxBitmap bitmap(frame->Picture().Compose());
        picture = ColoursOf(bitmap);
    }

    /// How many of the pixels across a line, on its way out along a bearing, are red.
    int RedAlong(double bearingDeg)
    {
        seen = OnScreen(Canvas(), {0, 0}, {kSide, kSide});
        int count = 0;
        for (int radius = 20; radius < 80; ++radius)
            count += HasRedNear(radius, bearingDeg);
        return count;
    }
    bool HasRedNear(int radius, double bearingDeg) const
    {
        const double angle = bearingDeg * std::numbers::pi / 180;
        const auto x = static_cast<std::size_t>(std::lround(kHalf + radius * std::sin(angle)));
        const auto y = static_cast<std::size_t>(std::lround(kHalf - radius * std::cos(angle)));
        for (std::size_t row = y - 1; row <= y + 1; ++row)
            for (std::size_t column = x - 1; column <= x + 1; ++column)
                if (IsReddish(seen[row][column]))
                    return true;
        return false;
    }
    /// Red within white, or its smoothed edge.
    static bool IsReddish(render::Argb colour)
    {
        const auto channel = [colour](int shift) { return static_cast<int>(colour >> shift & 0xFF); };
        return channel(16) > 190 && channel(8) < 130 && channel(0) < 130;
    }

    bool AwaitLine(double bearingDeg)
    {
        return Await([&] { return RedAlong(bearingDeg) == 60; });
    }
    bool AwaitNoLine(double bearingDeg)
    {
        return Await([&] { return RedAlong(bearingDeg) == 0; });
    }

    /// The picture is as it was, but for what lies near some bearings.
    testing::AssertionResult IsPictureApartFrom(const std::vector<double>& bearings) const
    {
        return IsPictureApartFrom(bearings, picture, 9);
    }
    testing::AssertionResult IsPictureApartFrom(const std::vector<double>& bearings, Colours expected,
                                                double reach) const
    {
        for (int y = 0; y < kSide; ++y)
            for (int x = 0; x < kSide; ++x)
                if (std::ranges::any_of(bearings, [&](double bearing) { return IsNear(x, y, bearing, reach); }))
                    expected[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)] =
                        seen[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)];
        return SamePicture(seen, expected);
    }

    /// Whether a pixel is within some pixels of the line from the station along a bearing.
    static bool IsNear(int x, int y, double bearingDeg, double reach)
    {
        const double angle = bearingDeg * std::numbers::pi / 180;
        const double along = (x - kHalf) * std::sin(angle) - (y - kHalf) * std::cos(angle);
        const double across = (x - kHalf) * std::cos(angle) + (y - kHalf) * std::sin(angle);
        return along > -reach && along < 99 + reach && std::abs(across) < reach;
    }

    FakeRotctld rotctld;
    Colours picture; ///< without a line
    Colours seen;    ///< on the screen
};

TEST(AntennaLine, HasPlacesForAllThatIsDrawn)
{
    for (const int side : {100, 101, 150, 400})
        for (int bearing = 0; bearing < 360; bearing += 15)
            for (const std::int64_t radius : {200'000, 3'000'000, 20'000'000})
            {
                MapFrame frame(side, 20000000, 1);
                frame.mapRadius = radius; // near ones are short
                const ui::AntennaLine line(frame, bearing);
                wxBitmap bitmap(side, side, 24);
                {
                    wxMemoryDC dc(bitmap);
                    dc.SetBackground(*wxBLUE_BRUSH);
                    dc.Clear();
                    line.Draw(dc, *wxRED_PEN);
                    dc.SetPen(*wxTRANSPARENT_PEN);
                    dc.SetBrush(*wxBLUE_BRUSH);
                    for (const wxRect& place : line.Places())
                    {
                        EXPECT_LE(std::max(place.width, place.height), 16 + 2 * 8 + 1);
                        dc.DrawRectangle(place);
                    }
                }
                const Colours left = ColoursOf(bitmap);
                for (const auto& row : left)
                    ASSERT_TRUE(std::ranges::all_of(row, [&](render::Argb colour) { return colour == left[0][0]; }))
                        << side << ": " << bearing << ", " << radius;
            }
}

TEST_F(ScreenAntennaLine, PointsWhereTheAntennaDoes)
{
    rotctld.state.azimuth = 90;
    Create();
    ASSERT_TRUE(AwaitLine(90));
    EXPECT_EQ(seen[kHalf][150], kRed);
    EXPECT_TRUE(IsPictureApartFrom({90}));
}

TEST_F(ScreenAntennaLine, MovesAndLeavesNothingBehind)
{
    rotctld.state.azimuth = 90;
    Create();
    ASSERT_TRUE(AwaitLine(90));
    for (const auto& [azimuth, bearing] : {std::pair(-135.0, 225.0), {440.0, 80.0}, {0.0, 0.0}})
    {
        rotctld.state.azimuth = azimuth;
        EXPECT_TRUE(AwaitLine(bearing)) << azimuth;
        EXPECT_TRUE(IsPictureApartFrom({bearing})) << azimuth;
    }
}

TEST_F(ScreenAntennaLine, PaintsNothingBeyondItsOldAndNewPlaces)
{
    rotctld.state.azimuth = 45;
    Create();
    ASSERT_TRUE(AwaitLine(45));
    const Colours before = seen;
    // Whatever is painted from now on is white.
    Canvas().mapBitmap = render::NewWhiteBitmap(kSide);
    rotctld.state.azimuth = 225;
    ASSERT_TRUE(AwaitLine(225));
    EXPECT_EQ(seen[20][180], render::kWhite);
    EXPECT_TRUE(IsPictureApartFrom({45, 225}, before, 24)); // half a rectangle of 16 pixels, and the head
}

TEST_F(ScreenAntennaLine, AtRestPaintsNothing)
{
    Create();
    ASSERT_TRUE(AwaitLine(0));
    int paintings = 0;
    Canvas().Bind(wxEVT_PAINT,
                  [&](wxPaintEvent& event)
                  {
                      ++paintings;
                      event.Skip();
                  });
    const int before = rotctld.positions;
    ASSERT_TRUE(Await([&] { return rotctld.positions >= before + 3; }));
    EXPECT_EQ(paintings, 0);
}

TEST_F(ScreenAntennaLine, HasADashedOneForTheTargetWhileItTurns)
{
    Create();
    ASSERT_TRUE(AwaitLine(0));
    RightClick({150, 100}, L"Turn antenna to 90.0\u00b0");
    EXPECT_TRUE(Await([&] { return RedAlong(90) > 20; }));
    EXPECT_LT(RedAlong(90), 58);
    EXPECT_EQ(RedAlong(0), 60);
    EXPECT_TRUE(IsPictureApartFrom({0, 90}));
    rotctld.state.azimuth = 90;
    EXPECT_TRUE(AwaitLine(90));
    EXPECT_TRUE(IsPictureApartFrom({90}));
}

TEST_F(ScreenAntennaLine, IsInNoPicture)
{
    rotctld.state.azimuth = 90;
    Create();
    ASSERT_TRUE(AwaitLine(90));
    dialogs.chosenPath = home.Path("saved.png");
    ClickTool(ui::kIdSave);
    wxBitmap saved(wxImage(home.Path("saved.png")));
    EXPECT_TRUE(SamePicture(ColoursOf(saved), picture));
}

TEST_F(ScreenAntennaLine, GoesWhenTheRotatorGoes)
{
    Create();
    ASSERT_TRUE(AwaitLine(0));
    rotctld.End();
    EXPECT_TRUE(AwaitNoLine(0));
    EXPECT_TRUE(IsPictureApartFrom({}));
}

TEST_F(ScreenAntennaLine, IsNotThereWithoutAMap)
{
    ASSERT_TRUE(Await([this] { return rotctld.positions == 2; }));
    EXPECT_TRUE(AwaitNoLine(0));
}
} // namespace

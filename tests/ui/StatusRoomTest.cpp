#include "tests/support/DesktopFont.h"
#include "tests/support/FrameFixture.h"

namespace
{
constexpr char kLongestReadOut[] = "lat = -88.8 / long = -178.8 / MM88MM / 18888.8 km / 288.8 degs";
constexpr char kLongestSun[] = "2028-08-28 08:08 Z | SunAz 288.888 | SunEl -88.888";

/// The status bar of a window of the first size, on a desktop with a font of so many points.
class StatusRoomTest : public testing::WithParamInterface<int>, public FrameFixture
{
protected:
    /// Whether the whole text stands in a field.
    bool HasRoom(int field) const
    {
        const wxStatusBar& bar = *frame->GetStatusBar();
        wxRect room;
        return bar.GetFieldRect(field, room) && bar.GetTextExtent(bar.GetStatusText(field)).x + 4 <= room.width;
    }

    const DesktopFont font{GetParam()};
};

TEST_P(StatusRoomTest, IsEnoughForTheLongestReadOutAlone)
{
    ASSERT_EQ(frame->GetFont().GetPointSize(), GetParam());
    frame->SetStatusText("", 1);
    frame->SetStatusText(kLongestReadOut, 0);
    EXPECT_TRUE(Await([&] { return HasRoom(0); }));
}

TEST_P(StatusRoomTest, IsEnoughForBothLongestReadOuts)
{
    frame->SetStatusText(kLongestSun, 1);
    frame->SetStatusText(kLongestReadOut, 0);
    EXPECT_TRUE(Await([&] { return HasRoom(0) && HasRoom(1); }));
}

TEST_P(StatusRoomTest, StaysEnoughWhenTheWindowBecomesNarrower)
{
    frame->SetStatusText(kLongestReadOut, 0);
    frame->SetSize(650, 500);
    ASSERT_TRUE(Await([&] { return frame->GetStatusBar()->GetSize().x <= 650; }));
    EXPECT_TRUE(Await([&] { return HasRoom(0) && HasRoom(1); }));
}

TEST_P(StatusRoomTest, IsWrittenInTheDesktopsFontWhereThatFits)
{
    frame->SetStatusText(kLongestSun, 1);
    frame->SetStatusText(kLongestReadOut, 0);
    frame->SetStatusText("", 1);
    frame->SetStatusText("", 0);
    EXPECT_TRUE(Await([&] { return frame->GetStatusBar()->GetFont().GetPointSize() == GetParam(); }));
}

INSTANTIATE_TEST_SUITE_P(Points, StatusRoomTest, testing::Values(10, 16, 20));
} // namespace

#include "tests/support/Rotctld.h"
#include "tests/ui/MenuFixture.h"

#include <gmock/gmock.h>

namespace
{
using testing::ElementsAre;

/// The antenna's rows in the context menu, with a rotator that obeys unless a test says otherwise.
class ScreenAntennaMenu : public MenuFixture
{
protected:
    void SetUp() override
    {
        rotator = rotator::ParseAddress(rotctld.Address());
        rotctld.state.min = 0; // asked for as soon as there is a connection
        MenuFixture::SetUp();
    }

    bool AwaitStatus(const wxString& text)
    {
        return Await([&] { return Status(0) == text; });
    }

    /// The one order that has come.
    std::string Ordered()
    {
        EXPECT_TRUE(Await([this] { return rotctld.orders == 1; }));
        return rotctld.lastOrder;
    }

    FakeRotctld rotctld;
};

TEST_F(ScreenAntennaMenu, OffersToTurnAndToStop)
{
    Create();
    RightClick({120, 130});
    ASSERT_EQ(rows.size(), 10u);
    rows.erase(rows.begin(), rows.begin() + 6);
    EXPECT_THAT(rows, ElementsAre("", L"Turn antenna to 146.3\u00b0", L"Turn antenna to 326.3\u00b0 (long path)",
                                  "Stop antenna"));
}

TEST_F(ScreenAntennaMenu, TurnsAlongTheShortPath)
{
    Create();
    RightClick({120, 130}, L"Turn antenna to 146.3\u00b0");
    EXPECT_TRUE(AwaitStatus("Antenna to 146.3 degs")) << Status(0);
    EXPECT_EQ(Ordered(), "set_pos 146.3 0");
}

TEST_F(ScreenAntennaMenu, TurnsAlongTheLongPath)
{
    Create();
    RightClick({120, 130}, L"Turn antenna to 326.3\u00b0 (long path)");
    EXPECT_TRUE(AwaitStatus("Antenna to 326.3 degs")) << Status(0);
    EXPECT_EQ(Ordered(), "set_pos 326.3 0");
}

TEST_F(ScreenAntennaMenu, Stops)
{
    Create();
    RightClick({120, 130}, "Stop antenna");
    EXPECT_TRUE(AwaitStatus("Antenna stopped")) << Status(0);
    EXPECT_EQ(Ordered(), "stop");
}

TEST_F(ScreenAntennaMenu, TurnsToTheFiguresAroundTheDisc)
{
    Create();
    RightClick({10, 10});
    EXPECT_THAT(rows, ElementsAre(L"(315.0\u00b0)", "", "Copy bearing", "", L"Turn antenna to 315.0\u00b0",
                                  L"Turn antenna to 135.0\u00b0 (long path)", "Stop antenna"));
}

TEST_F(ScreenAntennaMenu, StopsWithoutAMap)
{
    RightClick({50, 50}, "Stop antenna");
    EXPECT_THAT(rows, ElementsAre("Stop antenna"));
    EXPECT_TRUE(AwaitStatus("Antenna stopped")) << Status(0);
}

TEST_F(ScreenAntennaMenu, TheStationIsNoPlaceToTurnTo)
{
    Create();
    RightClick({100, 100});
    EXPECT_EQ(rows.back(), "Stop antenna");
    EXPECT_EQ(rows[rows.size() - 2], "");
}

TEST_F(ScreenAntennaMenu, SaysThatTheRotatorRefuses)
{
    rotctld.state.code = -1;
    Create();
    RightClick({120, 130}, L"Turn antenna to 146.3\u00b0");
    EXPECT_TRUE(AwaitStatus("Rotator: position out of range")) << Status(0);
    EXPECT_EQ(dialogs.messages.size(), 0u);
}

/// A rotator that is not there.
class ScreenMissingRotator : public MenuFixture
{
protected:
    void SetUp() override
    {
        rotator = rotator::Address{"localhost", FreePort()};
        MenuFixture::SetUp();
    }
    wxString NoAnswer() const { return "Rotator: no answer from " + rotator->Text(); }
};

TEST_F(ScreenMissingRotator, IsSaidOnceAndWithoutABox)
{
    EXPECT_TRUE(Await([this] { return Status(0) == NoAnswer(); })) << Status(0);
    EXPECT_EQ(dialogs.messages.size(), 0u);
}

TEST_F(ScreenMissingRotator, IsSaidAgainWhenItIsOrdered)
{
    ASSERT_TRUE(Await([this] { return Status(0) == NoAnswer(); }));
    Create();
    RightClick({120, 130}, L"Turn antenna to 146.3\u00b0");
    EXPECT_TRUE(Await([this] { return Status(0) == NoAnswer(); })) << Status(0);
    EXPECT_EQ(dialogs.messages.size(), 0u);
}
} // namespace

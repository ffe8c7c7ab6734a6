#include "tests/support/OptionsFixture.h"

namespace
{
using OptionsUnchangedTest = OptionsFixture;

constexpr long kBlue = 16711680;       // R 0, G 0, B 255
constexpr long kBluePicked = 16646144; // R 0, G 0, B 254

TEST_F(OptionsUnchangedTest, KeepsTheOverlaysThoughTheHighestBlueIsStoredAsALittleLess)
{
    ASSERT_EQ(settings.propagation.scales[0].colours[7], kBlue);
    RunModal([this] { ClickOk(); });
    EXPECT_FALSE(settings.resetOverlays);
    EXPECT_EQ(settings.propagation.scales[0].colours[7], kBluePicked);
    EXPECT_EQ(ValueIn(home.Path(".Kavdex"), "Propagation/S8Colour"), std::to_string(kBluePicked));
}

TEST_F(OptionsUnchangedTest, ResetsTheOverlaysWhenAColourIsPicked)
{
    dialog->m_voacapPage.appearance.steps[2].colour->SetColour(wxColour(0, 0, 253));
    RunModal([this] { ClickOk(); });
    EXPECT_TRUE(settings.resetOverlays);
}
} // namespace

#include "tests/support/OptionsFixture.h"

namespace
{
/// Settings files with values that the controls cannot hold.
using OptionsBadInput = OptionsFixture;

TEST_F(OptionsBadInput, ShowsTheNearestThatAControlCanHold)
{
    settings.meridians.alpha = 300;
    settings.meridians.lineWidth = 0;
    settings.fields.lineWidth = 99;
    settings.fields.alpha = -1;
    settings.rangeCircles.legendBearingDeg = 99999999999;
    settings.greyzone.widthDeg = 99;
    settings.radials.every = 17;
    settings.texts[0].align = -3;
    settings.plotSquares[0].stipple = 1000000;
    settings.propagation.grid = 7;
    settings.propagation.frequency = 99;
    settings.propagation.txPower = -1;
    settings.propagation.parameter = 4;
    settings.greyzone.timeMode = 5;
    settings.greyzone.once.hour = 24;
    settings.greyzone.once.minute = -1;
    settings.propagation.legend = 7;
    Open();
    EXPECT_EQ(dialog->m_settingsPage.meridians.alpha->GetValue(), 255);
    EXPECT_EQ(dialog->m_settingsPage.radialsEvery->GetStringSelection(), "45 deg Radials");
    ClickOk();
    EXPECT_EQ(settings.meridians.alpha, 255);
    EXPECT_EQ(settings.meridians.lineWidth, 1);
    EXPECT_EQ(settings.fields.lineWidth, 10);
    EXPECT_EQ(settings.fields.alpha, 0);
    EXPECT_EQ(settings.rangeCircles.legendBearingDeg, 360);
    EXPECT_EQ(settings.greyzone.widthDeg, 15);
    EXPECT_EQ(settings.radials.every, 4);
    EXPECT_EQ(settings.texts[0].align, 0);
    EXPECT_EQ(settings.plotSquares[0].stipple, 6);
    EXPECT_EQ(settings.propagation.grid, 6);
    EXPECT_EQ(settings.propagation.frequency, 8);
    EXPECT_EQ(settings.propagation.txPower, 0);
    EXPECT_EQ(settings.propagation.parameter, 3);
    EXPECT_EQ(settings.greyzone.timeMode, 1);
    EXPECT_EQ(settings.greyzone.once.hour, 23);
    EXPECT_EQ(settings.greyzone.once.minute, 0);
    EXPECT_EQ(settings.propagation.legend, 1);
}

TEST_F(OptionsBadInput, KeepsNumbersOfTextFieldsWhateverTheirSize)
{
    settings.zoom = 99999;
    settings.size = -4;
    settings.rangeCircles.distanceKm = 0;
    Open();
    EXPECT_EQ(dialog->m_settingsPage.zoomSlider->GetValue(), 20000);
    ClickOk();
    EXPECT_EQ(settings.zoom, 99999);
    EXPECT_EQ(settings.size, -4);
    EXPECT_EQ(settings.rangeCircles.distanceKm, 0);
    settings.zoom = 50;
    Open();
    EXPECT_EQ(dialog->m_settingsPage.zoomSlider->GetValue(), 100);
    ClickOk();
    EXPECT_EQ(settings.zoom, 50);
}

TEST_F(OptionsBadInput, BringsPositionsBeyondTheGlobeBackToIt)
{
    settings.centreLat = 91;
    settings.centreLon = -1e300;
    Open();
    EXPECT_EQ(dialog->m_homePage.latitude.decimal->GetValue(), "90.0");
    EXPECT_EQ(dialog->m_homePage.longitude.decimal->GetValue(), "-180.0");
    ClickOk();
    EXPECT_EQ(settings.centreLat, 90.0);
    EXPECT_EQ(settings.centreLon, -180.0);
}

TEST_F(OptionsBadInput, KeepsTheLowBytesOfColoursThatHaveMore)
{
    settings.meridians.colour = 0x7F00000000 + 1 + 256 * 2 + 65536 * 3;
    settings.compass.colour = -1;
    settings.radials.colour = 16777215;
    Open();
    EXPECT_EQ(dialog->m_settingsPage.compass.colour->GetColour(), *wxWHITE);
    ClickOk();
    EXPECT_EQ(settings.meridians.colour, 1 + 256 * 2 + 65536 * 3);
    EXPECT_EQ(settings.compass.colour, 16711679);
    EXPECT_EQ(settings.radials.colour, 16711679);
}

TEST_F(OptionsBadInput, ShowsTheNearestDateOfTheCalendar)
{
    struct
    {
        UtcTime wrong;
        UtcTime nearest;
    } const cases[] = {
        {{2023, 1, 31, 5, 6, 0}, {2023, 1, 28, 5, 6, 0}},
        {{2024, 1, 31, 5, 6, 0}, {2024, 1, 29, 5, 6, 0}},
        {{0, 0, 0, 5, 6, 0}, {1, 0, 1, 5, 6, 0}},
        {{-2147483647, -5, -9, 0, 0, 0}, {1, 0, 1, 0, 0, 0}},
        {{2147483647, 99, 99, 0, 0, 0}, {9999, 11, 31, 0, 0, 0}},
        {{1900, 12, 1, 0, 0, 0}, {1900, 11, 1, 0, 0, 0}},
    };
    for (const auto& [wrong, nearest] : cases)
    {
        settings.greyzone.once = wrong;
        Open();
        ClickOk();
        EXPECT_EQ(settings.greyzone.once, nearest) << wrong.year << " " << wrong.month << " " << wrong.day;
    }
}

TEST_F(OptionsBadInput, KeepsLongTextsAndUnknownFonts)
{
    const wxString longText('9', 10000);
    settings.centreLoc = longText;
    settings.borders[3].file = longText;
    settings.propagation.directory = longText;
    settings.propagation.scales[0].values[4] = longText;
    settings.propagation.userFrequencyMHz = longText;
    settings.fields.text.font = longText;
    settings.texts[1].font = "NoSuchFace 11";
    settings.texts[2].font = "";
    Open();
    dialog->Show();
    Settle();
    ClickOk();
    EXPECT_EQ(settings.centreLoc, longText);
    EXPECT_EQ(settings.borders[3].file, longText);
    EXPECT_EQ(settings.propagation.directory, longText);
    EXPECT_EQ(settings.propagation.scales[0].values[4], longText);
    EXPECT_EQ(settings.propagation.userFrequencyMHz, longText);
    EXPECT_EQ(settings.fields.text.font, longText);
    EXPECT_EQ(settings.texts[1].font, "NoSuchFace 11");
    EXPECT_EQ(settings.texts[2].font, "");
}
TEST_F(OptionsBadInput, LeavesAStoredNumberAloneWhateverWasTypedBefore)
{
    Type(dialog->m_settingsPage.zoom, "500");
    Type(dialog->m_voacapPage.main.userFrequency, "7.1"); // looks at all that is typed
    Type(dialog->m_settingsPage.zoom, "far");
    EXPECT_EQ(settings.zoom, 20000);
    ClickOk();
    EXPECT_EQ(settings.zoom, 20000);
    EXPECT_EQ(settings.propagation.userFrequencyMHz, "7.1");
}
} // namespace

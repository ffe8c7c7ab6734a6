#include "tests/support/OptionsFixture.h"

#include <wx/uiaction.h>

#include <cmath>
#include <cstdlib>
#include <random>

namespace
{
class OptionsHome : public OptionsFixture
{
protected:
    void SetUp() override
    {
        OptionsFixture::SetUp();
        latitude = dialog->m_homePage.latitude;
        longitude = dialog->m_homePage.longitude;
    }

    static wxString Parts(const ui::PositionRow& row)
    {
        return row.deg->GetValue() + " " + row.min->GetValue() + " " + row.sec->GetValue() + " " +
               row.hemisphere->GetStringSelection();
    }

    static void TypeParts(const ui::PositionRow& row, const wxString& deg, const wxString& min, const wxString& sec,
                          int hemisphere)
    {
        Type(row.deg, deg);
        Type(row.min, min);
        Type(row.sec, sec);
        row.hemisphere->SetSelection(hemisphere);
        Click(row.toDecimal);
    }

    ui::PositionRow latitude{};
    ui::PositionRow longitude{};
};

using ScreenOptionsHome = OptionsHome;

TEST_F(OptionsHome, OpensWithAllFormsOfThePosition)
{
    EXPECT_EQ(latitude.decimal->GetValue(), "55.6875");
    EXPECT_EQ(Parts(latitude), "55 41 15 N");
    EXPECT_EQ(longitude.decimal->GetValue(), "12.625");
    EXPECT_EQ(Parts(longitude), "12 37 30 E");
    EXPECT_EQ(dialog->m_homePage.locator->GetValue(), "JO65HQ");
}

TEST_F(OptionsHome, FillsDegreesMinutesAndSecondsWhileTheDecimalIsTyped)
{
    Type(latitude.decimal, "-33.5");
    EXPECT_EQ(Parts(latitude), "33 30 0 S");
    Type(latitude.decimal, "12.2");
    EXPECT_EQ(Parts(latitude), "12 12 0 N");
    Type(latitude.decimal, "89.99999");
    EXPECT_EQ(Parts(latitude), "89 59 59 N");
    Type(longitude.decimal, "-0.0002");
    EXPECT_EQ(Parts(longitude), "0 0 1 W");
    Type(longitude.decimal, "0");
    EXPECT_EQ(Parts(longitude), "0 0 0 W"); // zero has no side of its own
    Type(longitude.decimal, "180");
    EXPECT_EQ(Parts(longitude), "180 0 0 E");
}

TEST_F(OptionsHome, SplitsEveryDecimalIntoWholeDegreesMinutesAndSeconds)
{
    std::mt19937 random(51);
    for (int i = 0; i < 200; ++i)
    {
        const bool isLatitude = i % 2 == 0;
        const ui::PositionRow& row = isLatitude ? latitude : longitude;
        // In ten thousandths of a degree, as they are typed: 0.36 seconds.
        const int limit = isLatitude ? 900000 : 1800000;
        const int decimal = std::uniform_int_distribution(-limit, limit)(random);
        Type(row.decimal, wxString::Format("%s%d.%04d", decimal < 0 ? "-" : "", std::abs(decimal) / 10000,
                                           std::abs(decimal) % 10000));
        const int hundredths = std::abs(decimal) * 36;
        const int seconds = std::min(59, (hundredths % 6000 + 50) / 100);
        const char* const sides = isLatitude ? "NS" : "EW";
        EXPECT_EQ(Parts(row), wxString::Format("%d %d %d %c", hundredths / 360000, hundredths / 6000 % 60, seconds,
                                               sides[decimal < 0 ? 1 : 0]))
            << row.decimal->GetValue();
    }
}

TEST_F(OptionsHome, JoinsDegreesMinutesAndSecondsToFourDecimals)
{
    std::mt19937 random(52);
    const auto upTo = [&](int max) { return std::uniform_int_distribution(0, max)(random); };
    for (int i = 0; i < 200; ++i)
    {
        const bool isLatitude = i % 2 == 0;
        const ui::PositionRow& row = isLatitude ? latitude : longitude;
        const int deg = upTo(isLatitude ? 89 : 179);
        const int min = upTo(59);
        const int sec = upTo(59);
        const int side = upTo(1);
        TypeParts(row, wxString::Format("%d", deg), wxString::Format("%d", min), wxString::Format("%d", sec), side);
        const double degrees = (deg * 3600 + min * 60 + sec) / 3600.0;
        double decimal = 0;
        ASSERT_TRUE(row.decimal->GetValue().ToCDouble(&decimal));
        EXPECT_NEAR(decimal, side == 1 ? -degrees : degrees, 0.5001e-4);
        EXPECT_EQ(row.decimal->GetValue().AfterFirst('.').length(), 4u);
    }
}

TEST_F(OptionsHome, LeavesTheCursorAfterALimitThatItPutsInPlace)
{
    Type(latitude.decimal, "95");
    EXPECT_EQ(latitude.decimal->GetInsertionPoint(), 4);
    Type(longitude.decimal, "-195");
    EXPECT_EQ(longitude.decimal->GetInsertionPoint(), 6);
}

TEST_F(OptionsHome, KeepsPartsAtTheirLimits)
{
    TypeParts(latitude, "90", "0", "0", 0);
    EXPECT_EQ(latitude.decimal->GetValue(), "90.0000");
    EXPECT_EQ(Parts(latitude), "90 0 0 N");
    TypeParts(longitude, "180", "0", "0", 1);
    EXPECT_EQ(longitude.decimal->GetValue(), "-180.0000");
    TypeParts(longitude, "0", "59", "59", 0);
    EXPECT_EQ(Parts(longitude), "0 59 59 E");
    EXPECT_EQ(longitude.decimal->GetValue(), "0.9997");
    for (const char* const part : {"x", "inf", ""}) // whichever of the three it is
    {
        TypeParts(latitude, part, "1", "2", 0);
        EXPECT_EQ(latitude.decimal->GetValue(), "90.0000") << part;
        TypeParts(latitude, "1", "2", part, 0);
        EXPECT_EQ(latitude.decimal->GetValue(), "90.0000") << part;
    }
}

TEST_F(OptionsHome, MakesNoLocatorOfALongitudeBeyondTheLimit)
{
    longitude.decimal->ChangeValue("180.5");
    Click(dialog->m_homePage.locatorFromLatLon);
    EXPECT_EQ(dialog->m_homePage.locator->GetValue(), "JO65HQ");
    longitude.decimal->ChangeValue("179.99");
    latitude.decimal->ChangeValue("-89.99");
    Click(dialog->m_homePage.locatorFromLatLon);
    EXPECT_EQ(dialog->m_homePage.locator->GetValue(), "RA90XA");
}

TEST_F(OptionsHome, BringsDecimalsBeyondTheLimitBack)
{
    Type(latitude.decimal, "95");
    EXPECT_EQ(latitude.decimal->GetValue(), "90.0");
    EXPECT_EQ(Parts(latitude), "90 0 0 N");
    Type(latitude.decimal, "-90.01");
    EXPECT_EQ(latitude.decimal->GetValue(), "-90.0");
    EXPECT_EQ(Parts(latitude), "90 0 0 S");
    Type(longitude.decimal, "181");
    EXPECT_EQ(longitude.decimal->GetValue(), "180.0");
    Type(longitude.decimal, "-1234");
    EXPECT_EQ(longitude.decimal->GetValue(), "-180.0");
    Type(latitude.decimal, "90");
    EXPECT_EQ(latitude.decimal->GetValue(), "90");
}

TEST_F(OptionsHome, LeavesTheOtherFieldsAloneWhenTheDecimalIsNoNumber)
{
    for (const char* const text : {"", "-", "+.", "1-2", "nan", "x"})
    {
        Type(latitude.decimal, text);
        EXPECT_EQ(Parts(latitude), "55 41 15 N") << text;
        EXPECT_EQ(latitude.decimal->GetValue(), text);
    }
}

TEST_F(OptionsHome, MakesTheDecimalFromDegreesMinutesAndSeconds)
{
    TypeParts(latitude, "10", "2", "0", 1);
    EXPECT_EQ(latitude.decimal->GetValue(), "-10.0333");
    EXPECT_EQ(Parts(latitude), "10 2 0 S"); // as they were typed
    TypeParts(longitude, "151", "7", "30", 0);
    EXPECT_EQ(longitude.decimal->GetValue(), "151.1250");
    ClickOk();
    EXPECT_DOUBLE_EQ(settings.centreLat, -10.0333);
    EXPECT_DOUBLE_EQ(settings.centreLon, 151.125);
}

TEST_F(OptionsHome, BringsDegreesMinutesAndSecondsIntoTheirRanges)
{
    TypeParts(latitude, "50", "75", "99", 0);
    EXPECT_EQ(Parts(latitude), "50 59 59 N");
    EXPECT_EQ(latitude.decimal->GetValue(), "50.9997");
    TypeParts(latitude, "-5", "-1", "-1", 0);
    EXPECT_EQ(Parts(latitude), "0 0 0 N");
    EXPECT_EQ(latitude.decimal->GetValue(), "0.0000");
    TypeParts(latitude, "91", "0", "0", 1);
    EXPECT_EQ(latitude.deg->GetValue(), "90");
    EXPECT_EQ(latitude.decimal->GetValue(), "-90.0000");
    TypeParts(longitude, "999", "30", "0", 1);
    EXPECT_EQ(longitude.decimal->GetValue(), "-180.0");
    EXPECT_EQ(Parts(longitude), "180 0 0 W");
}

TEST_F(OptionsHome, MakesNoDecimalFromPartsThatAreNoNumbers)
{
    TypeParts(latitude, "10", "", "0", 0);
    EXPECT_EQ(latitude.decimal->GetValue(), "55.6875");
}

TEST_F(OptionsHome, TakesThePositionFromTheLocator)
{
    wxTextCtrl* const locator = dialog->m_homePage.locator;
    Type(locator, "jo65");
    Click(dialog->m_homePage.latLonFromLocator);
    EXPECT_EQ(locator->GetValue(), "jo65"); // keeps its text
    EXPECT_EQ(latitude.decimal->GetValue(), "55.479167");
    EXPECT_EQ(longitude.decimal->GetValue(), "12.958333");
    EXPECT_EQ(Parts(latitude), "55 28 45 N");
    EXPECT_EQ(Parts(longitude), "12 57 30 E");
    for (const wxString& text :
         {wxString("ZZ99zz"), wxString(""), wxString("JO65H"), wxString::FromUTF8("JØ65HQ"), wxString('A', 10000)})
    {
        Type(locator, text);
        Click(dialog->m_homePage.latLonFromLocator);
        EXPECT_EQ(latitude.decimal->GetValue(), "55.479167");
    }
}

TEST_F(OptionsHome, TakesTheLocatorFromThePosition)
{
    wxTextCtrl* const locator = dialog->m_homePage.locator;
    Type(latitude.decimal, "-33.87");
    Type(longitude.decimal, "151.2");
    Click(dialog->m_homePage.locatorFromLatLon);
    EXPECT_EQ(locator->GetValue(), "QF56OD");
    latitude.decimal->ChangeValue("91");
    Click(dialog->m_homePage.locatorFromLatLon);
    EXPECT_EQ(locator->GetValue(), "QF56OD");
    latitude.decimal->ChangeValue("10");
    longitude.decimal->ChangeValue("");
    Click(dialog->m_homePage.locatorFromLatLon);
    EXPECT_EQ(locator->GetValue(), "QF56OD");
    longitude.decimal->ChangeValue("-180");
    Click(dialog->m_homePage.locatorFromLatLon);
    EXPECT_EQ(locator->GetValue(), "AK00AA");
}

TEST_F(ScreenOptionsHome, AcceptsOnlyTheCharactersOfNumbersFromTheKeyboard)
{
    dialog->Show();
    dialog->m_book->SetSelection(8);
    Settle();
    wxUIActionSimulator keyboard;
    const auto typeInto = [&](wxTextCtrl* field)
    {
        field->SetFocus();
        field->Clear();
        Settle();
        for (const char key : {'x', '4', '-', '.', ' ', '2', 'e'})
        {
            keyboard.Char(key);
            Settle();
        }
        return field->GetValue();
    };
    EXPECT_EQ(typeInto(latitude.deg), "42");
    EXPECT_EQ(typeInto(longitude.sec), "42");
    EXPECT_EQ(typeInto(latitude.decimal), "4-.2");
}

TEST_F(OptionsHome, KeepsEveryDigitOfAPositionThatIsNotTouched)
{
    settings.centreLat = -33.867851234567;
    settings.centreLon = 151.20929;
    Open();
    EXPECT_EQ(dialog->m_homePage.latitude.decimal->GetValue(), "-33.867851");
    EXPECT_EQ(dialog->m_homePage.longitude.decimal->GetValue(), "151.20929");
    ClickOk();
    EXPECT_EQ(settings.centreLat, -33.867851234567);
    EXPECT_EQ(settings.centreLon, 151.20929);
    EXPECT_NE(home.Read(".Kavdex").find("Lon=151.20929\n"), std::string::npos);
}
} // namespace

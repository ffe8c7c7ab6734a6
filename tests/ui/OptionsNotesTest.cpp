#include "tests/support/OptionsFixture.h"
#include "ui/options/Guide.h"

#include <wx/filename.h>

#include <algorithm>

namespace
{
/// What the dialog says beside its fields.
class OptionsNotesTest : public OptionsFixture
{
protected:
    void SetUp() override
    {
        OptionsFixture::SetUp();
        dialog->Show();
        Settle();
    }

    /// The words that stand at the right of a control; empty if none are seen.
    static wxString Beside(wxWindow* control)
    {
        for (wxSizerItem* const item : control->GetContainingSizer()->GetChildren())
            if (auto* const text = dynamic_cast<wxStaticText*>(item->GetWindow()))
                return text->IsShown() ? text->GetLabelText() : wxString();
        return "nothing stands beside it";
    }

    /// What is said of a file as soon as its name stands there.
    static wxString SaidOf(wxFilePickerCtrl* file, const wxString& name)
    {
        Type(file->GetTextCtrl(), name);
        Settle();
        return Beside(file);
    }

    static wxString SaidOf(wxTextCtrl* field, const wxString& text)
    {
        Type(field, text);
        Settle();
        return Beside(field);
    }

    static wxString Mark(const char* words) { return wxString::FromUTF8("\u26a0 ") + words; }
};

TEST_F(OptionsNotesTest, MarkABorderFileThatIsMissingOrNone)
{
    wxFilePickerCtrl* const file = dialog->m_bordersPage.rows[1].file;
    home.Write("lines.pnt", std::string("\xe8\x03\x10\x00\x20\x00\x01\x00\x11\x00\x21\x00", 12));
    home.Write("short.pnt", "12345");
    home.Write("words.pnt", "These are words, and not positions");
    EXPECT_EQ(Beside(file), "");
    EXPECT_EQ(SaidOf(file, home.Path("gone.pnt")), Mark("not found"));
    EXPECT_EQ(SaidOf(file, home.Path("lines.pnt")), "");
    EXPECT_EQ(SaidOf(file, home.Path("short.pnt")), Mark("no border file"));
    EXPECT_EQ(SaidOf(file, home.Path("words.pnt")), Mark("no border file"));
    EXPECT_EQ(SaidOf(file, ""), "");
}

TEST_F(OptionsNotesTest, MarkALabelFileThatIsMissingOrNone)
{
    wxFilePickerCtrl* const file = dialog->m_textPage.rows[0].file;
    home.Write("names.dat", "# towns\nx;Stockholm;City;x;59.33;18.07;x\n");
    home.Write("prose.dat", "Once; upon; a; time; there; was; a map\n");
    EXPECT_EQ(SaidOf(file, home.Path("gone.dat")), Mark("not found"));
    EXPECT_EQ(SaidOf(file, home.Path("names.dat")), "");
    EXPECT_EQ(SaidOf(file, home.Path("prose.dat")), Mark("no label file"));
}

TEST_F(OptionsNotesTest, MarkAResultThatIsMissing)
{
    wxFilePickerCtrl* const file = dialog->m_voacapPage.main.externalResult;
    EXPECT_EQ(SaidOf(file, home.Path("gone.vg1")), Mark("not found"));
    EXPECT_EQ(SaidOf(file, home.Write("there.vg1", "x")), "");
}

TEST_F(OptionsNotesTest, MarkAPictureThatIsMissingOrNone)
{
    wxFilePickerCtrl* const file = dialog->m_sourceMapPage.rows[0].file;
    wxImage(4, 2).SaveFile(home.Path("world.png"), wxBITMAP_TYPE_PNG);
    home.Write("words.png", "no picture");
    EXPECT_EQ(SaidOf(file, home.Path("gone.png")), Mark("not found"));
    EXPECT_EQ(SaidOf(file, home.Path("world.png")), "");
    EXPECT_EQ(SaidOf(file, home.Path("words.png")), Mark("no picture"));
}

TEST_F(OptionsNotesTest, MarkALogThatIsMissing)
{
    wxFilePickerCtrl* const file = dialog->m_plotSquaresPage.slots[1].file;
    home.Write("any.log", "JO65\n");
    EXPECT_EQ(SaidOf(file, home.Path("gone.log")), Mark("not found"));
    EXPECT_EQ(SaidOf(file, home.Path("any.log")), "");
}

TEST_F(OptionsNotesTest, FindNoFaultWithTheFilesThatAreShipped)
{
    const wxString data = KAV_DATA;
    EXPECT_EQ(SaidOf(dialog->m_bordersPage.rows[1].file, data + "/mapper.pnt"), "");
    EXPECT_EQ(SaidOf(dialog->m_bordersPage.rows[2].file, data + "/states.pnt"), "");
    for (const char* const name : {"/countries.dat", "/cities.dat", "/prefixes.dat"})
        EXPECT_EQ(SaidOf(dialog->m_textPage.rows[0].file, data + name), "") << name;
}

TEST_F(OptionsNotesTest, MarkANumberThatWillBeDroppedOrChanged)
{
    const ui::SettingsPage& page = dialog->m_settingsPage;
    EXPECT_EQ(SaidOf(page.size, "9 00"), Mark("no whole number"));
    EXPECT_EQ(SaidOf(page.size, "99"), Mark("100 to 8000"));
    EXPECT_EQ(SaidOf(page.size, "100"), "");
    EXPECT_EQ(SaidOf(page.size, "8000"), "");
    EXPECT_EQ(SaidOf(page.size, "8001"), Mark("100 to 8000"));
    for (wxTextCtrl* const kilometres : {page.zoom, page.rangeEvery})
    {
        EXPECT_EQ(SaidOf(kilometres, "99"), Mark("100 to 20000"));
        EXPECT_EQ(SaidOf(kilometres, "100"), "");
        EXPECT_EQ(SaidOf(kilometres, "20000"), "");
        EXPECT_EQ(SaidOf(kilometres, "20001"), Mark("100 to 20000"));
    }
    EXPECT_EQ(SaidOf(dialog->m_homePage.latitude.decimal, "5-5"), Mark("no number"));
    EXPECT_EQ(SaidOf(dialog->m_homePage.latitude.decimal, "55"), "");
}

TEST_F(OptionsNotesTest, SayWhenALocatorIsNotWhereTheMapIsCentred)
{
    wxWindow* const note = dialog->m_homePage.locatorFromLatLon;
    EXPECT_EQ(Beside(note), "");
    // One degree along a meridian of a sphere of 6370.997 km is 111.2 km: from the middle of JO65HQ to that of JO66HQ.
    Type(dialog->m_homePage.locator, "JO66HQ");
    Settle();
    EXPECT_EQ(Beside(note), Mark("the map is centred on latitude and\nlongitude, 111.2 km from this locator"));
    Type(dialog->m_homePage.locator, "JO6");
    Settle();
    EXPECT_EQ(Beside(note), Mark("no locator: the map is centred\non latitude and longitude"));
    Type(dialog->m_homePage.locator, "jo66hq");
    Click(dialog->m_homePage.latLonFromLocator);
    Settle();
    EXPECT_EQ(Beside(note), "");
    Type(dialog->m_homePage.latitude.decimal, "10");
    Settle();
    EXPECT_TRUE(Beside(note).EndsWith(" km from this locator"));
    Click(dialog->m_homePage.locatorFromLatLon);
    Settle();
    EXPECT_EQ(Beside(note), "");
}

TEST_F(OptionsNotesTest, LeaveFieldsGreyThatDoNothingInRealTime)
{
    const ui::TimePage& page = dialog->m_timePage;
    const auto enabled = [&page]
    { return page.hour->IsEnabled() + page.minute->IsEnabled() + page.date->IsEnabled() + page.now->IsEnabled(); };
    EXPECT_EQ(enabled(), 0);
    Choose(page.mode, 1);
    Settle();
    EXPECT_EQ(enabled(), 4);
    Choose(page.mode, 0);
    Settle();
    EXPECT_EQ(enabled(), 0);
}

TEST_F(OptionsNotesTest, SayUnitsAndRangesWhereNoLabelDoes)
{
    const ui::SettingsPage& page = dialog->m_settingsPage;
    EXPECT_TRUE(page.zoom->GetToolTipText().EndsWith("100 to 20000 km"));
    EXPECT_TRUE(page.zoomSlider->GetToolTipText().EndsWith("100 to 20000 km"));
    EXPECT_EQ(page.size->GetToolTipText(), "100 to 8000 pixels");
    for (const wxSpinCtrl* const alpha :
         {page.meridians.alpha, page.fieldNames.alpha, dialog->m_textPage.rows[2].text.alpha,
          dialog->m_plotSquaresPage.slots[0].alpha, dialog->m_voacapPage.appearance.alpha})
        EXPECT_TRUE(alpha->GetToolTipText().StartsWith("0 (")) << alpha->GetToolTipText();
    EXPECT_EQ(Beside(dialog->m_timePage.minute), "UTC");
    EXPECT_TRUE(std::ranges::any_of(page.rangeEvery->GetParent()->GetChildren(), [](const wxWindow* window)
                                    { return window->GetLabel() == "km" && window->IsShown(); }));
}

TEST_F(OptionsNotesTest, HaveRoomOnTheFirstPageAtTheFirstSize)
{
    Type(dialog->m_settingsPage.size, "9 00");
    Settle();
    const wxWindow* const field = dialog->m_settingsPage.compassInside;
    EXPECT_LE(field->GetPosition().x + field->GetSize().x, field->GetParent()->GetClientSize().x);
}

TEST(GuideTest, IsTheOneThatIsInstalled)
{
    const TemporaryHome home;
    const wxString program = home.Path("prefix/bin/kavmap");
    EXPECT_EQ(ui::GuideAddress(program), "https://kavmap.example/README");
    home.Write("prefix/share/doc/kavmap/user-guide.md", "# User guide\n");
    EXPECT_EQ(ui::GuideAddress(program), "file://" + home.Path("prefix/share/doc/kavmap/user-guide.md"));
}
} // namespace

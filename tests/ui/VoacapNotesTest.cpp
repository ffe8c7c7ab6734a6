#include "tests/support/OptionsFixture.h"

#include <gmock/gmock.h>

#include <wx/stattext.h>
#include <wx/uiaction.h>

namespace
{
/// What the options say about values that voacapl will not read as they are typed.
class VoacapNotes : public OptionsFixture
{
protected:
    void SetUp() override
    {
        settings.propagation.directory = home.Path("data");
        OptionsFixture::SetUp();
    }

    /// The notes that are shown, in the order of the pages.
    std::vector<std::string> Notes()
    {
        std::vector<std::string> notes;
        ForEachWindow(dialog->m_voacapPage.book,
                      [&](const wxWindow* window)
                      {
                          const auto* const text = dynamic_cast<const wxStaticText*>(window);
                          if (text && text->GetLabel().Contains("(fits: "))
                              notes.push_back(text->GetLabelText().utf8_string());
                      });
        return notes;
    }

    const ui::VoacapMainPage& Main() const { return dialog->m_voacapPage.main; }
    const ui::VoacapAntennaPage& Antenna() const { return dialog->m_voacapPage.antenna; }
};

using testing::ElementsAre;
using testing::IsEmpty;

TEST_F(VoacapNotes, AreHiddenWhileEverythingFits)
{
    EXPECT_THAT(Notes(), IsEmpty());
}

TEST_F(VoacapNotes, ComeAndGoWhileAFieldIsTyped)
{
    Type(Main().systemVariables[1], "1");
    EXPECT_THAT(Notes(), IsEmpty());
    Type(Main().systemVariables[1], "10");
    EXPECT_THAT(Notes(), ElementsAre("disturbs the fields after it\n(fits: 0 to 9.999)"));
    Type(Main().systemVariables[1], "9,5");
    EXPECT_THAT(Notes(), ElementsAre("a comma ends it: 14,2 counts as 14\n(fits: a decimal point)"));
    Type(Main().systemVariables[1], "9.5");
    EXPECT_THAT(Notes(), IsEmpty());
}

TEST_F(VoacapNotes, ComeForEveryField)
{
    for (wxTextCtrl* const field : Main().systemVariables)
    {
        const wxString before = field->GetValue();
        Type(field, "-1000");
        EXPECT_EQ(Notes().size(), 1u);
        field->SetValue(before);
    }
    for (const ui::AntennaGroup& antenna : {Antenna().transmitter, Antenna().receiver})
    {
        Type(antenna.gain, "100");
        Type(antenna.direction, "-1000");
        Type(antenna.file->GetTextCtrl(), "/home/me/itshfbc/antennas/samples/short");
        ASSERT_EQ(Notes().size(), 1u);
        EXPECT_THAT(Notes()[0], testing::MatchesRegex("Gain: disturbs the direction \\(.*\\)\n"
                                                      "Direction: .* \\(fits: -.*\\)\n"
                                                      "File: counts as none, isotropic \\(fits: .*\\)"));
        Type(antenna.gain, "0");
        Type(antenna.direction, "0");
        Type(antenna.file->GetTextCtrl(), "");
    }
    for (wxTextCtrl* const field : Antenna().layerMultipliers)
        Type(field, "10");
    EXPECT_THAT(Notes(), ElementsAre("* FoE: disturbs those after it (fits: 0 to 9.99)\n"
                                     "* FoF1: disturbs those after it (fits: 0 to 9.99)\n"
                                     "* FoF2: disturbs those after it (fits: 0 to 9.99)\n"
                                     "* FoEs: disturbs those after it (fits: 0 to 9.99)"));
}

TEST_F(VoacapNotes, ComeForTheUsersFrequencyOnlyWhereItIsChosen)
{
    Type(Main().userFrequency, "14,2");
    EXPECT_THAT(Notes(), IsEmpty());
    Choose(Main().frequency, 8);
    EXPECT_THAT(Notes(), ElementsAre("a comma ends it: 14,2 counts as 14\n(fits: a decimal point)"));
    Choose(Main().frequency, 7);
    EXPECT_THAT(Notes(), IsEmpty());
}

TEST_F(VoacapNotes, ComeForTheDirectory)
{
    Type(Main().directory->GetTextCtrl(), wxString('d', 114));
    EXPECT_THAT(Notes(), ElementsAre("leaves no result (fits: up to 113 characters)"));
}

TEST_F(VoacapNotes, AreThereForWhatIsStored)
{
    settings.propagation.sunspotNumber = 120;
    Open();
    EXPECT_THAT(Notes(), ElementsAre("SSN: the last digit is lost: 120 counts as 12 (fits: 0 to 99)"));
    home.Write("own.ini", "[Propagation]\nSSN=20\n");
    Load(home.Path("own.ini"));
    EXPECT_THAT(Notes(), IsEmpty());
}

TEST_F(VoacapNotes, MoveNothingAndFitTheirRoom)
{
    settings.propagation.directory = wxString('d', 114);
    dialog->Show();
    dialog->m_book->SetSelection(6);
    for (std::size_t page : {0u, 2u})
    {
        dialog->m_voacapPage.book->SetSelection(page);
        Settle();
        std::vector<wxRect> before;
        std::vector<wxRect> after;
        const auto take = [&](std::vector<wxRect>& rectangles)
        {
            dialog->Layout();
            Settle();
            ForEachWindow(dialog->m_voacapPage.book->GetPage(page),
                          [&](const wxWindow* window) { rectangles.push_back(window->GetRect()); });
        };
        take(before);
        for (wxTextCtrl* const field : Main().systemVariables)
            Type(field, "1,5");
        for (wxTextCtrl* const field : Antenna().layerMultipliers)
            Type(field, "1,5");
        take(after);
        EXPECT_EQ(before, after);
    }
    int notes = 0;
    ForEachWindow(dialog->m_voacapPage.book,
                  [&](const wxWindow* window)
                  {
                      if (!window->GetLabel().Contains("(fits: "))
                          return;
                      ++notes;
                      int width = 0;
                      int height = 0;
                      for (const wxString& line : wxSplit(window->GetLabel(), '\n'))
                      {
                          width = std::max(width, window->GetTextExtent(line).x);
                          height += window->GetTextExtent(line).y;
                      }
                      EXPECT_LE(width, window->GetSize().x) << window->GetLabel();
                      EXPECT_LE(height, window->GetSize().y) << window->GetLabel();
                  });
    EXPECT_EQ(notes, 7);
}

using ScreenVoacapNotes = VoacapNotes;

TEST_F(ScreenVoacapNotes, ComeWhileTheSunspotNumberIsTyped)
{
    dialog->Show();
    dialog->m_book->SetSelection(6);
    wxUIActionSimulator keyboard;
    wxSpinCtrl* const ssn = Main().ssn;
    ssn->SetFocus();
    for (int i = 0; i < 200 && !ssn->HasFocus(); ++i, wxMilliSleep(50))
        Settle();
    ASSERT_TRUE(ssn->HasFocus());
    ssn->SetSelection(-1, -1);
    keyboard.Text("15");
    Settle();
    EXPECT_THAT(Notes(), IsEmpty());
    keyboard.Text("0");
    Settle();
    EXPECT_EQ(Notes().size(), 1u);
    EXPECT_EQ(ssn->GetTextValue(), "150");
    for (int i = 0; i < 3; ++i)
        keyboard.Char(WXK_BACK);
    Settle();
    EXPECT_EQ(ssn->GetTextValue(), ""); // not yet put right
    keyboard.Text("99");
    Settle();
    EXPECT_THAT(Notes(), IsEmpty());
    EXPECT_EQ(ssn->GetValue(), 99);
}
} // namespace

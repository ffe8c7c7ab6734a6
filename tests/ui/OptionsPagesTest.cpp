#include "render/Style.h"
#include "tests/support/OptionsFixture.h"
#include "tests/support/Pictures.h"
#include "ui/options/SquaresPreview.h"

#include <gmock/gmock.h>

#include <wx/dcclient.h>
#include <wx/statbox.h>
#include <wx/stattext.h>

namespace
{
class OptionsPages : public OptionsFixture
{
protected:
    static std::vector<wxString> TitlesOf(const wxBookCtrlBase* book)
    {
        std::vector<wxString> titles;
        for (std::size_t i = 0; i < book->GetPageCount(); ++i)
            titles.push_back(book->GetPageText(i));
        return titles;
    }

    /// Every text that the dialog shows, in order.
    std::vector<wxString> Labels()
    {
        std::vector<wxString> labels;
        ForEachWindow(dialog,
                      [&](const wxWindow* window)
                      {
                          if (!window->GetLabel().empty())
                              labels.push_back(window->GetLabel());
                      });
        return labels;
    }

    std::vector<wxString> Values() const
    {
        std::vector<wxString> values;
        for (const auto& step : dialog->m_voacapPage.appearance.steps)
            values.push_back(step.value->GetValue());
        return values;
    }

    Colours Preview(std::size_t slot) const
    {
        wxBitmap picture = dialog->m_plotSquaresPage.slots[slot].preview->GetBitmap();
        return ColoursOf(picture);
    }
};

TEST_F(OptionsPages, StandInTheirOrderInAGroupWithoutATitle)
{
    EXPECT_EQ(dialog->GetTitle(), "");
    EXPECT_EQ(dialog->GetWindowStyle() & wxDEFAULT_DIALOG_STYLE, wxDEFAULT_DIALOG_STYLE);
    EXPECT_EQ(dialog->m_book->GetParent()->GetLabel(), "Options");
    EXPECT_THAT(TitlesOf(dialog->m_book),
                testing::ElementsAre("Settings", "Borders", "Text", "Source Map", "Plot Squares", "Sun/Grayline",
                                     "Voacap", "Time", "Home"));
    EXPECT_THAT(TitlesOf(dialog->m_voacapPage.book), testing::ElementsAre("Main", "Appearance", "Antenna"));
}

TEST_F(OptionsPages, ShowTheirTextsAsTheyStand)
{
    const std::vector<wxString> labels = Labels();
    for (const char* const text :
         {"Zoom",
          "Size of map (in pixels)",
          "Compass in/outside",
          "Plot",
          "Lines\nColours",
          "Line Width",
          "Plot Text",
          "Text Colour",
          "Font",
          "Meridians",
          "Radials    ",
          "Range Circles ",
          "Every",
          "Legend",
          "Degs",
          "File to plot",
          "Alignment",
          "Collision\ndetect",
          "Mapfile to plot",
          "Squares to plot (File 1)",
          "Squares to plot (File 2)",
          "Border Colour",
          "Fill Colour",
          "The file to plot is an ordinary textfile with locators one per row.\nDefault extension is .log",
          "Plot Grayline",
          "Grayzone width degrees",
          "Gradient greyzone",
          "Darkening greyzone",
          "Darkening night",
          "Plot propagation",
          "Propagation Engine",
          "SSN",
          "Grid",
          "Icepac/Voacap directory",
          "Tx Pwr",
          "Frequency",
          "User Fq MHz",
          "System Variables",
          "Man Made Noise (-dBW/Hz)",
          "Minimum Takeoff Angle (deg)",
          "Required Circuit Reliability (%)",
          "Required S/N Ratio (dB)",
          "Multipath Pwr Tolerance (dB)",
          "Max Tolerable Multipath Delay (mS)",
          "Use external vg1/ig1file as input",
          "Colour and transparency",
          "Parameter",
          "Auto level",
          "Plot units in grey scale",
          "Draw Legend",
          "Transmitter antenna",
          "Receiver Antenna",
          "Gain (dBi) or\nDesign fq (MHz)",
          "Direction (degs)",
          "Ionospheric parameters",
          "Layer Multipliers",
          "* FoE",
          "* FoF1",
          "* FoF2",
          "* FoEs",
          "This time affects both the sun/grayline\nand the Voacap features.",
          "Type",
          "Hour",
          "Minute",
          "Now!",
          "Latitude",
          "Decimal (N+ / S-)",
          "Deg",
          "Min",
          "Sec",
          "N/S",
          "<--",
          "Longitude",
          "Decimal (E+ / W-)",
          "E/W",
          "Locator",
          "Lat/Lon from Loc",
          "Loc from Lat/Lon",
          "Kavdex Homepage",
          "Load Config",
          "Save Config"})
        EXPECT_THAT(labels, testing::Contains(wxString(text)));
    EXPECT_THAT(labels,
                testing::Contains(testing::ResultOf([](const wxString& label)
                                                    { return label.EndsWith("This is used if no other is checked."); },
                                                    true)));
    EXPECT_THAT(labels, testing::Contains(testing::ResultOf(
                            [](const wxString& label)
                            {
                                return label.StartsWith("Please note that the source maps\nhas to be in "
                                                        "equirectangular projection. \nIf the source map is 360 "
                                                        "pixels wide and \n180 pixels high then each pixel represent "
                                                        "\n1 degree east/west and 1 degree \n");
                            },
                            true)));
}

TEST_F(OptionsPages, FitOnASmallScreen)
{
    dialog->Show();
    EXPECT_GE(dialog->GetSize().x, 821);
    EXPECT_GE(dialog->GetSize().y, 476);
    EXPECT_LE(dialog->GetSize().x, 1024);
    EXPECT_LE(dialog->GetSize().y, 768);
}

TEST_F(OptionsPages, CutNothingOff)
{
    dialog->Show();
    const auto expectWholePages = [&](wxBookCtrlBase* book)
    {
        for (std::size_t i = 0; i < book->GetPageCount(); ++i)
        {
            book->SetSelection(i);
            Settle();
            const wxWindow* const page = book->GetPage(i);
            const wxSize room = page->GetClientSize();
            const wxSize needed = page->GetSizer()->GetMinSize();
            EXPECT_TRUE(needed.x <= room.x && needed.y <= room.y) << book->GetPageText(i);
        }
    };
    expectWholePages(dialog->m_book);
    dialog->m_book->SetSelection(6);
    expectWholePages(dialog->m_voacapPage.book);
}

TEST_F(OptionsPages, KeepNumbersInTheirLimitsAndWrapWhereTheyShould)
{
    const ui::SettingsPage& page = dialog->m_settingsPage;
    const auto limits = [](const wxSpinCtrl* spin) { return std::pair(spin->GetMin(), spin->GetMax()); };
    EXPECT_EQ(limits(page.meridians.alpha), std::pair(0, 255));
    EXPECT_EQ(limits(page.meridians.lineWidth), std::pair(1, 10));
    EXPECT_EQ(limits(page.fieldNames.alpha), std::pair(0, 255));
    EXPECT_EQ(limits(page.rangeDegs), std::pair(0, 360));
    EXPECT_EQ(limits(dialog->m_bordersPage.rows[5].lines.lineWidth), std::pair(1, 10));
    EXPECT_EQ(limits(dialog->m_textPage.rows[2].text.alpha), std::pair(0, 255));
    EXPECT_EQ(limits(dialog->m_plotSquaresPage.slots[1].alpha), std::pair(0, 255));
    EXPECT_EQ(limits(dialog->m_graylinePage.width), std::pair(0, 15));
    EXPECT_EQ(limits(dialog->m_graylinePage.darkeningGrey), std::pair(0, 100));
    EXPECT_EQ(limits(dialog->m_graylinePage.darkeningNight), std::pair(0, 100));
    EXPECT_EQ(limits(dialog->m_voacapPage.main.ssn), std::pair(0, 200));
    EXPECT_EQ(limits(dialog->m_voacapPage.appearance.alpha), std::pair(0, 255));
    for (const wxSpinCtrl* const wraps :
         {page.rangeDegs, dialog->m_voacapPage.main.ssn, dialog->m_voacapPage.appearance.alpha})
        EXPECT_TRUE(wraps->HasFlag(wxSP_WRAP));
    EXPECT_FALSE(page.meridians.alpha->HasFlag(wxSP_WRAP));
    EXPECT_EQ(page.zoomSlider->GetMin(), 100);
    EXPECT_EQ(page.zoomSlider->GetMax(), 20000);
}

TEST_F(OptionsPages, ExplainTheSunAndTheTimeInTooltips)
{
    EXPECT_EQ(dialog->m_graylinePage.width->GetToolTipText(),
              "How wide should the greyzone be?\nHalf of this value, the sun is below\nthe horizon, half it is above.");
    EXPECT_EQ(dialog->m_graylinePage.gradient->GetToolTipText(),
              "Gradient goes from the night \nvalue to the greyzone value.");
    EXPECT_EQ(dialog->m_graylinePage.darkeningGrey->GetToolTipText(),
              "Darkening of the greyzone.\nEnd value if you use gradient.\n100 is no darkening at all.\n0 is totally "
              "black.\nMust be higher than night side.");
    EXPECT_EQ(dialog->m_graylinePage.darkeningNight->GetToolTipText(),
              "Darkening of the night side.\nStart value if you use gradient.\n100 is no darkening at all.\n0 is "
              "totally black.\nMust be lower than greyzone.");
    EXPECT_EQ(dialog->m_timePage.hour->GetToolTipText(), "Hour value if you plot \"Once\"");
    EXPECT_EQ(dialog->m_timePage.minute->GetToolTipText(), "Minute value if you plot \"Once\"");
    EXPECT_EQ(dialog->m_timePage.date->GetToolTipText(), "Date and year if you plot \"Once\"");
    EXPECT_EQ(dialog->m_timePage.now->GetToolTipText(),
              "Click here if you want to transfer\nthe time just now to the controls\nfor plotting \"Once\"");
}

TEST_F(OptionsPages, WarnWhereVoacaplReadsFewerDigits)
{
    const ui::VoacapMainPage& main = dialog->m_voacapPage.main;
    const ui::VoacapAntennaPage& antenna = dialog->m_voacapPage.antenna;
    EXPECT_EQ(main.ssn->GetToolTipText(), "voacapl reads two digits:\n120 counts as 12.");
    EXPECT_EQ(main.systemVariables[1]->GetToolTipText(),
              "Below 10; from there on voacapl\nreads the fields after it wrongly.");
    EXPECT_EQ(main.systemVariables[2]->GetToolTipText(),
              "Below 100; from there on voacapl\nreads the fields after it wrongly.");
    EXPECT_EQ(antenna.receiver.gain->GetToolTipText(), "0 to 9.9; otherwise voacapl\nreads the direction wrongly.");
    EXPECT_EQ(antenna.receiver.direction->GetToolTipText(), "voacapl reads two digits:\n270 counts as 27.");
    for (const wxTextCtrl* field : {main.systemVariables[0], antenna.transmitter.gain, antenna.transmitter.direction})
        EXPECT_EQ(field->GetToolTipText(), "");
}

TEST_F(OptionsPages, StoreWhiteWithOneStepLessBlue)
{
    dialog->m_settingsPage.meridians.colour->SetColour(*wxWHITE);
    ClickOk();
    EXPECT_EQ(ValueIn(home.WorkingFile(), "Meridians/Colour"), "16711679");
}

TEST_F(OptionsPages, ReadTheZoomFromTheFieldBesideTheSlider)
{
    const ui::SettingsPage& page = dialog->m_settingsPage;
    page.zoomSlider->SetValue(5000);
    Send(wxEVT_SLIDER, page.zoomSlider);
    EXPECT_EQ(page.zoom->GetValue(), "5000");
    Type(page.zoom, "50");
    EXPECT_EQ(page.zoomSlider->GetValue(), 100);
    Type(page.zoom, "99999");
    EXPECT_EQ(page.zoomSlider->GetValue(), 20000);
    Type(page.zoom, "7500");
    EXPECT_EQ(page.zoomSlider->GetValue(), 7500);
    ClickOk();
    EXPECT_EQ(settings.zoom, 7500);
}

TEST_F(OptionsPages, LeaveSettingsAloneWhoseTextIsNoNumber)
{
    Type(dialog->m_settingsPage.zoom, "far");
    Type(dialog->m_settingsPage.size, "900px");
    Type(dialog->m_settingsPage.rangeEvery, "");
    Type(dialog->m_homePage.latitude.decimal, "-.");
    Type(dialog->m_homePage.longitude.decimal, "nan");
    ClickOk();
    EXPECT_EQ(settings.zoom, 20000);
    EXPECT_EQ(settings.size, 900);
    EXPECT_EQ(settings.rangeCircles.distanceKm, 2500);
    EXPECT_EQ(settings.centreLat, 55.6875);
    EXPECT_EQ(settings.centreLon, 12.625);
    EXPECT_TRUE(dialogs.messages.empty());
}

TEST_F(OptionsPages, ShowTheColourScaleOfTheChosenParameter)
{
    const ui::VoacapAppearancePage& page = dialog->m_voacapPage.appearance;
    EXPECT_THAT(Values(),
                testing::ElementsAre("-93", "-103", "-109", "-115", "-121", "-127", "-133", "-139", "-145", "-151"));
    EXPECT_EQ(page.steps[0].colour->GetColour(), *wxRED);
    Choose(page.parameter, 3);
    EXPECT_THAT(Values(), testing::ElementsAre("0.9", "0.8", "0.7", "0.6", "0.5", "0.4", "0.3", "0.2", "0.1", "0.01"));
    EXPECT_EQ(page.steps[0].colour->GetColour(), wxColour(255, 90, 90));
}

TEST_F(OptionsPages, ExplainTheParametersInTheirWords)
{
    const char* const texts[] = {"Could be translated to S-units. S9+10dB = -93 dBW\nS9 = -103 dBW, S8 = -109 dBW\n"
                                 "S7 = -115 dBW, S6 = -121 dBW\nS5 = -127 dBW, S4 = -133 dBW\n"
                                 "S3 = -139 dBW, S2 = -145 dBW\nS1 = -151 dBW",
                                 "SNR\nMedian signal-to-noise ratio (dB)",
                                 "The MUF is defined here as the median maximum usable\nfrequency for a given "
                                 "ionospheric path, month,\nSSN and hour",
                                 "Reliability\nTime availability, % time SNR exceeds required SNR\n"
                                 "Time availability   SNR > Req SNR\n0 to 1.0 where 1.0 is 100% reliability."};
    wxTextCtrl* const explanation = dialog->m_voacapPage.appearance.explanation;
    wxSize largest;
    for (int i = 0; i < 4; ++i)
    {
        Choose(dialog->m_voacapPage.appearance.parameter, i);
        EXPECT_EQ(explanation->GetValue(), texts[i]);
        largest.IncTo(wxClientDC(explanation).GetMultiLineTextExtent(texts[i]));
    }
    // Room for the longest of them.
    EXPECT_EQ(explanation->GetMinSize(), largest + wxSize(24, 24));
    EXPECT_TRUE(explanation->HasFlag(wxTE_MULTILINE) && explanation->HasFlag(wxTE_NO_VSCROLL));
}

TEST_F(OptionsPages, KeepWhatWasTypedIntoAScaleThatIsNoLongerShown)
{
    const ui::VoacapAppearancePage& page = dialog->m_voacapPage.appearance;
    Type(page.steps[9].value, "-160");
    page.steps[9].colour->SetColour(*wxWHITE);
    Choose(page.parameter, 2);
    Type(page.steps[0].value, "31");
    Choose(page.parameter, 0);
    EXPECT_EQ(page.steps[9].value->GetValue(), "-160");
    ClickOk();
    EXPECT_EQ(ValueIn(home.WorkingFile(), "Propagation/S01Value"), "-160");
    EXPECT_EQ(ValueIn(home.WorkingFile(), "Propagation/S1Colour"), "16711679");
    EXPECT_EQ(ValueIn(home.WorkingFile(), "Propagation/MUF10Value"), "31");
}

TEST_F(OptionsPages, PutTheTimeJustNowIntoTheControls)
{
    const Clock before = SetClock([]() -> std::time_t { return 1709251196; }); // 2024-02-29 23:59:56 UTC
    Click(dialog->m_timePage.now);
    SetClock(before);
    ClickOk();
    EXPECT_EQ(settings.greyzone.once, (UtcTime{2024, 1, 29, 23, 59, 0}));
}

TEST_F(OptionsPages, PreviewTheSquaresAtOnce)
{
    const ui::PlotSquaresPage::Slot& slot = dialog->m_plotSquaresPage.slots[0];
    PlotSquaresSlot style = settings.plotSquares[0];
    const auto expectPreview = [&]
    {
        wxBitmap expected = ui::SquaresPreview(style);
        EXPECT_TRUE(SamePicture(Preview(0), ColoursOf(expected)));
    };
    expectPreview();
    const Colours first = Preview(0);
    slot.stipple->SetSelection(style.stipple = 0);
    Send(wxEVT_CHOICE, slot.stipple);
    expectPreview();
    EXPECT_FALSE(SamePicture(Preview(0), first));
    slot.alpha->SetValue(static_cast<int>(style.alpha = 255));
    Send(wxEVT_SPINCTRL, slot.alpha);
    expectPreview();
    slot.fillColour->SetColour(wxColour(1, 2, 3));
    style.fillColour = 1 + 256 * 2 + 65536 * 3;
    Send(wxEVT_COLOURPICKER_CHANGED, slot.fillColour);
    expectPreview();
    slot.borderColour->SetColour(wxColour(250, 251, 252));
    style.borderColour = 250 + 256 * 251 + 65536 * 252;
    Send(wxEVT_COLOURPICKER_CHANGED, slot.borderColour);
    expectPreview();
}

TEST_F(OptionsPages, PreviewSquaresBlendedOntoTheMap)
{
    PlotSquaresSlot style;
    style.fillColour = 200;   // R 200
    style.borderColour = 100; // R 100
    style.alpha = 0;
    wxBitmap bare = ui::SquaresPreview(style);
    style.alpha = 255;
    wxBitmap opaque = ui::SquaresPreview(style);
    EXPECT_EQ(bare.GetSize(), wxSize(64, 64));
    const Colours map = ColoursOf(bare);
    const Colours drawn = ColoursOf(opaque);
    int fill = 0;
    int border = 0;
    for (std::size_t y = 0; y < 64; ++y)
        for (std::size_t x = 0; x < 64; ++x)
        {
            fill += drawn[y][x] == render::OpaquePixel(199, 0, 0); // 200 * 255 / 256
            border += drawn[y][x] == render::OpaquePixel(99, 0, 0);
            EXPECT_TRUE(drawn[y][x] == map[y][x] || (drawn[y][x] & 0xFFFF) == 0);
        }
    EXPECT_GT(fill, 1000);
    EXPECT_GT(border, 150);
}

TEST_F(OptionsPages, BrowseForFiles)
{
    dialogs.chosenPath = home.Write("sub/coast.pnt", "");
    wxFilePickerCtrl* const picker = dialog->m_bordersPage.rows[0].file;
    Click(picker->GetPickerCtrl());
    EXPECT_EQ(dialogs.fileDialogs[0], "Select a file");
    EXPECT_EQ(dialogs.fileDialogs[3], "pnt files (*.pnt)|*.pnt|All files(*.*)|*.*");
    EXPECT_EQ(picker->GetTextCtrl()->GetValue(), dialogs.chosenPath);
    ClickOk();
    EXPECT_EQ(settings.borders[0].file, dialogs.chosenPath);
}

TEST_F(OptionsPages, TakeAFileAwayWhenItsNameIsCleared)
{
    wxTextCtrl* const name = dialog->m_bordersPage.rows[0].file->GetTextCtrl();
    Type(name, "");
    wxFocusEvent leave(wxEVT_KILL_FOCUS, name->GetId());
    leave.SetEventObject(name);
    name->ProcessWindowEvent(leave);
    ClickOk();
    EXPECT_EQ(settings.borders[0].file, "");
}

TEST_F(OptionsPages, OpenLinksWithoutABrowserInSilence)
{
    wxLogBuffer log;
    wxLog* const before = wxLog::SetActiveTarget(&log);
    wxString path;
    wxGetEnv("PATH", &path);
    wxSetEnv("PATH", home.Path("nothing"));
    for (wxHyperlinkCtrl* const link : {dialog->m_homePage.link, dialog->m_voacapPage.main.link})
    {
        wxHyperlinkEvent click(link, link->GetId(), link->GetURL());
        link->ProcessWindowEvent(click);
    }
    wxSetEnv("PATH", path);
    wxLog::SetActiveTarget(before);
    EXPECT_EQ(log.GetBuffer(), "");
    EXPECT_TRUE(dialogs.messages.empty());
}
} // namespace

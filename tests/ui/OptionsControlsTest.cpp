#include "tests/support/OptionsFixture.h"
#include "tests/support/OptionsListing.h"

#include <gmock/gmock.h>

#include <wx/dirdlg.h>

#include <set>

namespace
{
using Listing = std::vector<wxString>;

Listing operator+(Listing one, const Listing& other)
{
    one.insert(one.end(), other.begin(), other.end());
    return one;
}

Listing operator*(int times, const Listing& block)
{
    Listing all;
    for (int i = 0; i < times; ++i)
        all = all + block;
    return all;
}

/// The dialog before it shows any settings.
class BareOptions : public Options
{
public:
    using Options::m_book;
    using Options::m_loadConfig;
    using Options::m_voacapPage;
    using Options::Options;
};

class OptionsControls : public testing::Test
{
protected:
    void TearDown() override { dialog->Destroy(); }

    /// What a page shows, in the order of reading. Texts that are not expected may stand between: notes.
    static Listing ListingOf(const wxWindow* page, const Listing& expected)
    {
        Listing listing;
        for (wxWindow* const control : ControlsOf(page))
        {
            const wxString description = Description(control);
            const bool isNote = dynamic_cast<wxStaticText*>(control) &&
                                std::find(expected.begin(), expected.end(), description) == expected.end();
            if (!isNote)
                listing.push_back(description);
        }
        return listing;
    }

    void ExpectPage(std::size_t page, const Listing& expected) const
    {
        EXPECT_EQ(ListingOf(dialog->m_book->GetPage(page), expected), expected);
    }
    void ExpectInnerPage(std::size_t page, const Listing& expected) const
    {
        EXPECT_EQ(ListingOf(dialog->m_voacapPage.book->GetPage(page), expected), expected);
    }

    const TemporaryHome home;
    BareOptions* dialog = new BareOptions(nullptr);
};

const Listing kLines{"check ", "colour", "number 0..255 0", "number 1..10 1"};
const Listing kTexts{"check ", "colour", "font", "number 0..255 0"};

TEST_F(OptionsControls, OfTheSettings)
{
    ExpectPage(0, Listing{"label Zoom", "slider 100..20000 20000, steps 100 1000", "text 20000",
                          "label Size of map (in pixels)", "text 900", "check Compass in/outside", "label Plot",
                          "label Lines\nColours", "label Alpha", "label Line Width", "label Plot Text",
                          "label Text Colour", "label Font", "label Alpha", "label Meridians"} +
                      kLines + Listing{"label Fields"} + kLines + kTexts + Listing{"label Squares"} + kLines + kTexts +
                      Listing{"label Compass"} + kLines + kTexts + Listing{"label Radials    "} + kLines +
                      Listing{"list 5 deg Radials|10 deg Radials|15 deg Radials|30 deg Radials|45 deg Radials #0",
                              "label Range Circles "} +
                      kLines +
                      Listing{"label Every", "text 2500", "check Legend", "label Degs", "number 0..360 around 0"});
}

TEST_F(OptionsControls, OfTheBorders)
{
    ExpectPage(1, Listing{"label Plot", "label Colour", "label Alpha", "label Line Width", "label File to plot"} +
                      6 * (kLines + Listing{"file "}));
}

TEST_F(OptionsControls, OfTheTexts)
{
    ExpectPage(
        2, Listing{"label Plot", "label Colour", "label Alpha", "label Font", "label File to plot", "label Alignment"} +
               3 * Listing{"check ", "colour", "number 0..255 0", "font", "file small ",
                           "list Center|Left|Right|Top|Bottom|Center with dot|Left with dot|Right with dot|Top "
                           "with dot|Bottom with dot #0",
                           "check Collision\ndetect"});
}

TEST_F(OptionsControls, OfTheSourceMaps)
{
    ExpectPage(3, {"label Plot", "label Mapfile to plot", "check ", "file ", "check ", "file ",
                   "label Built-in map: Natural Earth\nThis is used if no other is checked.",
                   "label Please note that the source maps\nhas to be in equirectangular projection. \nIf the source "
                   "map is 360 pixels wide and \n180 pixels high then each pixel represent \n1 degree east/west and 1 "
                   "degree \nnorth/south. If it is 720 pixels wide and \n360 pixels high then each pixel represent "
                   "\nhalf a degree, and so on."});
}

TEST_F(OptionsControls, OfThePlottedSquares)
{
    const Listing slot{"check Plot",
                       "file ",
                       "list Solid|Diagonal 1|Cross Diagonal|Diagonal 2|Cross|Horizontal|Vertical #0",
                       "label Alpha",
                       "number 0..255 0",
                       "label Border Colour",
                       "colour",
                       "label Fill Colour",
                       "colour",
                       "picture 64 x 64"};
    ExpectPage(4, Listing{"group Squares to plot (File 1)"} + slot + Listing{"group Squares to plot (File 2)"} + slot +
                      Listing{"label The file to plot is an ordinary textfile with locators one per row.\nDefault "
                              "extension is .log"});
}

TEST_F(OptionsControls, OfTheSun)
{
    ExpectPage(5, {"check Plot Grayline", "label Grayzone width degrees", "number 0..15 0", "check Gradient greyzone",
                   "label Darkening greyzone", "number 0..100 0", "label Darkening night", "number 0..100 0"});
}

TEST_F(OptionsControls, OfThePropagation)
{
    ExpectInnerPage(0, {"check Plot propagation",
                        "label Propagation Engine",
                        "list Icepac|Voacap #0",
                        "label SSN",
                        "number 0..200 around 0",
                        "label Grid",
                        "list 18 x 18|36 x 36|54 x 54|72 x 72|90 x 90|108 x 108|126 x 126 #0",
                        "label Icepac/Voacap directory",
                        "folder ",
                        "label Tx Pwr",
                        "list 1 W|10 W|100 W|250 W|500 W|1 kW #0",
                        "radio Frequency: 3.5 MHz|7.0 MHz|10.1 MHz|14.0 MHz|18.1 MHz|21.0 MHz|24.9 MHz|28 MHz|User "
                        "#0, 3 columns",
                        "label User Fq MHz",
                        "text ",
                        "group System Variables",
                        "label Man Made Noise (-dBW/Hz)",
                        "text ",
                        "label Minimum Takeoff Angle (deg)",
                        "text ",
                        "label Required Circuit Reliability (%)",
                        "text ",
                        "label Required S/N Ratio (dB)",
                        "text ",
                        "label Multipath Pwr Tolerance (dB)",
                        "text ",
                        "label Max Tolerable Multipath Delay (mS)",
                        "text ",
                        "link VOACAP https://www.voacap.com/",
                        "check Use external vg1/ig1file as input",
                        "file "});
}

TEST_F(OptionsControls, OfTheAppearanceOfThePropagation)
{
    ExpectInnerPage(1, Listing{"group Colour and transparency", "radio Parameter: SDBW|SNR|MUF|Rel #0, 1 columns"} +
                           10 * Listing{"colour", "text "} +
                           Listing{"reading ", "check Auto level", "check Plot units in grey scale", "label Alpha",
                                   "number 0..255 around 0", "check Draw Legend"});
}

TEST_F(OptionsControls, OfTheAntennas)
{
    const Listing antenna{"label Gain (dBi) or\nDesign fq (MHz)", "text ", "label Direction (degs)", "text ", "file "};
    ExpectInnerPage(2, Listing{"group Transmitter antenna"} + antenna + Listing{"group Receiver Antenna"} + antenna +
                           Listing{"group Ionospheric parameters", "label Layer Multipliers", "label * FoE", "text ",
                                   "label * FoF1", "text ", "label * FoF2", "text ", "label * FoEs", "text "});
}

TEST_F(OptionsControls, OfTheTime)
{
    ExpectPage(7, {"label This time affects both the sun/grayline\nand the Voacap features.",
                   "radio Type: Real time|Once #0, 2 columns", "label Hour",
                   "list 00|01|02|03|04|05|06|07|08|09|10|11|12|13|14|15|16|17|18|19|20|21|22|23 #0", "label Minute",
                   "list 00|01|02|03|04|05|06|07|08|09|10|11|12|13|14|15|16|17|18|19|20|21|22|23|24|25|26|27|28|29|30|"
                   "31|32|33|34|35|36|37|38|39|40|41|42|43|44|45|46|47|48|49|50|51|52|53|54|55|56|57|58|59 #0",
                   "calendar", "button Now!"});
}

TEST_F(OptionsControls, OfTheHome)
{
    const auto position =
        [](const wxString& name, const wxString& decimal, const wxString& sides, const wxString& entries)
    {
        return Listing{"label " + decimal,
                       "label Deg",
                       "label Min",
                       "label Sec",
                       "label " + sides,
                       "label " + name,
                       "text  of 0123456789-+.",
                       "button <-- narrow",
                       "text  of 0123456789",
                       "text  of 0123456789",
                       "text  of 0123456789",
                       "list " + entries + " #0"};
    };
    ExpectPage(8, position("Latitude", "Decimal (N+ / S-)", "N/S", "N|S") +
                      position("Longitude", "Decimal (E+ / W-)", "E/W", "E|W") +
                      Listing{"label Locator", "text ", "button Lat/Lon from Loc", "button Loc from Lat/Lon",
                              "link Kavdex Homepage https://kavmap.example/README"});
}

TEST_F(OptionsControls, BelowThePages)
{
    Listing buttons;
    for (wxWindow* const child : dialog->m_loadConfig->GetParent()->GetChildren())
        if (dynamic_cast<wxButton*>(child))
            buttons.push_back(Description(child));
    EXPECT_THAT(buttons,
                testing::ElementsAre("button Load Config", "button Save Config", "button &OK", "button &Cancel"));
    EXPECT_EQ(dialog->GetDefaultItem(), dialog->FindWindow(wxID_OK));
}

TEST_F(OptionsControls, FollowEachOtherToTheRightOrDownwards)
{
    dialog->Show();
    const auto outOfOrder = [](const wxWindow* page)
    {
        wxString pairs;
        const wxWindow* before = nullptr;
        for (const wxWindow* const control : ControlsOf(page))
        {
            // Texts stand wherever there is room; a group holds what follows.
            if (dynamic_cast<const wxStaticText*>(control) ||
                (dynamic_cast<const wxStaticBox*>(control) && !dynamic_cast<const wxRadioBox*>(control)))
                continue;
            if (before)
            {
                const wxRect a = RectOf(before);
                const wxRect b = RectOf(control);
                if (b.x <= a.GetRight() && b.y <= a.GetBottom())
                    pairs << Description(const_cast<wxWindow*>(before)) << ", "
                          << Description(const_cast<wxWindow*>(control)) << '\n';
            }
            before = control;
        }
        return pairs;
    };
    // A slider takes its place some time after the dialog is shown.
    const auto expectReadingOrder = [&outOfOrder](const wxWindow* page)
    { EXPECT_TRUE(AwaitEvents([&] { return outOfOrder(page).empty(); })) << outOfOrder(page); };
    const auto expectOrderOnPages = [&](wxBookCtrlBase* book)
    {
        for (std::size_t i = 0; i < book->GetPageCount(); ++i)
        {
            book->SetSelection(i);
            book->GetPage(i)->Layout();
            expectReadingOrder(book->GetPage(i));
        }
    };
    expectOrderOnPages(dialog->m_book);
    dialog->m_book->SetSelection(6);
    expectOrderOnPages(dialog->m_voacapPage.book);
}

/// Notes what browsing offers, before the dialogs are answered.
class BrowsingNotes : public wxModalDialogHook
{
public:
    BrowsingNotes() { Register(); }
    ~BrowsingNotes() override { Unregister(); }

    Listing offered;

protected:
    int Enter(wxDialog* dialog) override
    {
        if (const auto* files = dynamic_cast<wxFileDialog*>(dialog))
            offered.push_back(files->GetMessage() + " " + files->GetWildcard() + Flags(*files));
        if (const auto* folders = dynamic_cast<wxDirDialog*>(dialog))
            offered.push_back(folders->GetMessage() + (folders->HasFlag(wxDD_DIR_MUST_EXIST) ? ", existing" : ", any"));
        return wxID_CANCEL;
    }

private:
    static wxString Flags(const wxFileDialog& files)
    {
        wxString flags;
        for (const auto& [flag, name] :
             {std::pair(wxFD_OPEN, ", open"), std::pair(wxFD_SAVE, ", save"),
              std::pair(wxFD_FILE_MUST_EXIST, ", existing"), std::pair(wxFD_OVERWRITE_PROMPT, ", asking"),
              std::pair(wxFD_CHANGE_DIR, ", staying there")})
            if (files.HasFlag(flag))
                flags += name;
        return flags;
    }
};

using OptionsBrowsing = OptionsFixture;

TEST_F(OptionsBrowsing, OffersTheKindsOfFilesThatAFieldTakes)
{
    BrowsingNotes notes;
    const auto browseOn = [&](const wxWindow* page)
    {
        for (wxWindow* const control : ControlsOf(page))
            if (auto* const picker = dynamic_cast<wxFileDirPickerCtrlBase*>(control))
                Click(picker->GetPickerCtrl());
    };
    for (const std::size_t page : {1u, 2u, 3u, 4u})
        browseOn(dialog->m_book->GetPage(page));
    for (const std::size_t page : {0u, 2u})
        browseOn(dialog->m_voacapPage.book->GetPage(page));
    const Listing any{"Select a file *.*, open, existing"};
    const Listing expected =
        6 * Listing{"Select a file pnt files (*.pnt)|*.pnt|All files(*.*)|*.*, open, existing"} +
        3 * Listing{"Select a file dat files (*.dat)|*.dat|All files (*.*)|*.*, open, existing"} + 4 * any +
        Listing{"Select a folder, existing",
                "Select a file vg1 files (*.vg1)|*.vg1|ig1 files (*.ig1)|*.ig1|All files(*.*)|*.*, open, "
                "existing"} +
        2 * any;
    EXPECT_EQ(notes.offered, expected);
}

TEST_F(OptionsBrowsing, OfSettingsAsksBeforeItReplacesAFileAndStaysInItsDirectory)
{
    BrowsingNotes notes;
    Click(dialog->m_loadConfig);
    Click(dialog->m_saveConfig);
    EXPECT_THAT(notes.offered, testing::ElementsAre(
                                   "Choose a configuration file INI files (*.ini)|*.ini, open, existing, staying there",
                                   "Save a configuration file INI files (*.ini)|*.ini, save, asking, staying there"));
}
} // namespace

#include "config/SettingKeys.h"
#include "tests/support/OptionsFixture.h"

#include <map>
#include <set>

namespace
{
/// Changes every control of the dialog and notes what the settings file must then hold.
class EveryControl : public OptionsFixture
{
protected:
    void Change(const wxString& key, wxCheckBox* box)
    {
        box->SetValue(!box->GetValue());
        expected[key] = box->GetValue() ? "1" : "0";
    }

    void Change(const wxString& key, wxSpinCtrl* spin)
    {
        const int range = spin->GetMax() - spin->GetMin();
        const int value = spin->GetMin() + (spin->GetValue() - spin->GetMin() + 1 + counter++ % (range - 1)) % range;
        spin->SetValue(value == spin->GetValue() ? spin->GetMax() : value);
        expected[key] = wxString::Format("%d", spin->GetValue());
    }

    void Change(const wxString& key, wxColourPickerCtrl* picker)
    {
        const int n = counter++;
        picker->SetColour(wxColour(static_cast<unsigned char>(n), 77, 130));
        expected[key] = wxString::Format("%d", n % 256 + 256 * 77 + 65536 * 130);
    }

    void Change(const wxString& key, wxFontPickerCtrl* picker)
    {
        const wxFont font(8 + counter++ % 20, wxFONTFAMILY_DEFAULT, wxFONTSTYLE_ITALIC, wxFONTWEIGHT_BOLD);
        picker->SetSelectedFont(font);
        expected[key] = font.GetNativeFontInfoUserDesc();
    }

    void Change(const wxString& key, wxFileDirPickerCtrlBase* picker)
    {
        picker->GetTextCtrl()->SetValue(expected[key] = wxString::FromUTF8("some/å ö 地図 ") << counter++);
    }

    void Change(const wxString& key, wxItemContainer* list) { ChangeList(key, list); }
    void Change(const wxString& key, wxRadioBox* list) { ChangeList(key, list); }

    void ChangeNumber(const wxString& key, wxTextCtrl* field)
    {
        Type(field, expected[key] = wxString::Format("%d", 1000 + counter++));
    }

    void ChangeText(const wxString& key, wxTextCtrl* field)
    {
        Type(field, expected[key] = wxString::Format("-%d.50 $HOME \"x\\", counter++));
    }

    void ChangeLines(const wxString& prefix, const wxString& number, const ui::LineRow& row)
    {
        Change(prefix + "Show" + number, row.show);
        Change(prefix + "Colour" + number, row.colour);
        Change(prefix + "Alpha" + number, row.alpha);
        Change(prefix + "LineWidth" + number, row.lineWidth);
    }

    void ChangeTexts(const wxString& prefix, const wxString& show, const wxString& number, const ui::TextStyleRow& row)
    {
        Change(prefix + show + number, row.show);
        Change(prefix + "FontColour" + number, row.colour);
        Change(prefix + "Font" + number, row.font);
        Change(prefix + "FontAlpha" + number, row.alpha);
    }

    void ChangeSettingsPage()
    {
        const ui::SettingsPage& page = dialog->m_settingsPage;
        ChangeNumber("Zoom", page.zoom);
        ChangeNumber("Size", page.size);
        Change("Compass/InsideMap", page.compassInside);
        ChangeLines("Meridians/", "", page.meridians);
        ChangeLines("Fields/", "", page.fields);
        ChangeTexts("Fields/", "FontShow", "", page.fieldNames);
        ChangeLines("Squares/", "", page.squares);
        ChangeTexts("Squares/", "FontShow", "", page.squareNames);
        ChangeLines("Compass/", "", page.compass);
        ChangeTexts("Compass/", "FontShow", "", page.compassFigures);
        ChangeLines("Radials/", "", page.radials);
        Change("Radials/Every", page.radialsEvery);
        ChangeLines("RangeCircles/Rc", "", page.rangeCircles);
        ChangeNumber("RangeCircles/RcDist", page.rangeEvery);
        Change("RangeCircles/RcLegendShow", page.rangeLegend);
        Change("RangeCircles/RcLegendAng", page.rangeDegs);
    }

    void ChangeFilePages()
    {
        for (std::size_t i = 0; i < 6; ++i)
        {
            ChangeLines("Borders/", Number(i), dialog->m_bordersPage.rows[i].lines);
            Change("Borders/File" + Number(i), dialog->m_bordersPage.rows[i].file);
        }
        for (std::size_t i = 0; i < 3; ++i)
        {
            const ui::TextPage::Row& row = dialog->m_textPage.rows[i];
            ChangeTexts("Text/", "Show", Number(i), row.text);
            Change("Text/File" + Number(i), row.file);
            Change("Text/Align" + Number(i), row.align);
            Change("Text/Coll" + Number(i), row.avoidCollisions);
        }
        for (std::size_t i = 0; i < 2; ++i)
        {
            Change("SourceBitmap/Show" + Number(i), dialog->m_sourceMapPage.rows[i].show);
            Change("SourceBitmap/File" + Number(i), dialog->m_sourceMapPage.rows[i].file);
        }
        for (std::size_t i = 0; i < 2; ++i)
        {
            const ui::PlotSquaresPage::Slot& slot = dialog->m_plotSquaresPage.slots[i];
            Change("PlotSquares/Show" + Number(i), slot.show);
            Change("PlotSquares/File" + Number(i), slot.file);
            Change("PlotSquares/Stipple" + Number(i), slot.stipple);
            Change("PlotSquares/Alpha" + Number(i), slot.alpha);
            Change("PlotSquares/BorderColour" + Number(i), slot.borderColour);
            Change("PlotSquares/FillColour" + Number(i), slot.fillColour);
        }
    }

    void ChangeSunAndTimePages()
    {
        const ui::GraylinePage& sun = dialog->m_graylinePage;
        Change("Greyzone/Show", sun.show);
        Change("Greyzone/Width", sun.width);
        Change("Greyzone/Gradient", sun.gradient);
        Change("Greyzone/DarkeningGrey", sun.darkeningGrey);
        Change("Greyzone/DarkeningNight", sun.darkeningNight);
        const ui::TimePage& time = dialog->m_timePage;
        Change("Greyzone/Opt", time.mode);
        Change("Greyzone/CalHo", time.hour);
        Change("Greyzone/CalMi", time.minute);
        time.date->SetDate(wxDateTime(29, wxDateTime::Feb, 2012));
        expected["Greyzone/CalYr"] = "2012";
        expected["Greyzone/CalMo"] = "1";
        expected["Greyzone/CalDa"] = "29";
    }

    void ChangeVoacapMainPage()
    {
        static constexpr const char* kVariables[] = {"MMN", "MTA", "RCR", "RSN", "MPT", "MTM"};
        const ui::VoacapMainPage& page = dialog->m_voacapPage.main;
        Change("Propagation/Show", page.show);
        Change("Propagation/Engine", page.engine);
        Change("Propagation/SSN", page.ssn);
        Change("Propagation/Grid", page.grid);
        Change("Propagation/Dir", page.directory);
        Change("Propagation/TxPwr", page.txPower);
        Change("Propagation/Fq", page.frequency);
        ChangeText("Propagation/UserFq", page.userFrequency);
        for (std::size_t i = 0; i < 6; ++i)
            ChangeText(wxString("Propagation/") + kVariables[i], page.systemVariables[i]);
        Change("Propagation/ExtVg1", page.useExternalResult);
        Change("Propagation/ExtVg1File", page.externalResult);
    }

    void ChangeVoacapInnerPages()
    {
        const ui::VoacapAppearancePage& appearance = dialog->m_voacapPage.appearance;
        static constexpr const char* kParameters[] = {"S", "SNR", "MUF", "REL"};
        for (int parameter = 0; parameter < 4; ++parameter)
        {
            Choose(appearance.parameter, parameter);
            for (std::size_t i = 0; i < 10; ++i)
            {
                const wxString number = wxString::Format("%s%02zu", kParameters[parameter], 10 - i);
                const wxString units = i == 0 ? wxString("S9P") : wxString::Format("S%zu", 10 - i);
                Change("Propagation/" + (parameter == 0 ? units : number) + "Colour", appearance.steps[i].colour);
                ChangeText("Propagation/" + number + "Value", appearance.steps[i].value);
            }
        }
        expected["Propagation/Param"] = "3";
        Change("Propagation/ParamLevel", appearance.autoLevel);
        Change("Propagation/GreyScale", appearance.greyScale);
        Change("Propagation/Alpha", appearance.alpha);
        Change("Propagation/ParamLegend", appearance.legend);

        const ui::VoacapAntennaPage& antenna = dialog->m_voacapPage.antenna;
        ChangeText("Propagation/TxGain", antenna.transmitter.gain);
        ChangeText("Propagation/Tx1Dir", antenna.transmitter.direction);
        Change("Propagation/Tx1File", antenna.transmitter.file);
        ChangeText("Propagation/RxGain", antenna.receiver.gain);
        ChangeText("Propagation/Rx1Dir", antenna.receiver.direction);
        Change("Propagation/Rx1File", antenna.receiver.file);
        for (std::size_t i = 0; i < 4; ++i)
            ChangeText("Propagation/Fo" + Number(i), antenna.layerMultipliers[i]);
    }

    void ChangeHomePage()
    {
        Type(dialog->m_homePage.latitude.decimal, expected["Center pos/Lat"] = "-33.25");
        Type(dialog->m_homePage.longitude.decimal, expected["Center pos/Lon"] = "151.125");
        ChangeText("Center pos/Loc", dialog->m_homePage.locator);
    }

    void ChangeAll()
    {
        ChangeSettingsPage();
        ChangeFilePages();
        ChangeSunAndTimePages();
        ChangeVoacapMainPage();
        ChangeVoacapInnerPages();
        ChangeHomePage();
    }

    void OpenEveryPage()
    {
        for (std::size_t i = 0; i < dialog->m_book->GetPageCount(); ++i)
            dialog->m_book->SetSelection(i);
        wxBookCtrlBase* const inner = dialog->m_voacapPage.book;
        for (std::size_t i = 0; i < inner->GetPageCount(); ++i)
            inner->SetSelection(i);
        Settle();
    }

    std::map<wxString, wxString> expected;
    int counter = 3;

private:
    static wxString Number(std::size_t i) { return wxString::Format("%zu", i + 1); }

    template <class List>
    void ChangeList(const wxString& key, List* list)
    {
        const int count = static_cast<int>(list->GetCount());
        list->SetSelection((list->GetSelection() + 1) % count);
        expected[key] = wxString::Format("%d", list->GetSelection());
    }
};

/// What has no control, and why.
const std::set<wxString> kWithoutControl{
    "Propagation/ParamGrey",  // kept for old files, "Propagation/GreyScale" is what counts
    "Propagation/ParamAlpha", // kept for old files, "Propagation/Alpha" is what counts
    "DefaultIniDir/IniDir",   // remembered when a file is loaded or saved
};

TEST_F(EveryControl, IsReadBackFromTheWorkingFileAfterOk)
{
    const auto changeAll = [this]
    {
        OpenEveryPage();
        ChangeAll();
        ClickOk();
    };
    EXPECT_EQ(RunModal(changeAll), wxID_OK);
    EXPECT_TRUE(settings.resetOverlays);
    for (const auto& [key, value] : expected)
        EXPECT_EQ(ValueIn(home.WorkingFile(), key), value) << key;
    settings.ForEachSetting([&](const wxString& key, const auto&, const auto&)
                            { EXPECT_EQ(expected.count(key) + kWithoutControl.count(key), 1u) << key; });
}

TEST_F(EveryControl, ShowsAgainWhatWasStored)
{
    ChangeAll();
    ClickOk();
    const std::string file = home.Read(".Kavdex");
    Configuration reread("Kavdex");
    OpenOptions again(nullptr, reread);
    again.TransferDataFromWindow();
    reread.WriteAllTo(*OpenSettingsFile(home.Path("again.ini")));
    for (const auto& [key, value] : expected)
        EXPECT_EQ(ValueIn(home.Path("again.ini"), key), value) << key;
}

TEST_F(EveryControl, IsForgottenOnCancel)
{
    const std::string before = home.Read(".Kavdex");
    settings.WriteAllTo(*OpenSettingsFile(home.Path("before.ini")));
    const auto changeAllAndCancel = [this]
    {
        ChangeAll();
        Click(dialog->FindWindow(wxID_CANCEL));
    };
    EXPECT_EQ(RunModal(changeAllAndCancel), wxID_CANCEL);
    EXPECT_FALSE(settings.resetOverlays);
    EXPECT_EQ(home.Read(".Kavdex"), before);
    settings.WriteAllTo(*OpenSettingsFile(home.Path("after.ini")));
    EXPECT_EQ(home.Read("after.ini"), home.Read("before.ini"));
}

TEST_F(EveryControl, HasASettingAndEverySettingHasAControl)
{
    const ui::ControlBindings& bindings = dialog->m_editing.bindings;
    dialog->m_editing.draft.ForEachSetting(
        [&](const wxString& key, const auto& member, const auto&)
        {
            const bool bound = bindings.Binds(static_cast<const void*>(&member));
            EXPECT_NE(bound, kWithoutControl.count(key) == 1) << key;
        });

    const ui::HomePage& homePage = dialog->m_homePage;
    std::set<const wxWindow*> withoutSetting{dialog->m_settingsPage.zoomSlider, // the field beside it is what is read
                                             dialog->m_voacapPage.appearance.explanation};
    for (const ui::PositionRow& row : {homePage.latitude, homePage.longitude}) // the decimal field is what is read
        withoutSetting.insert({row.deg, row.min, row.sec, row.hemisphere});
    int controls = 0;
    ForEachWindow(dialog,
                  [&](wxWindow* window)
                  {
                      const bool picker = dynamic_cast<wxPickerBase*>(window->GetParent()) != nullptr;
                      const bool input = dynamic_cast<wxTextCtrl*>(window) || dynamic_cast<wxCheckBox*>(window) ||
                                         dynamic_cast<wxSpinCtrl*>(window) || dynamic_cast<wxChoice*>(window) ||
                                         dynamic_cast<wxRadioBox*>(window) || dynamic_cast<wxPickerBase*>(window) ||
                                         dynamic_cast<wxSlider*>(window) || dynamic_cast<wxCalendarCtrl*>(window);
                      if (!input || picker)
                          return;
                      ++controls;
                      EXPECT_NE(bindings.Binds(window), withoutSetting.count(window) == 1)
                          << window->GetClassInfo()->GetClassName() << " on " << window->GetParent()->GetLabel();
                  });
    EXPECT_GT(controls, 150);
}

TEST_F(EveryControl, LeftAloneKeepsItsSettingButForBlueAtItsHighest)
{
    settings.centreLat = 55.123456789;
    settings.fields.text.font = "NoSuchFace Bold 12";
    settings.borders[0].file = "a//b/../mapper.pnt";
    Open();
    settings.WriteAllTo(*OpenSettingsFile(home.Path("before.ini")));
    ClickOk();
    settings.ForEachSetting(
        [&](const wxString& key, const auto&, const auto&)
        {
            const wxString before = ValueIn(home.Path("before.ini"), key);
            long value = 0;
            const bool fullBlue = key.EndsWith("Colour") || key.Contains("FillColour") || key.Contains("BorderColour")
                                      ? before.ToLong(&value) && value >> 16 == 255
                                      : false;
            // The scales that were not shown have not been through a picker.
            const bool hiddenScale = key.Contains("SNR") || key.Contains("MUF") || key.Contains("REL");
            const wxString kept = fullBlue && !hiddenScale ? wxString::Format("%ld", value - 65536) : before;
            EXPECT_EQ(ValueIn(home.WorkingFile(), key), kept) << key;
        });
}

TEST_F(EveryControl, LeftAloneTwiceDoesNotResetTheOverlays)
{
    ClickOk(); // blue 255 becomes 254
    Open();
    settings.resetOverlays = true;
    Open();
    EXPECT_FALSE(settings.resetOverlays);
    ClickOk();
    EXPECT_FALSE(settings.resetOverlays);
}
} // namespace

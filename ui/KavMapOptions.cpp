#include "ui/KavMapOptions.h"

#include "config/SettingKeys.h"
#include "config/SettingsFile.h"
#include "render/Style.h"
#include "ui/Native.h"
#include "ui/SquaresPreview.h"

#include <wx/filedlg.h>
#include <wx/filename.h>

#include <algorithm>
#include <type_traits>

namespace
{
constexpr const char* kIniFiles = "INI files (*.ini)|*.ini";

/// A colour as its picker gives it back: that the highest blue becomes a little less is no change that one would see.
template <class T>
T AsPicked(const wxString& key, const T& value)
{
    if constexpr (std::is_same_v<T, long>)
        if (key.Contains("Colour"))
            return ui::SettingFromPicked(ColourFromSetting(value));
    return value;
}
} // namespace

KavMapOptions::KavMapOptions(wxWindow* parent, Configuration& settings)
    : Options(parent),
      m_settings(settings),
      m_scales(m_voacapPage.appearance),
      m_latitude(m_homePage.latitude, 90),
      m_longitude(m_homePage.longitude, 180),
      m_valuesAtOpening(CurrentValues())
{
    m_settings.resetOverlays = false;
    BindSettingsPage();
    BindFilePages();
    BindPlotSquaresPage();
    BindGraylinePage();
    BindVoacapMainPage(m_bindings, m_settings.propagation);
    BindVoacapAppearancePage();
    BindVoacapAntennaPage(m_bindings, m_settings.propagation);
    BindTimePage();
    BindHomePage();
    AddNotes();
    ui::native::FinishLabels(this); // with everything made that can be labelled
    WatchVoacapInput();
    TransferDataToWindow();
    // Shown, the toolkit would transfer once more.
    Bind(wxEVT_INIT_DIALOG, [](wxInitDialogEvent&) {});
}

bool KavMapOptions::TransferDataToWindow()
{
    m_bindings.TransferToWindow();
    m_latitude.FillParts();
    m_longitude.FillParts();
    ShowZoomOnSlider();
    ShowSquaresPreviews();
    ShowNotes();
    return true;
}

bool KavMapOptions::TransferDataFromWindow()
{
    m_bindings.TransferFromWindow();
    return true;
}

void KavMapOptions::OnOk(wxCommandEvent&)
{
    TransferDataFromWindow();
    m_settings.resetOverlays = CurrentValues() != m_valuesAtOpening;
    m_settings.WriteAll();
    m_settings.Flush();
    EndDialog(wxID_OK);
}

void KavMapOptions::LoadSettingsFile(wxCommandEvent&)
{
    wxFileDialog dialog(this, "Choose a configuration file", "", "", kIniFiles,
                        wxFD_OPEN | wxFD_FILE_MUST_EXIST | wxFD_CHANGE_DIR);
    if (dialog.ShowModal() != wxID_OK)
        return;
    const auto file = OpenSettingsFile(dialog.GetPath());
    if (!file)
        return;
    m_settings.ReadAllFrom(*file);
    TransferDataToWindow();
    m_settings.lastIniDirectory = wxFileName(dialog.GetPath()).GetPath();
}

void KavMapOptions::SaveSettingsFile(wxCommandEvent&)
{
    wxFileDialog dialog(this, "Save a configuration file", m_settings.lastIniDirectory, "", kIniFiles,
                        wxFD_SAVE | wxFD_OVERWRITE_PROMPT | wxFD_CHANGE_DIR);
    if (dialog.ShowModal() != wxID_OK)
        return;
    const auto file = OpenSettingsFile(dialog.GetPath());
    if (!file)
        return;
    TransferDataFromWindow();
    m_settings.WriteAllTo(*file);
    // Only now: the file carries the directory that was remembered before.
    m_settings.lastIniDirectory = wxFileName(dialog.GetPath()).GetPath();
}

void KavMapOptions::OnZoomSlider(wxCommandEvent&)
{
    m_settingsPage.zoom->ChangeValue(wxString::Format("%d", m_settingsPage.zoomSlider->GetValue()));
}

void KavMapOptions::OnZoomTyped(wxCommandEvent&)
{
    ShowZoomOnSlider();
}

void KavMapOptions::ShowZoomOnSlider()
{
    wxSlider* const slider = m_settingsPage.zoomSlider;
    long zoom = 0;
    if (m_settingsPage.zoom->GetValue().ToCLong(&zoom))
        slider->SetValue(static_cast<int>(std::clamp<long>(zoom, slider->GetMin(), slider->GetMax())));
}

void KavMapOptions::OnSquaresStyle(wxCommandEvent&)
{
    ShowSquaresPreviews();
}

void KavMapOptions::ShowSquaresPreviews()
{
    for (const ui::PlotSquaresPage::Slot& slot : m_plotSquaresPage.slots)
    {
        PlotSquaresSlot style;
        style.stipple = slot.stipple->GetSelection();
        style.borderColour = ui::SettingFromPicked(slot.borderColour->GetColour());
        style.fillColour = ui::SettingFromPicked(slot.fillColour->GetColour());
        style.alpha = slot.alpha->GetValue();
        slot.preview->SetBitmap(ui::SquaresPreview(style));
    }
}

void KavMapOptions::OnParameter(wxCommandEvent&)
{
    m_scales.ShowChosen();
}

void KavMapOptions::WatchVoacapInput()
{
    BindVoacapMainPage(m_typedFields, m_typed);
    BindVoacapAntennaPage(m_typedFields, m_typed);
    wxWindow* const pages = m_voacapPage.book;
    pages->Bind(wxEVT_TEXT, &KavMapOptions::OnVoacapInput, this);
    pages->Bind(wxEVT_RADIOBOX, &KavMapOptions::OnVoacapInput, this);
    pages->Bind(wxEVT_FILEPICKER_CHANGED, &KavMapOptions::OnVoacapInput, this);
    pages->Bind(wxEVT_DIRPICKER_CHANGED, &KavMapOptions::OnVoacapInput, this);
    // A picker keeps the events of its text to itself.
    for (wxPickerBase* const picker : std::initializer_list<wxPickerBase*>{
             m_voacapPage.main.directory, m_voacapPage.antenna.transmitter.file, m_voacapPage.antenna.receiver.file})
        picker->GetTextCtrl()->Bind(wxEVT_TEXT, &KavMapOptions::OnVoacapInput, this);
}

void KavMapOptions::OnVoacapInput(wxCommandEvent& event)
{
    event.Skip();
    ShowNotes();
}

void KavMapOptions::ShowNotes()
{
    m_typedFields.TransferFromWindow();
    const auto findings = propagation::CheckInput(m_typed);
    m_voacapPage.main.notes.Show(findings);
    m_voacapPage.antenna.notes.Show(findings);
}

void KavMapOptions::OnNow(wxCommandEvent&)
{
    const UtcTime now = UtcNow();
    m_timePage.hour->SetSelection(now.hour);
    m_timePage.minute->SetSelection(now.minute);
    ui::ShowDate(m_timePage.date, now);
}

void KavMapOptions::OnLatitudeTyped(wxCommandEvent&)
{
    m_latitude.FillParts();
}

void KavMapOptions::OnLatitudeFromDegrees(wxCommandEvent&)
{
    m_latitude.FillDecimal();
}

void KavMapOptions::OnLongitudeTyped(wxCommandEvent&)
{
    m_longitude.FillParts();
}

void KavMapOptions::OnLongitudeFromDegrees(wxCommandEvent&)
{
    m_longitude.FillDecimal();
}

void KavMapOptions::OnLatLonFromLocator(wxCommandEvent&)
{
    wxString locator = m_homePage.locator->GetValue().Upper();
    double lat = 0.0;
    double lon = 0.0;
    if (!Configuration::LocatorToLatLon(lat, lon, locator))
        return;
    m_latitude.Show(lat);
    m_longitude.Show(lon);
}

void KavMapOptions::OnLocatorFromLatLon(wxCommandEvent&)
{
    const auto lat = m_latitude.Degrees();
    const auto lon = m_longitude.Degrees();
    if (!lat || !lon)
        return;
    wxString locator = "AA11RR";
    Configuration::LatLonToLocator(locator, *lat, *lon);
    m_homePage.locator->ChangeValue(locator);
}

KavMapOptions::Values KavMapOptions::CurrentValues()
{
    Values values;
    m_settings.ForEachSetting([&values](const wxString& key, const auto& member, const auto&)
                              { values.emplace_back(AsPicked(key, member)); });
    return values;
}

#include "ui/options/KavMapOptions.h"

#include "config/SettingKeys.h"
#include "config/SettingsFile.h"
#include "render/Style.h"
#include "ui/Native.h"

#include <wx/filedlg.h>
#include <wx/filename.h>

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
    : Options(parent), m_settings(settings), m_valuesAtOpening(CurrentValues())
{
    m_settings.resetOverlays = false;
    ui::native::FinishLabels(this);
    TransferDataToWindow();
    // Shown, the toolkit would transfer once more.
    Bind(wxEVT_INIT_DIALOG, [](wxInitDialogEvent&) {});
    Bind(wxEVT_IDLE,
         [this](wxIdleEvent& event)
         {
             event.Skip();
             m_editing.notes.Update();
         });
}

bool KavMapOptions::TransferDataToWindow()
{
    m_editing.draft = m_settings;
    m_editing.bindings.TransferToWindow();
    return true;
}

bool KavMapOptions::TransferDataFromWindow()
{
    Settings& settings = m_settings;
    m_editing.draft = settings; // with what has no control
    m_editing.bindings.TransferFromWindow();
    settings = m_editing.draft;
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

KavMapOptions::Values KavMapOptions::CurrentValues()
{
    Values values;
    m_settings.ForEachSetting([&values](const wxString& key, const auto& member, const auto&)
                              { values.emplace_back(AsPicked(key, member)); });
    return values;
}

#pragma once

#include "config/Configuration.h"
#include "ui/options/Options.h"

#include <variant>
#include <vector>

/**
 * The options dialog: the one editor of the settings, for one use.
 *
 * OK puts the controls into the settings and writes the working file; `resetOverlays` tells whether any setting differs
 * from what it was when the dialog was made. Cancel drops the controls; what "Load Config" or "Save Config" have put
 * into the settings stays in memory.
 */
class KavMapOptions : public Options
{
public:
    /// @param[in] settings must outlive the dialog.
    KavMapOptions(wxWindow* parent, Configuration& settings);

    /// Every control from the settings.
    bool TransferDataToWindow() override;

    /// Every setting from the controls.
    bool TransferDataFromWindow() override;

protected:
    void OnOk(wxCommandEvent& event) override;
    void LoadSettingsFile(wxCommandEvent& event) override;
    void SaveSettingsFile(wxCommandEvent& event) override;

private:
    using Values = std::vector<std::variant<double, long, int, bool, wxString>>;

    Values CurrentValues();

    Configuration& m_settings;
    Values m_valuesAtOpening;
};

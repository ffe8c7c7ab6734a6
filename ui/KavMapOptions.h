#pragma once

#include "config/Configuration.h"
#include "ui/ControlBindings.h"
#include "ui/FieldNotes.h"
#include "ui/Options.h"
#include "ui/PositionFields.h"
#include "ui/ScaleEditor.h"

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

    /// Which control edits which setting.
    const ui::ControlBindings& Bindings() const { return m_bindings; }

protected:
    void OnOk(wxCommandEvent& event) override;
    void LoadSettingsFile(wxCommandEvent& event) override;
    void SaveSettingsFile(wxCommandEvent& event) override;
    void OnZoomSlider(wxCommandEvent& event) override;
    void OnZoomTyped(wxCommandEvent& event) override;
    void OnSquaresStyle(wxCommandEvent& event) override;
    void OnParameter(wxCommandEvent& event) override;
    void OnNow(wxCommandEvent& event) override;
    void OnLatitudeTyped(wxCommandEvent& event) override;
    void OnLatitudeFromDegrees(wxCommandEvent& event) override;
    void OnLongitudeTyped(wxCommandEvent& event) override;
    void OnLongitudeFromDegrees(wxCommandEvent& event) override;
    void OnLatLonFromLocator(wxCommandEvent& event) override;
    void OnLocatorFromLatLon(wxCommandEvent& event) override;

private:
    using Values = std::vector<std::variant<double, long, int, bool, wxString>>;

    Values CurrentValues();
    void ShowZoomOnSlider();
    void ShowSquaresPreviews();

    // What voacapl will not read as it is typed.
    void WatchVoacapInput();
    void OnVoacapInput(wxCommandEvent& event);
    void ShowNotes();

    // One table for each page: which control edits which setting.
    void BindSettingsPage();
    void BindFilePages();
    void BindPlotSquaresPage();
    void BindGraylinePage();
    void BindVoacapMainPage(ui::ControlBindings& bindings, PropagationSettings& p);
    void BindVoacapAppearancePage();
    void BindVoacapAntennaPage(ui::ControlBindings& bindings, PropagationSettings& p);
    void BindTimePage();
    void BindHomePage();
    void BindLines(const ui::LineRow& row, LineStyle& lines);
    void BindText(const ui::TextStyleRow& row, TextStyle& text);
    static void BindAntenna(ui::ControlBindings& bindings, const ui::AntennaGroup& group, AntennaSettings& antenna);

    // What is said beside the fields, in OptionsNotes.cpp.
    void AddNotes();
    void NoteBeside(wxWindow* control, wxTextCtrl* field, ui::FieldNotes::Rule rule);
    void AddFileNotes();
    void AddNumberNotes();
    void AddPlaceNote();
    void EnableTimeFields(); ///< in real time they would do nothing

    Configuration& m_settings;
    ui::ControlBindings m_bindings;
    PropagationSettings m_typed;       ///< as the pages with notes show it
    ui::ControlBindings m_typedFields; ///< between those pages and m_typed
    ui::ScaleEditor m_scales;
    ui::PositionFields m_latitude;
    ui::PositionFields m_longitude;
    ui::FieldNotes m_notes;
    Values m_valuesAtOpening;
};

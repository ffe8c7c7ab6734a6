#pragma once

#include "ui/OptionsPages.h"

#include <wx/button.h>
#include <wx/dialog.h>
#include <wx/notebook.h>
#include <wx/sizer.h>

/**
 * The layout of the options dialog: a notebook with a page for each group of settings, and the buttons below it.
 *
 * Every control that acts ends in a virtual handler; the ones here do nothing. The dialog is as large as its largest
 * page needs, but never larger than the screen: then the pages scroll.
 */
class Options : public wxDialog
{
public:
    explicit Options(wxWindow* parent);

protected:
    virtual void OnOk(wxCommandEvent&) {}
    virtual void LoadSettingsFile(wxCommandEvent&) {}
    virtual void SaveSettingsFile(wxCommandEvent&) {}
    virtual void OnZoomSlider(wxCommandEvent&) {}
    virtual void OnZoomTyped(wxCommandEvent&) {}
    virtual void OnSquaresStyle(wxCommandEvent&) {}
    virtual void OnParameter(wxCommandEvent&) {}
    virtual void OnNow(wxCommandEvent&) {}
    virtual void OnLatitudeTyped(wxCommandEvent&) {}
    virtual void OnLatitudeFromDegrees(wxCommandEvent&) {}
    virtual void OnLongitudeTyped(wxCommandEvent&) {}
    virtual void OnLongitudeFromDegrees(wxCommandEvent&) {}
    virtual void OnLatLonFromLocator(wxCommandEvent&) {}
    virtual void OnLocatorFromLatLon(wxCommandEvent&) {}

private:
    wxStaticBoxSizer* m_group;

protected:
    // Made in this order. Owned by the window tree.
    wxNotebook* m_book;
    ui::SettingsPage m_settingsPage;
    ui::BordersPage m_bordersPage;
    ui::TextPage m_textPage;
    ui::SourceMapPage m_sourceMapPage;
    ui::PlotSquaresPage m_plotSquaresPage;
    ui::GraylinePage m_graylinePage;
    ui::VoacapPage m_voacapPage;
    ui::TimePage m_timePage;
    ui::HomePage m_homePage;
    wxButton* m_loadConfig = nullptr;
    wxButton* m_saveConfig = nullptr;

private:
    void CreateButtons();
    void BindEvents();
    void ExplainNumbers(); ///< their units and ranges
    void NameControls();   ///< for screen readers
    void ChooseSize();
};

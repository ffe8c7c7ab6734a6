#pragma once

#include "ui/options/BordersPage.h"
#include "ui/options/GraylinePage.h"
#include "ui/options/HomePage.h"
#include "ui/options/PlotSquaresPage.h"
#include "ui/options/SettingsPage.h"
#include "ui/options/SourceMapPage.h"
#include "ui/options/TextPage.h"
#include "ui/options/TimePage.h"
#include "ui/options/VoacapPage.h"

#include <wx/dialog.h>
#include <wx/notebook.h>
#include <wx/statbox.h>

/**
 * The options dialog before it shows any settings: a notebook with a page for each group of them, and the buttons below
 * it.
 *
 * The buttons end in virtual handlers; the ones here do nothing. The dialog is as large as its largest page needs, but
 * never larger than the screen: then the pages scroll.
 */
class Options : public wxDialog
{
public:
    explicit Options(wxWindow* parent);

protected:
    virtual void OnOk(wxCommandEvent&) {}
    virtual void LoadSettingsFile(wxCommandEvent&) {}
    virtual void SaveSettingsFile(wxCommandEvent&) {}

    ui::Editing m_editing; ///< what the controls edit

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
    void ChooseSize();
};

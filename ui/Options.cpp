#include "ui/Options.h"

#include "ui/OptionsRows.h"

#include <wx/display.h>
#include <wx/statbox.h>

#include <algorithm>

namespace
{
const wxSize kInitialSize(821, 476);
const wxSize kDecorations(12, 48); ///< room on the screen for the title bar and the frame
} // namespace

Options::Options(wxWindow* parent)
    : wxDialog(parent, wxID_ANY, "", wxDefaultPosition, kInitialSize, wxDEFAULT_DIALOG_STYLE),
      m_group(new wxStaticBoxSizer(wxVERTICAL, this, "Options")),
      m_book(new wxNotebook(m_group->GetStaticBox(), wxID_ANY)),
      m_settingsPage(m_book),
      m_bordersPage(m_book),
      m_textPage(m_book),
      m_sourceMapPage(m_book),
      m_plotSquaresPage(m_book),
      m_graylinePage(m_book),
      m_voacapPage(m_book),
      m_timePage(m_book),
      m_homePage(m_book)
{
    ExplainNumbers();
    m_group->Add(m_book, 1, wxEXPAND | wxALL, ui::kGap);
    CreateButtons();
    auto* const content = new wxBoxSizer(wxVERTICAL);
    content->Add(m_group, 1, wxEXPAND | wxALL, ui::kGap);
    SetSizer(content);
    ChooseSize();
    BindEvents();
    NameControls();
    // Else the focus would be on a page of the inner notebook, where nobody sees it and no key does anything.
    m_book->SetFocus();
}

void Options::CreateButtons()
{
    wxWindow* const box = m_group->GetStaticBox();
    auto* const buttons = new wxBoxSizer(wxHORIZONTAL);
    m_group->Add(buttons, 0, wxEXPAND | wxALL, ui::kGap);
    m_loadConfig = new wxButton(box, wxID_ANY, "Load Config");
    buttons->Add(m_loadConfig, 0, wxRIGHT, ui::kGap);
    m_saveConfig = new wxButton(box, wxID_ANY, "Save Config");
    buttons->Add(m_saveConfig);
    buttons->AddStretchSpacer();
    auto* const ok = new wxButton(box, wxID_OK);
    buttons->Add(ok, 0, wxRIGHT, ui::kGap);
    buttons->Add(new wxButton(box, wxID_CANCEL));
    ok->SetDefault();
}

void Options::ChooseSize()
{
    const int display = std::max(0, wxDisplay::GetFromWindow(GetParent() ? GetParent() : this));
    const wxSize screen = wxDisplay(static_cast<unsigned>(display)).GetClientArea().GetSize();
    wxSize size = GetSizer()->GetMinSize();
    size.IncTo(kInitialSize);
    size.DecTo(screen - kDecorations);
    SetClientSize(size);
    Layout();
    CentreOnParent();
    // A page gets its true size when the dialog is shown; until then the inner notebook must not be without any.
    m_voacapPage.book->GetParent()->SetSize(m_book->GetSize());
}

void Options::BindEvents()
{
    Bind(wxEVT_BUTTON, &Options::OnOk, this, wxID_OK);
    m_loadConfig->Bind(wxEVT_BUTTON, &Options::LoadSettingsFile, this);
    m_saveConfig->Bind(wxEVT_BUTTON, &Options::SaveSettingsFile, this);
    m_settingsPage.zoomSlider->Bind(wxEVT_SLIDER, &Options::OnZoomSlider, this);
    m_settingsPage.zoom->Bind(wxEVT_TEXT, &Options::OnZoomTyped, this);
    for (const ui::PlotSquaresPage::Slot& slot : m_plotSquaresPage.slots)
    {
        slot.stipple->Bind(wxEVT_CHOICE, &Options::OnSquaresStyle, this);
        slot.alpha->Bind(wxEVT_SPINCTRL, &Options::OnSquaresStyle, this);
        slot.borderColour->Bind(wxEVT_COLOURPICKER_CHANGED, &Options::OnSquaresStyle, this);
        slot.fillColour->Bind(wxEVT_COLOURPICKER_CHANGED, &Options::OnSquaresStyle, this);
    }
    m_voacapPage.appearance.parameter->Bind(wxEVT_RADIOBOX, &Options::OnParameter, this);
    m_timePage.now->Bind(wxEVT_BUTTON, &Options::OnNow, this);
    m_homePage.latitude.decimal->Bind(wxEVT_TEXT, &Options::OnLatitudeTyped, this);
    m_homePage.latitude.toDecimal->Bind(wxEVT_BUTTON, &Options::OnLatitudeFromDegrees, this);
    m_homePage.longitude.decimal->Bind(wxEVT_TEXT, &Options::OnLongitudeTyped, this);
    m_homePage.longitude.toDecimal->Bind(wxEVT_BUTTON, &Options::OnLongitudeFromDegrees, this);
    m_homePage.latLonFromLocator->Bind(wxEVT_BUTTON, &Options::OnLatLonFromLocator, this);
    m_homePage.locatorFromLatLon->Bind(wxEVT_BUTTON, &Options::OnLocatorFromLatLon, this);
}

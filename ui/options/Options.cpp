#include "ui/options/Options.h"

#include "ui/options/Placing.h"

#include <wx/display.h>

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
      m_settingsPage(m_book, m_editing),
      m_bordersPage(m_book, m_editing),
      m_textPage(m_book, m_editing),
      m_sourceMapPage(m_book, m_editing),
      m_plotSquaresPage(m_book, m_editing),
      m_graylinePage(m_book, m_editing),
      m_voacapPage(m_book, m_editing),
      m_timePage(m_book, m_editing),
      m_homePage(m_book, m_editing)
{
    m_group->Add(m_book, 1, wxEXPAND | wxALL, ui::kGap);
    CreateButtons();
    auto* const content = new wxBoxSizer(wxVERTICAL);
    content->Add(m_group, 1, wxEXPAND | wxALL, ui::kGap);
    SetSizer(content);
    ChooseSize();
    BindEvents();
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
}

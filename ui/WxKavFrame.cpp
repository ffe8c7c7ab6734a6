#include "ui/WxKavFrame.h"

#include "render/PictureFile.h"
#include "ui/Ids.h"
#include "ui/MapMenu.h"
#include "ui/MapSpot.h"
#include "ui/Native.h"
#include "ui/options/KavMapOptions.h"

#include <wx/filedlg.h>
#include <wx/filefn.h>
#include <wx/msgdlg.h>
#include <wx/version.h>

#include <algorithm>

WxKavFrame::WxKavFrame(wxWindow* parent) : WxKavFrame(parent, std::make_unique<Configuration>("Kavdex")) {}

WxKavFrame::WxKavFrame(wxWindow* parent, std::unique_ptr<Configuration> settings,
                       const std::optional<rotator::Address>& rotator)
    : GUIFrame(parent),
      MapMaker(*settings, *m_canvas, *this),
      m_greylineTimer(this, ui::kIdGreylineTimer),
      m_propagationTimer(this, ui::kIdPropagationTimer),
      m_settings(std::move(settings))
{
    SetStatusText("Kavmap By QQ0QQQ", 0);
    SetStatusText(wxVERSION_STRING, 1);
    m_locator->ChangeValue(m_settings->centreLoc);
    m_locator->SelectAll(); // so that typing replaces it
    m_toolBar->EnableTool(ui::kIdSave, false);
    m_toolBar->EnableTool(ui::kIdGreyline, false);
    SetPropagationTools(false, m_settings->propagation.frequency, m_settings->propagation.parameter);
    Bind(
        wxEVT_TIMER, [this](wxTimerEvent&) { DrawGreyline(m_toolBar->GetToolState(ui::kIdGreyline)); },
        ui::kIdGreylineTimer);
    Bind(
        wxEVT_TIMER, [this](wxTimerEvent&) { DrawPropagation(false); }, ui::kIdPropagationTimer);
    m_canvas->onCross = [this](const wxPoint& pixel)
    {
        ShowReadOut(pixel);
        ui::native::Announce(m_statusBar, GetStatusBar()->GetStatusText(0));
    };
    m_canvas->Bind(wxEVT_CONTEXT_MENU, &WxKavFrame::OnCanvasMenu, this);
    if (rotator)
        ConnectAntenna(*rotator);
    Bind(wxEVT_CHAR_HOOK, &WxKavFrame::OnKey, this);
    m_canvas->mapReady = true;
}

void WxKavFrame::SetPropagationTools(bool enable, int frequencyIndex, int parameterIndex)
{
    const auto set = [&](int id, bool isChosen)
    {
        m_toolBar->EnableTool(id, enable);
        if (isChosen)
            m_toolBar->ToggleTool(id, true);
    };
    for (int id = ui::kIdFirstFrequency; id <= ui::kIdLastFrequency; ++id)
        set(id, id - ui::kIdFirstFrequency == frequencyIndex);
    for (std::size_t i = 0; i < config::kParameters.size(); ++i)
        set(config::kParameters[i].tool, static_cast<int>(i) == parameterIndex);
    if (m_settings->greyzone.show)
        m_toolBar->ToggleTool(ui::kIdGreyline, true);
}

void WxKavFrame::OnClose(wxCloseEvent&)
{
    // The rows of a context menu act on this window.
    ui::native::DismissMenu();
    if (m_wait == Wait::None)
        Destroy();
    else
        m_wait = Wait::Closed;
}

void WxKavFrame::OnQuit(wxCommandEvent&)
{
    Close(true);
}

void WxKavFrame::OnKey(wxKeyEvent& event)
{
    if (event.GetKeyCode() != WXK_ESCAPE || m_wait == Wait::None)
        event.Skip();
    else if (m_wait != Wait::Closed)
        m_wait = Wait::Abandoned;
}

void WxKavFrame::OnProperties(wxCommandEvent&)
{
    const wxString stored = m_settings->centreLoc;
    KavMapOptions dialog(this, *m_settings);
    if (dialog.ShowModal() == wxID_OK && m_settings->resetOverlays)
        ResetOverlays();
    // However it ended, a file may have been loaded; the next creation must not bring the old centre back.
    if (m_settings->centreLoc != stored)
        m_locator->ChangeValue(m_settings->centreLoc);
    m_canvas->ShowPicture();
}

void WxKavFrame::ResetOverlays()
{
    m_greylineTimer.Stop();
    m_propagationTimer.Stop();
    SetStatusText("", 1);
    SetPropagationTools(false, m_settings->propagation.frequency, m_settings->propagation.parameter);
    m_canvas->showGreyline = false;
    m_canvas->showPropagation = false;
}

void WxKavFrame::OnAbout(wxCommandEvent&)
{
    wxMessageBox("Kavmap by QQ0QQQ\n" wxVERSION_STRING "-Linux-Unicode build", "Welcome to...", wxOK | wxCENTRE, this);
}

void WxKavFrame::OnCanvasMotion(wxMouseEvent& event)
{
    ShowReadOut(m_canvas->CalcUnscrolledPosition(event.GetPosition()));
}

void WxKavFrame::ShowReadOut(const wxPoint& pixel)
{
    if (View() && m_wait == Wait::None)
        SetStatusText(ui::ReadOutOf(ui::SpotAt(*View(), pixel)), 0);
}

void WxKavFrame::OnCanvasMenu(const wxContextMenuEvent& event)
{
    if (m_wait != Wait::None)
        return;
    // The Menu key has no position.
    const bool hasPointer = event.GetPosition() != wxDefaultPosition;
    const auto pixel = hasPointer ? m_canvas->CalcUnscrolledPosition(m_canvas->ScreenToClient(event.GetPosition()))
                                  : m_canvas->Cross();
    std::optional<ui::MapSpot> spot;
    if (View() && pixel)
        spot = ui::SpotAt(*View(), *pixel);
    const auto centre = [this](const wxString& locator) { m_locator->ChangeValue(locator); };
    ui::ShowMenu(*m_canvas, ui::MapMenuRows(spot, m_antenna ? &*m_antenna : nullptr, centre),
                 pixel ? m_canvas->CalcScrolledPosition(*pixel) : wxDefaultPosition);
}

void WxKavFrame::ConnectAntenna(const rotator::Address& rotator)
{
    const auto say = [this](const wxString& text)
    {
        SetStatusText(text, 0);
        ui::native::Announce(m_statusBar, text);
    };
    m_antenna.emplace(
        rotator, *m_canvas, [this] { return View() ? &*View() : nullptr; }, say);
}

wxString WxKavFrame::DefaultPictureName() const
{
    const PropagationSettings& propagation = m_settings->propagation;
    const auto parameter = static_cast<std::size_t>(propagation.parameter);
    if (propagation.show && parameter >= config::kParameters.size())
        return "";
    return m_settings->centreLoc + (propagation.show ? config::kParameters[parameter].suffix : "") + ".jpg";
}

void WxKavFrame::OnSaveImage(wxCommandEvent&)
{
    wxFileDialog dialog(this, "Save Image", wxGetCwd(), DefaultPictureName(),
                        "Image Files " + wxImage::GetImageExtWildcard(), wxFD_SAVE);
    if (dialog.ShowModal() != wxID_OK)
        return;
    const wxString path = dialog.GetPath();
    if (HasMap() && render::PictureTypeOf(path))
        render::SavePicture(m_canvas->Compose(), path);
    else
        OnError("Couldn't save " + path);
}

void WxKavFrame::OnFrequencyTool(wxCommandEvent& event)
{
    m_settings->propagation.frequency = event.GetId() - ui::kIdFirstFrequency;
    DrawPropagation(true);
}

void WxKavFrame::OnParameterTool(wxCommandEvent& event)
{
    const auto* const parameter =
        std::ranges::find(config::kParameters, event.GetId(), &config::PropagationParameter::tool);
    m_settings->propagation.parameter = static_cast<int>(parameter - config::kParameters.begin());
    DrawPropagation(true);
}

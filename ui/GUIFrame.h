#pragma once

#include "ui/MapCanvas.h"

#include <wx/frame.h>
#include <wx/textctrl.h>
#include <wx/toolbar.h>

/**
 * The layout of the main window: menus, toolbar with the locator field, canvas, status bar.
 *
 * Every command ends in a virtual handler; the ones here only let the event continue.
 */
class GUIFrame : public wxFrame
{
public:
    explicit GUIFrame(wxWindow* parent);

    /// A tool or menu entry without a help text leaves the status bar alone.
    void DoGiveHelp(const wxString& text, bool show) override;

protected:
    virtual void OnActivate(wxActivateEvent& event) { event.Skip(); }
    virtual void OnClose(wxCloseEvent& event) { event.Skip(); }
    virtual void OnQuit(wxCommandEvent& event) { event.Skip(); }
    virtual void OnProperties(wxCommandEvent& event) { event.Skip(); }
    virtual void OnAbout(wxCommandEvent& event) { event.Skip(); }
    virtual void OnCanvasLeftDown(wxMouseEvent& event) { event.Skip(); }
    virtual void OnCanvasMotion(wxMouseEvent& event) { event.Skip(); }
    virtual void OnCreateMap(wxCommandEvent& event) { event.Skip(); }
    virtual void OnSaveImage(wxCommandEvent& event) { event.Skip(); }
    virtual void OnOptionsTool(wxCommandEvent& event) { event.Skip(); }
    virtual void OnFrequencyTool(wxCommandEvent& event) { event.Skip(); }
    virtual void OnParameterTool(wxCommandEvent& event) { event.Skip(); }
    virtual void OnGreylineTool(wxCommandEvent& event) { event.Skip(); }

    wxStatusBar* OnCreateStatusBar(int number, long style, wxWindowID id, const wxString& name) override;

    // Owned by the window tree.
    MapCanvas* m_canvas = nullptr;
    wxToolBar* m_toolBar = nullptr;
    wxTextCtrl* m_locator = nullptr;
    wxStatusBar* m_statusBar = nullptr;

private:
    void CreateMenus();
    void CreateTools();
    void BindCommands();
    void BindKeyboard();
    void OnTab(wxKeyEvent& event); ///< from the locator field through the enabled tools to the canvas
};

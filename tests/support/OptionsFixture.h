#pragma once

#include "config/SettingsFile.h"
#include "tests/support/Await.h"
#include "tests/support/Dialogs.h"
#include "tests/support/TemporaryHome.h"
#include "ui/options/KavMapOptions.h"

#include <gtest/gtest.h>

#include <functional>

/// The real options dialog with its controls in reach.
class OpenOptions : public KavMapOptions
{
public:
    using KavMapOptions::KavMapOptions;

    using Options::m_book;
    using Options::m_bordersPage;
    using Options::m_editing;
    using Options::m_graylinePage;
    using Options::m_homePage;
    using Options::m_loadConfig;
    using Options::m_plotSquaresPage;
    using Options::m_saveConfig;
    using Options::m_settingsPage;
    using Options::m_sourceMapPage;
    using Options::m_textPage;
    using Options::m_timePage;
    using Options::m_voacapPage;
};

/// The options dialog on an empty home, and what a user can do to it.
class OptionsFixture : public testing::Test
{
protected:
    void SetUp() override { Open(); }
    void TearDown() override
    {
        Close();
        Settle();
    }

    /// Opens the dialog on the settings as they are.
    void Open()
    {
        Close();
        dialog = new OpenOptions(nullptr, settings);
    }

    void Close()
    {
        if (dialog)
            dialog->Destroy();
        dialog = nullptr;
    }

    /// Shows the dialog as the program does and calls act when it is up.
    int RunModal(std::function<void()> act)
    {
        dialog->CallAfter(std::move(act));
        return dialog->ShowModal();
    }

    static void Settle() { LetEventsHappen(); }

    static void Send(wxEventType type, wxWindow* control)
    {
        wxCommandEvent event(type, control->GetId());
        event.SetEventObject(control);
        control->ProcessWindowEvent(event);
    }
    static void Click(wxWindow* button) { Send(wxEVT_BUTTON, button); }
    void ClickOk() { Click(dialog->FindWindow(wxID_OK)); }

    /// Sets the text of a field as typing does.
    static void Type(wxTextCtrl* field, const wxString& text) { field->SetValue(text); }

    static void Choose(wxRadioBox* box, int index)
    {
        box->SetSelection(index);
        Send(wxEVT_RADIOBOX, box);
    }

    void Load(const wxString& path)
    {
        dialogs.chosenPath = path;
        Click(dialog->m_loadConfig);
    }
    void Save(const wxString& path)
    {
        dialogs.chosenPath = path;
        Click(dialog->m_saveConfig);
    }

    /// Calls visit(window) for every window inside the dialog.
    static void ForEachWindow(wxWindow* window, const std::function<void(wxWindow*)>& visit)
    {
        for (wxWindow* child : window->GetChildren())
        {
            visit(child);
            ForEachWindow(child, visit);
        }
    }

    /// The value of a key in a settings file, as text; "(none)" if it is not there.
    static wxString ValueIn(const wxString& path, const wxString& key)
    {
        return OpenSettingsFile(path)->Read(key, "(none)");
    }

    const TemporaryHome home;
    Dialogs dialogs;
    Configuration settings{"Kavdex"};
    OpenOptions* dialog = nullptr;
};

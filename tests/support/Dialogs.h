#pragma once

#include <wx/app.h>
#include <wx/filedlg.h>
#include <wx/modalhook.h>
#include <wx/msgdlg.h>
#include <wx/utils.h>

#include <functional>
#include <vector>

/// Answers modal dialogs in the user's place for as long as it lives, and keeps what they said.
class Dialogs : public wxModalDialogHook
{
public:
    struct Message
    {
        wxString caption;
        wxString text;
        long style;
    };

    Dialogs() { Register(); }
    ~Dialogs() override { Unregister(); }

    std::vector<Message> messages;     ///< message boxes, all answered with OK
    wxString chosenPath;               ///< what file dialogs are answered with; empty is Cancel
    std::vector<wxString> fileDialogs; ///< what file dialogs offered: message, directory, name, wildcard

    /// Answers any other dialog in its place; wxID_NONE lets it come up. None by default.
    std::function<int(wxDialog& dialog)> onOtherDialog;

    /// The texts of all message boxes, one a line.
    wxString Texts() const
    {
        wxString texts;
        for (const Message& message : messages)
            texts << message.text << "\n";
        return texts;
    }

protected:
    int Enter(wxDialog* dialog) override
    {
        if (const auto* box = dynamic_cast<const wxMessageDialogBase*>(dialog))
        {
            messages.push_back({box->GetCaption(), box->GetMessage(), box->GetMessageDialogStyle()});
            return wxID_OK;
        }
        if (auto* files = dynamic_cast<wxFileDialog*>(dialog))
        {
            for (const wxString& text :
                 {files->GetMessage(), files->GetDirectory(), files->GetFilename(), files->GetWildcard()})
                fileDialogs.push_back(text);
            if (chosenPath.empty())
                return wxID_CANCEL;
            files->SetPath(chosenPath);
            // The chooser takes the path over while it runs.
            for (int i = 0; i < 200 && files->GetPath() != chosenPath; ++i)
            {
                wxMilliSleep(5);
                wxTheApp->Yield(true);
            }
            return wxID_OK;
        }
        return onOtherDialog ? onOtherDialog(*dialog) : wxID_NONE;
    }
};

#pragma once

#include "ui/options/Form.h"
#include "ui/options/VoacapNotes.h"

#include <array>

namespace ui
{
class VoacapMainPage
{
public:
    VoacapMainPage(wxBookCtrlBase* book, Editing& editing, VoacapNotes& notes);

    wxCheckBox* show;
    wxChoice* engine;
    wxSpinCtrl* ssn;
    wxChoice* grid;
    wxDirPickerCtrl* directory;
    wxChoice* txPower;
    wxRadioBox* frequency;
    wxTextCtrl* userFrequency;
    std::array<wxTextCtrl*, 6> systemVariables; ///< MMN, MTA, RCR, RSN, MPT, MTM
    wxHyperlinkCtrl* link;
    wxCheckBox* useExternalResult;
    wxFilePickerCtrl* externalResult;

private:
    wxSizer* NewEngineRow(const Form& form, VoacapNotes& notes);
    wxSizer* NewTransmitterColumn(const Form& form, VoacapNotes& notes);
    wxSizer* NewSystemVariables(const Form& form, VoacapNotes& notes);
    wxSizer* NewExternalRow(const Form& form);
};
} // namespace ui

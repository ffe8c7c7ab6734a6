#pragma once

#include "ui/options/Form.h"
#include "ui/options/VoacapNotes.h"

#include <array>

namespace ui
{
/// Controls for AntennaSettings.
struct AntennaGroup
{
    wxTextCtrl* gain;
    wxTextCtrl* direction;
    wxFilePickerCtrl* file;
};

struct VoacapAntennaPage
{
    VoacapAntennaPage(wxBookCtrlBase* book, Editing& editing, VoacapNotes& notes);

    AntennaGroup transmitter;
    AntennaGroup receiver;
    std::array<wxTextCtrl*, 4> layerMultipliers; ///< FoE, FoF1, FoF2, FoEs

private:
    wxSizer* NewLayers(const Form& form);
};
} // namespace ui

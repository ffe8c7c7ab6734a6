#pragma once

#include "ui/options/Form.h"

#include <array>

namespace ui
{
/// The colour scales of the four propagation parameters, one on show and all in memory, and what else there is to see.
class VoacapAppearancePage
{
public:
    VoacapAppearancePage(wxBookCtrlBase* book, Editing& editing);
    VoacapAppearancePage(const VoacapAppearancePage&) = delete;
    VoacapAppearancePage& operator=(const VoacapAppearancePage&) = delete;

    struct Step
    {
        wxColourPickerCtrl* colour;
        wxTextCtrl* value;
    };
    wxRadioBox* parameter;
    std::array<Step, ColourScale::kSteps> steps; ///< from the highest down
    wxTextCtrl* explanation;
    wxCheckBox* autoLevel;
    wxCheckBox* greyScale;
    wxSpinCtrl* alpha;
    wxCheckBox* legend;

private:
    using Scales = decltype(PropagationSettings::scales);

    wxSizer* NewScale(const Form& form);
    wxSizer* NewOverlayColumn(const Form& form);
    void BindScales(ControlBindings& bindings, Scales& scales);

    /// Shows the scale of the chosen parameter and keeps what was typed into the one shown before.
    void ShowChosenScale();
    void KeepScale();
    void ShowScale();

    Scales m_scales;
    std::size_t m_shown = 0; ///< parameter
};
} // namespace ui

#pragma once

#include "config/Configuration.h"
#include "ui/ControlBindings.h"
#include "ui/OptionsPages.h"

#include <array>

namespace ui
{
/// The colour scales of the four propagation parameters: one on show, all four in memory.
class ScaleEditor
{
public:
    explicit ScaleEditor(const VoacapAppearancePage& controls) : m_controls(controls) {}

    /// The settings it edits. The "Parameter" box must have been bound before: it tells which scale is shown.
    void BindTo(ControlBindings& bindings, std::array<ColourScale, 4>& scales);

    /// Shows the scale of the chosen parameter and keeps what was typed into the one shown before.
    void ShowChosen();

private:
    /// The setting that step i of the rows, from the top, stands for: scales begin at the lowest.
    static constexpr std::size_t IndexOfStep(std::size_t i) { return ColourScale::kSteps - 1 - i; }

    void Keep();
    void Show();

    const VoacapAppearancePage& m_controls;
    std::array<ColourScale, 4> m_scales;
    std::size_t m_shown = 0; ///< parameter
};
} // namespace ui

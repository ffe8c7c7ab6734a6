#include "ui/ScaleEditor.h"

#include "config/PropagationParameters.h"
#include "render/Style.h"

namespace ui
{
void ScaleEditor::BindTo(ControlBindings& bindings, std::array<ColourScale, 4>& scales)
{
    const auto toWindow = [this, &scales]
    {
        m_scales = scales;
        Show();
    };
    const auto fromWindow = [this, &scales]
    {
        Keep();
        scales = m_scales;
    };
    bindings.Add({}, {}, toWindow, fromWindow);
    for (std::size_t i = 0; i < ColourScale::kSteps; ++i)
    {
        bindings.Claim(m_controls.steps[i].colour);
        bindings.Claim(m_controls.steps[i].value);
        for (const ColourScale& scale : scales)
        {
            bindings.Claim(&scale.colours[i]);
            bindings.Claim(&scale.values[i]);
        }
    }
}

void ScaleEditor::ShowChosen()
{
    Keep();
    Show();
}

void ScaleEditor::Keep()
{
    ColourScale& scale = m_scales[m_shown];
    for (std::size_t i = 0; i < ColourScale::kSteps; ++i)
    {
        scale.colours[IndexOfStep(i)] = SettingFromPicked(m_controls.steps[i].colour->GetColour());
        scale.values[IndexOfStep(i)] = m_controls.steps[i].value->GetValue();
    }
}

void ScaleEditor::Show()
{
    m_shown = static_cast<std::size_t>(m_controls.parameter->GetSelection());
    const ColourScale& scale = m_scales[m_shown];
    for (std::size_t i = 0; i < ColourScale::kSteps; ++i)
    {
        m_controls.steps[i].colour->SetColour(ColourFromSetting(scale.colours[IndexOfStep(i)]));
        m_controls.steps[i].value->ChangeValue(scale.values[IndexOfStep(i)]);
    }
    m_controls.explanation->ChangeValue(config::kParameters[m_shown].explanation);
}
} // namespace ui

#include "ui/options/VoacapAppearancePage.h"

#include "render/Style.h"
#include "ui/options/Placing.h"

#include <wx/dcclient.h>
#include <wx/statbox.h>

namespace
{
using namespace ui;

/// The setting that a step of the rows, from the top, stands for: scales begin at the lowest.
constexpr std::size_t IndexOfStep(std::size_t fromTop)
{
    return ColourScale::kSteps - 1 - fromTop;
}

wxSize RoomForExplanations(wxTextCtrl* text)
{
    wxSize needed;
    const wxClientDC dc(text);
    for (const config::PropagationParameter& parameter : config::kParameters)
        needed.IncTo(dc.GetMultiLineTextExtent(parameter.explanation));
    return needed + wxSize(4 * kGap, 4 * kGap);
}

/// A read-only text that leaves Enter to the dialog.
wxTextCtrl* NewExplanation(wxWindow* parent)
{
    auto* const text = new wxTextCtrl(parent, wxID_ANY, "", wxDefaultPosition, wxDefaultSize,
                                      wxTE_MULTILINE | wxTE_READONLY | wxTE_NO_VSCROLL | wxBORDER_NONE);
    text->SetMinSize(RoomForExplanations(text));
    text->Bind(wxEVT_KEY_DOWN,
               [text](wxKeyEvent& event)
               {
                   if (event.GetKeyCode() != WXK_RETURN && event.GetKeyCode() != WXK_NUMPAD_ENTER)
                       return event.Skip();
                   wxCommandEvent ok(wxEVT_BUTTON, wxID_OK);
                   text->ProcessWindowEvent(ok);
               });
    return text;
}
} // namespace

namespace ui
{
VoacapAppearancePage::VoacapAppearancePage(wxBookCtrlBase* book, Editing& editing)
{
    const Page page(book, "Appearance", editing);
    PropagationSettings& p = editing.draft.propagation;
    auto* const group = new wxStaticBoxSizer(wxHORIZONTAL, page.Parent(), "Colour and transparency");
    const Form box = page.In(group->GetStaticBox());
    parameter =
        Add(group, box.RadioBox(p.parameter, "Parameter", config::LabelsOf(config::kParameters), 1), wxALL, kGap);
    parameter->SetMinSize(parameter->GetBestSize() + wxSize(4 * kGap, 0));
    group->Add(NewScale(box), 0, wxALL, kGap);
    BindScales(editing.bindings, p.scales);
    group->Add(NewOverlayColumn(box), 1, wxALL, kGap);
    page.Finish(group);
    parameter->Bind(wxEVT_RADIOBOX, [this](wxCommandEvent&) { ShowChosenScale(); });
}

wxSizer* VoacapAppearancePage::NewScale(const Form& form)
{
    auto* const scale = new wxFlexGridSizer(2, kGap / 3, kGap);
    for (std::size_t i = 0; i < steps.size(); ++i)
    {
        const wxString name = wxString::Format("Step %zu: ", steps.size() - i);
        auto* const picker = new wxColourPickerCtrl(form.Parent(), wxID_ANY);
        AddCells(scale, {steps[i].colour = form.Says(picker, {.name = name + "Colour"}),
                         steps[i].value = form.Says(NewText(form.Parent(), 8), {.name = name + "from this value on"})});
    }
    return scale;
}

wxSizer* VoacapAppearancePage::NewOverlayColumn(const Form& form)
{
    PropagationSettings& p = form.Draft().propagation;
    auto* const column = new wxBoxSizer(wxVERTICAL);
    explanation = form.Says(NewExplanation(form.Parent()), {.name = "What the parameter means"});
    column->Add(explanation, 0, wxEXPAND | wxBOTTOM, 2 * kGap);
    autoLevel = Add(column, form.Check(p.autoLevel, "Auto level"), wxBOTTOM, kGap);
    greyScale = Add(column, form.Check(p.greyScale, "Plot units in grey scale"), wxBOTTOM, kGap);
    alpha = Add(column, Labelled{form.Label("Alpha"), form.Alpha(p.alpha, "", wxSP_WRAP)}, wxBOTTOM, kGap);
    legend = Add(column, form.Check(p.legend, "Draw Legend"), 0);
    return column;
}

void VoacapAppearancePage::BindScales(ControlBindings& bindings, Scales& scales)
{
    const auto toWindow = [this, &scales]
    {
        m_scales = scales;
        ShowScale();
    };
    const auto fromWindow = [this, &scales]
    {
        KeepScale();
        scales = m_scales;
    };
    bindings.Add({}, {}, toWindow, fromWindow);
    for (std::size_t i = 0; i < ColourScale::kSteps; ++i)
    {
        bindings.Claim({steps[i].colour, steps[i].value}, {});
        for (const ColourScale& scale : scales)
            bindings.Claim({}, {&scale.colours[i], &scale.values[i]});
    }
}

void VoacapAppearancePage::ShowChosenScale()
{
    KeepScale();
    ShowScale();
}

void VoacapAppearancePage::KeepScale()
{
    ColourScale& scale = m_scales[m_shown];
    for (std::size_t i = 0; i < steps.size(); ++i)
    {
        scale.colours[IndexOfStep(i)] = SettingFromPicked(steps[i].colour->GetColour());
        scale.values[IndexOfStep(i)] = steps[i].value->GetValue();
    }
}

void VoacapAppearancePage::ShowScale()
{
    m_shown = static_cast<std::size_t>(parameter->GetSelection());
    const ColourScale& scale = m_scales[m_shown];
    for (std::size_t i = 0; i < steps.size(); ++i)
    {
        steps[i].colour->SetColour(ColourFromSetting(scale.colours[IndexOfStep(i)]));
        steps[i].value->ChangeValue(scale.values[IndexOfStep(i)]);
    }
    explanation->ChangeValue(config::kParameters[m_shown].explanation);
}
} // namespace ui

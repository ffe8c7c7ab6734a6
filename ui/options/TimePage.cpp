#include "ui/options/TimePage.h"

#include "ui/options/Placing.h"

namespace
{
constexpr char kHourTip[] = "Hour value if you plot \"Once\"";
constexpr char kMinuteTip[] = "Minute value if you plot \"Once\"";
constexpr char kDateTip[] = "Date and year if you plot \"Once\"";
constexpr char kNowTip[] =
    "Click here if you want to transfer\nthe time just now to the controls\nfor plotting \"Once\"";

/// "00", "01", ...
wxArrayString TwoDigitNumbers(int count)
{
    wxArrayString labels;
    for (int i = 0; i < count; ++i)
        labels.Add(wxString::Format("%02d", i));
    return labels;
}
} // namespace

namespace ui
{
TimePage::TimePage(wxBookCtrlBase* book, Editing& editing)
{
    const Page page(book, "Time", editing);
    GreyzoneSettings& zone = editing.draft.greyzone;
    auto* const content = new wxBoxSizer(wxVERTICAL);
    Add(content, page.Label("This time affects both the sun/grayline\nand the Voacap features."), wxBOTTOM);
    mode = Add(content, page.RadioBox(zone.timeMode, "Type", config::LabelsOf(kTimeModes), 2), wxBOTTOM);
    content->Add(NewClock(page), 0, wxBOTTOM, 2 * kGap);
    auto* const calendar = new wxCalendarCtrl(page.Parent(), wxID_ANY);
    date = Add(content, page.Edits(zone.once, calendar, {.name = "Date", .tip = kDateTip}), wxBOTTOM);
    now = page.Says(new wxButton(page.Parent(), wxID_ANY, "Now!"), {.tip = kNowTip});
    content->Add(now);
    page.Finish(content);

    now->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { ShowNow(); });
    mode->Bind(wxEVT_RADIOBOX, [this](wxCommandEvent&) { EnableFields(); });
    editing.bindings.Then([this] { EnableFields(); });
}

wxSizer* TimePage::NewClock(const Form& form)
{
    UtcTime& once = form.Draft().greyzone.once;
    auto* const clock = new wxBoxSizer(wxHORIZONTAL);
    hour = Add(clock, Labelled{form.Label("Hour"), form.Choice(once.hour, TwoDigitNumbers(24), {.tip = kHourTip})},
               wxRIGHT);
    minute = Add(clock, Labelled{form.Label("Minute"),
                                 form.Choice(once.minute, TwoDigitNumbers(60), {.tip = kMinuteTip, .unit = "UTC"})});
    return clock;
}

void TimePage::ShowNow()
{
    const UtcTime time = UtcNow();
    hour->SetSelection(time.hour);
    minute->SetSelection(time.minute);
    ShowDate(date, time);
}

void TimePage::EnableFields()
{
    const bool once = mode->GetSelection() == kOnce;
    for (wxWindow* const field : std::initializer_list<wxWindow*>{hour, minute, date, now})
        field->Enable(once);
}
} // namespace ui

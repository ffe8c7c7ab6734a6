#include "ui/FieldNotes.h"
#include "ui/Options.h"

// Units and ranges of numbers whose labels don't say them.

namespace
{
void ExplainAlpha(wxSpinCtrl* alpha)
{
    alpha->SetToolTip("0 (not seen) to 255 (hides what lies below)");
}

void ExplainLines(const ui::LineRow& row)
{
    ExplainAlpha(row.alpha);
    row.lineWidth->SetToolTip("1 to 10 pixels");
}
} // namespace

void Options::ExplainNumbers()
{
    const ui::SettingsPage& page = m_settingsPage;
    for (wxWindow* const zoom : {static_cast<wxWindow*>(page.zoomSlider), static_cast<wxWindow*>(page.zoom)})
        zoom->SetToolTip("From the station to the rim of the map, 100 to 20000 km");
    page.size->SetToolTip("100 to 8000 pixels");
    for (const ui::LineRow& row :
         {page.meridians, page.fields, page.squares, page.compass, page.radials, page.rangeCircles})
        ExplainLines(row);
    for (const ui::TextStyleRow& row : {page.fieldNames, page.squareNames, page.compassFigures})
        ExplainAlpha(row.alpha);
    page.rangeEvery->SetToolTip("Kilometres, 100 at least");
    page.rangeDegs->SetToolTip("Bearing along which the legend is written, 0 to 360 degrees");
    for (const ui::BordersPage::Row& row : m_bordersPage.rows)
        ExplainLines(row.lines);
    for (const ui::TextPage::Row& row : m_textPage.rows)
        ExplainAlpha(row.text.alpha);
    for (const ui::PlotSquaresPage::Slot& slot : m_plotSquaresPage.slots)
        ExplainAlpha(slot.alpha);
    ExplainAlpha(m_voacapPage.appearance.alpha);
    ui::NewTextBeside(page.rangeEvery, "km");
    ui::NewTextBeside(m_timePage.minute, "UTC");
}

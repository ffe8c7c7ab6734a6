#include "ui/options/BordersPage.h"

#include "ui/options/FileKinds.h"
#include "ui/options/Placing.h"

namespace
{
constexpr char kBorderFiles[] = "pnt files (*.pnt)|*.pnt|All files(*.*)|*.*";
} // namespace

namespace ui
{
BordersPage::BordersPage(wxBookCtrlBase* book, Editing& editing)
{
    const Page page(book, "Borders", editing);
    wxFlexGridSizer* const grid = NewGrid(5);
    grid->AddGrowableCol(4);
    AddHeadings(page.Parent(), grid, {"Plot", "Colour", "Alpha", "Line Width", "File to plot"});
    for (std::size_t i = 0; i < rows.size(); ++i)
    {
        BorderSlot& slot = editing.draft.borders[i];
        const wxString name = wxString::Format("Borders %zu", i + 1);
        const LineRow lines = rows[i].lines = NewLineRow(page, slot, name);
        AddCells(grid, {lines.show, lines.colour, lines.alpha, lines.lineWidth});
        rows[i].file = page.File(slot.file, kBorderFiles, {.name = name + ": File to plot", .note = NoBorderFile});
        grid->Add(rows[i].file, wxSizerFlags().Expand());
    }
    page.Finish(grid);
}
} // namespace ui

#include "ui/options/TextPage.h"

#include "render/LabelBox.h"
#include "ui/options/FileKinds.h"
#include "ui/options/Placing.h"

namespace
{
using namespace ui;

constexpr char kLabelFiles[] = "dat files (*.dat)|*.dat|All files (*.*)|*.*";

void AddRow(const Form& form, wxSizer* grid, TextPage::Row& row, TextSlot& slot, const wxString& name)
{
    row.text.show = form.Check(slot.show, "", {.name = name + ": Plot"});
    row.text.colour = form.Colour(slot.colour, name + ": Text Colour");
    row.text.alpha = form.Alpha(slot.alpha, name + ": Text Alpha");
    row.text.font = form.Font(slot.font, name + ": Font");
    AddCells(grid, {row.text.show, row.text.colour, row.text.alpha, row.text.font});
    row.file = form.File(slot.file, kLabelFiles, {.name = name + ": File to plot", .note = NoLabelFile}, wxFLP_SMALL);
    grid->Add(row.file, 0, wxEXPAND | wxALIGN_CENTRE_VERTICAL);
    row.align = form.Choice(slot.align, config::LabelsOf(render::kLabelStyles), {.name = name + ": Alignment"});
    row.avoidCollisions = form.Check(slot.avoidCollisions, "Collision\ndetect", {.name = name + ": Collision detect"});
    AddCells(grid, {row.align, row.avoidCollisions});
}
} // namespace

namespace ui
{
TextPage::TextPage(wxBookCtrlBase* book, Editing& editing)
{
    const Page page(book, "Text", editing);
    wxFlexGridSizer* const grid = NewGrid(7);
    grid->AddGrowableCol(4);
    AddHeadings(page.Parent(), grid, {"Plot", "Colour", "Alpha", "Font", "File to plot", "Alignment", ""});
    for (std::size_t i = 0; i < rows.size(); ++i)
        AddRow(page, grid, rows[i], editing.draft.texts[i], wxString::Format("Text %zu", i + 1));
    page.Finish(grid);
}
} // namespace ui

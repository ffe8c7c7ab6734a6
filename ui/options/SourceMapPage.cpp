#include "ui/options/SourceMapPage.h"

#include "ui/options/FileKinds.h"
#include "ui/options/Placing.h"

namespace
{
constexpr char kBuiltIn[] = "Built-in map: Natural Earth\nThis is used if no other is checked.";
constexpr char kProjection[] = "Please note that the source maps\n"
                               "has to be in equirectangular projection. \n"
                               "If the source map is 360 pixels wide and \n"
                               "180 pixels high then each pixel represent \n"
                               "1 degree east/west and 1 degree \n"
                               "north/south. If it is 720 pixels wide and \n"
                               "360 pixels high then each pixel represent \n"
                               "half a degree, and so on.";
} // namespace

namespace ui
{
SourceMapPage::SourceMapPage(wxBookCtrlBase* book, Editing& editing)
{
    const Page page(book, "Source Map", editing);
    auto* const content = new wxBoxSizer(wxVERTICAL);
    wxFlexGridSizer* const grid = NewGrid(2);
    grid->AddGrowableCol(1);
    content->Add(grid, 0, wxEXPAND | wxBOTTOM, 3 * kGap);
    AddHeadings(page.Parent(), grid, {"Plot", "Mapfile to plot"});
    for (std::size_t i = 0; i < rows.size(); ++i)
    {
        SourceBitmapSlot& slot = editing.draft.sourceBitmaps[i];
        const wxString name = wxString::Format("Mapfile %zu", i + 1);
        AddCells(grid, {rows[i].show = page.Check(slot.show, "", {.name = name + ": Plot"})});
        rows[i].file = page.File(slot.file, "*.*", {.name = name + ": File to plot", .note = NoPicture});
        grid->Add(rows[i].file, wxSizerFlags().Expand());
    }
    content->Add(page.Label(kBuiltIn), 0, wxBOTTOM, 3 * kGap);
    content->Add(page.Label(kProjection));
    page.Finish(content);
}
} // namespace ui

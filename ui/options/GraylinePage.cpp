#include "ui/options/GraylinePage.h"

#include "ui/options/Placing.h"

namespace
{
constexpr char kWidthTip[] =
    "How wide should the greyzone be?\nHalf of this value, the sun is below\nthe horizon, half "
    "it is above.";
constexpr char kGradientTip[] = "Gradient goes from the night \nvalue to the greyzone value.";
constexpr char kGreyTip[] =
    "Darkening of the greyzone.\nEnd value if you use gradient.\n100 is no darkening at all.\n0 "
    "is totally black.\nMust be higher than night side.";
constexpr char kNightTip[] = "Darkening of the night side.\nStart value if you use gradient.\n100 is no darkening at "
                             "all.\n0 is totally black.\nMust be lower than greyzone.";
} // namespace

namespace ui
{
GraylinePage::GraylinePage(wxBookCtrlBase* book, Editing& editing)
{
    const Page page(book, "Sun/Grayline", editing);
    GreyzoneSettings& zone = editing.draft.greyzone;
    wxFlexGridSizer* const grid = NewGrid(2);
    AddCells(grid, {show = page.Check(zone.show, "Plot Grayline")});
    grid->AddSpacer(0);
    AddCells(grid,
             {page.Label("Grayzone width degrees"), width = page.Spin(zone.widthDeg, {0, 15}, {.tip = kWidthTip})});
    AddCells(grid, {gradient = page.Check(zone.gradient, "Gradient greyzone", {.tip = kGradientTip})});
    grid->AddSpacer(0);
    AddCells(grid, {page.Label("Darkening greyzone"),
                    darkeningGrey = page.Spin(zone.darkeningGrey, {0, 100}, {.tip = kGreyTip})});
    AddCells(grid, {page.Label("Darkening night"),
                    darkeningNight = page.Spin(zone.darkeningNight, {0, 100}, {.tip = kNightTip})});
    page.Finish(grid);
}
} // namespace ui

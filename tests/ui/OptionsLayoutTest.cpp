#include "tests/support/OptionsFixture.h"
#include "tests/support/OptionsListing.h"

#include <wx/notebook.h>
#include <wx/statbox.h>

#include <algorithm>
#include <cstdlib>

namespace
{
using Windows = std::vector<const wxWindow*>;

/// How the pages look: distances in pixels, measured on the laid out dialog. Windows that a test does not name may
/// stand between those that it does.
class OptionsLayout : public OptionsFixture
{
protected:
    void SetUp() override
    {
        OptionsFixture::SetUp();
        dialog->Show();
        Settle();
    }

    /// A page, turned to.
    wxWindow* Page(std::size_t i) const { return Turn(dialog->m_book, i); }
    wxWindow* Inner(std::size_t i) const
    {
        Turn(dialog->m_book, 6);
        return Turn(dialog->m_voacapPage.book, i);
    }

    static wxWindow* Turn(wxBookCtrlBase* book, std::size_t page)
    {
        book->SetSelection(page);
        Settle();
        book->GetPage(page)->Layout();
        return book->GetPage(page);
    }

    /// The number-th text or group of a page that begins so.
    static wxWindow* Text(const wxWindow* page, const wxString& text, int number = 0)
    {
        for (wxWindow* const window : ControlsOf(page))
            if ((dynamic_cast<wxStaticText*>(window) || dynamic_cast<wxStaticBox*>(window)) &&
                window->GetLabel().StartsWith(text) && number-- == 0)
                return window;
        ADD_FAILURE() << "no text " << text;
        std::abort();
    }

    /// From the nearest window to the left on the same parent, or from the parent's edge.
    static int GapToTheLeft(const wxWindow* window)
    {
        const wxRect rect = window->GetRect();
        int gap = rect.x;
        for (const wxWindow* const other : window->GetParent()->GetChildren())
        {
            const wxRect o = other->GetRect();
            if (other != window && o.x + o.width <= rect.x && o.y < rect.y + rect.height && rect.y < o.y + o.height)
                gap = std::min(gap, rect.x - o.x - o.width);
        }
        return gap;
    }

    /// Between the lowest edge of some windows and the highest of others.
    static int GapBetween(const Windows& upper, const Windows& lower)
    {
        int bottom = 0;
        int top = 1 << 20;
        for (const wxWindow* const window : upper)
            bottom = std::max(bottom, RectOf(window).y + RectOf(window).height);
        for (const wxWindow* const window : lower)
            top = std::min(top, RectOf(window).y);
        return top - bottom;
    }

    /// Of so many lines in the smaller font of notes.
    int NoteHeight(int lines) const
    {
        wxStaticText note(dialog, wxID_ANY, "note");
        note.SetFont(note.GetFont().Smaller());
        return lines * note.GetTextExtent("note").y;
    }

    static int MiddleOf(const wxWindow* window) { return 2 * RectOf(window).y + RectOf(window).height; }

    static std::string Name(const wxWindow* window) { return Description(const_cast<wxWindow*>(window)).utf8_string(); }

    static void ExpectInLine(const Windows& row)
    {
        for (const wxWindow* const window : row)
            EXPECT_NEAR(MiddleOf(window), MiddleOf(row[0]), 2) << Name(window);
    }

    /// A row that is tight: each window is so far from the one before.
    static void ExpectRow(const std::vector<std::pair<int, const wxWindow*>>& row)
    {
        Windows windows;
        for (const auto& [gap, window] : row)
        {
            EXPECT_EQ(GapToTheLeft(window), gap) << Name(window);
            windows.push_back(window);
        }
        ExpectInLine(windows);
    }

    /// Rows and columns as of a table: columns begin together and are so far apart, rows are in line. A missing window
    /// leaves its cell free.
    static void ExpectTable(const std::vector<Windows>& rows, int columnGap, int rowGap)
    {
        for (std::size_t r = 0; r < rows.size(); ++r)
        {
            Windows present;
            std::copy_if(rows[r].begin(), rows[r].end(), std::back_inserter(present), [](auto* w) { return w; });
            ExpectInLine(present);
            if (r > 0)
            {
                Windows before;
                std::copy_if(rows[r - 1].begin(), rows[r - 1].end(), std::back_inserter(before),
                             [](auto* w) { return w; });
                EXPECT_EQ(GapBetween(before, present), rowGap) << Name(present[0]);
            }
        }
        ExpectColumns(rows, columnGap);
    }

    static void ExpectColumns(const std::vector<Windows>& rows, int columnGap)
    {
        int rightEdge = -columnGap;
        int nearest = 1 << 20;
        std::size_t columnCount = 0;
        for (const Windows& row : rows)
            columnCount = std::max(columnCount, row.size());
        for (std::size_t c = 0; c < columnCount; ++c)
        {
            Windows column;
            for (const Windows& row : rows)
                if (c < row.size() && row[c])
                    column.push_back(row[c]);
            ASSERT_FALSE(column.empty());
            const int left = RectOf(column[0]).x;
            if (c > 0)
                nearest = std::min(nearest, left - rightEdge);
            for (const wxWindow* const cell : column)
            {
                EXPECT_EQ(RectOf(cell).x, left) << Name(cell);
                rightEdge = std::max(rightEdge, RectOf(cell).GetRight() + 1);
            }
        }
        // Of some windows the toolkit shows less than it asks for: the gap after them looks wider.
        EXPECT_TRUE(nearest == columnGap || columnCount == 2) << nearest;
        EXPECT_GE(nearest, columnGap);
    }

    /// Headings stand at the bottom of their row.
    static void ExpectHeadings(const Windows& headings, const Windows& firstRow, int gap)
    {
        for (const wxWindow* const heading : headings)
            EXPECT_EQ(RectOf(heading).GetBottom(), RectOf(headings[0]).GetBottom()) << Name(heading);
        EXPECT_EQ(GapBetween(headings, firstRow), gap);
    }

    /// Content begins 12 pixels from the edges of its page.
    static void ExpectFirst(const wxWindow* window)
    {
        const wxPoint at = window->GetScreenPosition() - window->GetParent()->GetScreenPosition();
        EXPECT_EQ(at.x, 12) << Name(window);
    }

    /// How far a window ends before the right edge of its page, or of the inside of its group.
    static int RightMargin(const wxWindow* window)
    {
        return window->GetParent()->GetClientSize().x - window->GetRect().x - window->GetRect().width;
    }

    static Windows Line(const ui::LineRow& row) { return {row.show, row.colour, row.alpha, row.lineWidth}; }
    static Windows Line(const ui::TextStyleRow& row) { return {row.show, row.colour, row.font, row.alpha}; }
    static Windows Join(std::initializer_list<Windows> parts)
    {
        Windows all;
        for (const Windows& part : parts)
            all.insert(all.end(), part.begin(), part.end());
        return all;
    }
};

TEST_F(OptionsLayout, OfTheSettings)
{
    const wxWindow* page = Page(0);
    const ui::SettingsPage& s = dialog->m_settingsPage;
    const wxWindow* const size = Text(page, "Size of map");
    ExpectRow(
        {{12, Text(page, "Zoom")}, {6, s.zoomSlider}, {6, s.zoom}, {24, size}, {6, s.size}, {24, s.compassInside}});
    EXPECT_EQ(RightMargin(s.compassInside), 12); // the slider takes the room there is
    EXPECT_EQ(s.zoomSlider->GetRect().y, 12);

    const std::vector<Windows> table{
        Join({{Text(page, "Meridians")}, Line(s.meridians)}),
        Join({{Text(page, "Fields")}, Line(s.fields), Line(s.fieldNames)}),
        Join({{Text(page, "Squares")}, Line(s.squares), Line(s.squareNames)}),
        Join({{Text(page, "Compass")}, Line(s.compass), Line(s.compassFigures)}),
        Join({{Text(page, "Radials    ")}, Line(s.radials)}),
        Join({{Text(page, "Range Circles ")}, Line(s.rangeCircles)}),
    };
    ExpectTable(table, 12, 6);
    const Windows headings{Text(page, "Plot"),       Text(page, "Lines\nColours"), Text(page, "Alpha"),
                           Text(page, "Line Width"), Text(page, "Plot Text"),      Text(page, "Text Colour"),
                           Text(page, "Font"),       Text(page, "Alpha", 1)};
    ExpectHeadings(headings, table[0], 6);
    Windows cells = table[1];
    cells.erase(cells.begin());
    for (std::size_t i = 0; i < headings.size(); ++i)
        EXPECT_EQ(headings[i]->GetRect().x, cells[i]->GetRect().x) << Name(headings[i]);
    Windows firstHeadings = headings;
    firstHeadings.insert(firstHeadings.begin(), nullptr);
    std::vector<Windows> withHeadings = table;
    withHeadings.insert(withHeadings.begin(), firstHeadings);
    ExpectColumns(withHeadings, 12);
    EXPECT_EQ(GapBetween({s.zoomSlider, s.zoom, s.size}, headings), 12);

    // What is only said of some reaches over the columns of the texts.
    ExpectInLine({s.radials.alpha, s.radialsEvery});
    EXPECT_EQ(s.radialsEvery->GetRect().x, s.fieldNames.show->GetRect().x);
    ExpectInLine({s.rangeCircles.alpha, Text(page, "Every"), s.rangeEvery, s.rangeLegend, s.rangeDegs});
    EXPECT_EQ(Text(page, "Every")->GetRect().x, s.radialsEvery->GetRect().x);
    ExpectRow({{6, s.rangeEvery}, {12, s.rangeLegend}, {12, Text(page, "Degs")}, {6, s.rangeDegs}});
}

TEST_F(OptionsLayout, OfTheBorders)
{
    const wxWindow* page = Page(1);
    std::vector<Windows> rows;
    for (const auto& row : dialog->m_bordersPage.rows)
    {
        rows.push_back(Join({Line(row.lines), {row.file}}));
        EXPECT_EQ(RightMargin(row.file), 12);
    }
    ExpectTable(rows, 12, 6);
    const Windows headings{Text(page, "Plot"), Text(page, "Colour"), Text(page, "Alpha"), Text(page, "Line Width"),
                           Text(page, "File to plot")};
    ExpectHeadings(headings, rows[0], 6);
    rows.insert(rows.begin(), headings);
    ExpectColumns(rows, 12);
    EXPECT_EQ(headings[0]->GetPosition(), wxPoint(12, 12));
}

TEST_F(OptionsLayout, OfTheTexts)
{
    const wxWindow* page = Page(2);
    std::vector<Windows> rows;
    for (const auto& row : dialog->m_textPage.rows)
    {
        rows.push_back(
            {row.text.show, row.text.colour, row.text.alpha, row.text.font, row.file, row.align, row.avoidCollisions});
        EXPECT_EQ(RightMargin(row.avoidCollisions), 12);
        EXPECT_EQ(GapToTheLeft(row.align), 12);
    }
    ExpectTable(rows, 12, 6);
    const Windows headings{Text(page, "Plot"), Text(page, "Colour"),       Text(page, "Alpha"),
                           Text(page, "Font"), Text(page, "File to plot"), Text(page, "Alignment")};
    ExpectHeadings(headings, rows[0], 6);
    rows.insert(rows.begin(), headings);
    ExpectColumns(rows, 12);
    EXPECT_EQ(headings[0]->GetPosition(), wxPoint(12, 12));
}

TEST_F(OptionsLayout, OfTheSourceMaps)
{
    const wxWindow* page = Page(3);
    const auto& [first, second] = dialog->m_sourceMapPage.rows;
    std::vector<Windows> rows{{first.show, first.file}, {second.show, second.file}};
    ExpectTable(rows, 12, 6);
    const Windows headings{Text(page, "Plot"), Text(page, "Mapfile")};
    ExpectHeadings(headings, rows[0], 6);
    rows.insert(rows.begin(), headings);
    ExpectColumns(rows, 12);
    EXPECT_EQ(RightMargin(first.file), 12);
    EXPECT_EQ(headings[0]->GetPosition(), wxPoint(12, 12));
    EXPECT_EQ(GapBetween({second.file}, {Text(page, "Built-in")}), 18);
    EXPECT_EQ(GapBetween({Text(page, "Built-in")}, {Text(page, "Please")}), 18);
    EXPECT_EQ(Text(page, "Please")->GetRect().x, 12);
}

TEST_F(OptionsLayout, OfThePlottedSquares)
{
    const wxWindow* page = Page(4);
    for (std::size_t i = 0; i < 2; ++i)
    {
        const ui::PlotSquaresPage::Slot& slot = dialog->m_plotSquaresPage.slots[i];
        const wxWindow* const group = Text(page, i == 0 ? "Squares to plot (File 1)" : "Squares to plot (File 2)");
        EXPECT_EQ(RightMargin(group), 12);
        const int left = slot.show->GetRect().x;
        EXPECT_EQ(slot.stipple->GetRect().x, left);
        ExpectInLine({slot.show, slot.file});
        EXPECT_EQ(GapToTheLeft(slot.file), 12);
        EXPECT_EQ(RightMargin(slot.file), left);
        const Windows texts{Text(group, "Alpha"), Text(group, "Border"), Text(group, "Fill")};
        ExpectRow({{12, texts[0]},
                   {6, slot.alpha},
                   {12, texts[1]},
                   {6, slot.borderColour},
                   {12, texts[2]},
                   {6, slot.fillColour},
                   {12, slot.preview}});
        ExpectInLine({slot.stipple, slot.preview});
        EXPECT_EQ(GapBetween({slot.file}, {slot.preview}), 12);
    }
    const wxWindow* const first = Text(page, "Squares to plot (File 1)");
    const wxWindow* const second = Text(page, "Squares to plot (File 2)");
    EXPECT_EQ(first->GetPosition(), wxPoint(12, 12));
    EXPECT_EQ(GapBetween({first}, {second}), 12);
    EXPECT_EQ(GapBetween({second}, {Text(page, "The file")}), 12);
}

TEST_F(OptionsLayout, OfTheSun)
{
    const wxWindow* page = Page(5);
    const ui::GraylinePage& sun = dialog->m_graylinePage;
    ExpectTable({{sun.show},
                 {Text(page, "Grayzone"), sun.width},
                 {sun.gradient},
                 {Text(page, "Darkening grey"), sun.darkeningGrey},
                 {Text(page, "Darkening night"), sun.darkeningNight}},
                12, 6);
    EXPECT_EQ(sun.gradient->GetRect().x, 12);
    EXPECT_EQ(std::min({GapToTheLeft(sun.width), GapToTheLeft(sun.darkeningGrey), GapToTheLeft(sun.darkeningNight)}),
              12);
    EXPECT_EQ(sun.show->GetPosition(), wxPoint(12, 12));
}

TEST_F(OptionsLayout, OfThePropagation)
{
    const wxWindow* page = Inner(0);
    const ui::VoacapMainPage& main = dialog->m_voacapPage.main;
    EXPECT_EQ(main.show->GetPosition(), wxPoint(12, 12));
    ExpectRow({{12, Text(page, "Propagation Engine")},
               {6, main.engine},
               {12, Text(page, "SSN")},
               {6, main.ssn},
               {12, Text(page, "Grid")},
               {6, main.grid}});
    ExpectRow({{12, Text(page, "Icepac")}, {6, main.directory}});
    EXPECT_EQ(RightMargin(main.directory), 12);
    ExpectRow({{12, Text(page, "Tx Pwr")}, {6, main.txPower}});
    const wxWindow* const group = Text(page, "System Variables");
    EXPECT_EQ(main.frequency->GetRect().x, 12);
    EXPECT_EQ(GapToTheLeft(group), 24);
    ExpectRow({{12, Text(page, "User Fq")}, {6, main.userFrequency}});
    EXPECT_EQ(GapBetween({main.show}, {main.engine, main.ssn, main.grid}), 12);
    EXPECT_EQ(GapBetween({main.engine, main.ssn, main.grid}, {main.directory}), 12);
    // The note on the directory has its room between them.
    const int noted = GapBetween({main.directory}, {group});
    EXPECT_EQ(GapBetween({main.directory}, {main.txPower}), noted);
    EXPECT_EQ(noted, NoteHeight(1) + 6);
    EXPECT_EQ(GapBetween({main.txPower}, {main.frequency}), 12);
    EXPECT_EQ(GapBetween({main.frequency}, {main.userFrequency}), 12);
    EXPECT_EQ(GapBetween({main.link}, {main.externalResult}), 12);
    EXPECT_EQ(main.link->GetRect().x, 12);
    ExpectRow({{12, main.useExternalResult}, {12, main.externalResult}});
    EXPECT_EQ(RightMargin(main.externalResult), 12);
    std::vector<Windows> rows;
    const char* const labels[] = {"Man", "Minimum", "Required C", "Required S", "Multipath", "Max"};
    for (std::size_t i = 0; i < 6; ++i)
        rows.push_back({Text(group, labels[i]), main.systemVariables[i]});
    for (std::size_t i = 1; i < rows.size(); ++i) // the notes beside the fields are a little higher
        EXPECT_NEAR(GapBetween(rows[i - 1], rows[i]), 6, 2);
    ExpectColumns(rows, 12);
    EXPECT_EQ(GapToTheLeft(rows[0][0]), 6);
}

TEST_F(OptionsLayout, OfTheAppearanceOfThePropagation)
{
    const ui::VoacapAppearancePage& page = dialog->m_voacapPage.appearance;
    std::vector<Windows> steps;
    for (const auto& step : page.steps)
        steps.push_back({step.colour, step.value});
    ExpectTable(steps, 6, 2);
    EXPECT_EQ(GapToTheLeft(page.steps[0].colour), 12);
    EXPECT_EQ(GapToTheLeft(page.explanation), 12);
    EXPECT_EQ(RightMargin(page.explanation), page.parameter->GetRect().x);
    EXPECT_EQ(page.explanation->GetRect().y, page.parameter->GetRect().y);
    EXPECT_EQ(page.steps[0].colour->GetRect().y, page.parameter->GetRect().y);
    EXPECT_EQ(GapBetween({page.explanation}, {page.autoLevel}), 12);
    EXPECT_EQ(GapBetween({page.autoLevel}, {page.greyScale}), 6);
    EXPECT_EQ(GapBetween({page.greyScale}, {page.alpha}), 6);
    EXPECT_EQ(GapBetween({page.alpha}, {page.legend}), 6);
    const wxWindow* const label = Text(Inner(1), "Alpha");
    ExpectInLine({label, page.alpha});
    EXPECT_EQ(GapToTheLeft(page.alpha), 6);
    for (const wxWindow* const window : Windows{page.autoLevel, page.greyScale, label, page.legend})
        EXPECT_EQ(window->GetRect().x, page.explanation->GetRect().x) << Name(window);
    const wxWindow* const group = page.explanation->GetParent();
    EXPECT_EQ(group->GetPosition(), wxPoint(12, 12)); // it fills the page
    EXPECT_EQ(group->GetParent()->GetClientSize() - group->GetSize(), wxSize(24, 24));
    auto* const plain = new wxRadioBox(dialog, wxID_ANY, page.parameter->GetLabel(), wxDefaultPosition, wxDefaultSize,
                                       page.parameter->GetStrings(), 1, wxRA_SPECIFY_COLS);
    EXPECT_EQ(page.parameter->GetSize().x, plain->GetBestSize().x + 24); // room for the title
}

TEST_F(OptionsLayout, OfTheAntennas)
{
    const wxWindow* page = Inner(2);
    const ui::VoacapAntennaPage& antennas = dialog->m_voacapPage.antenna;
    const Windows groups{Text(page, "Transmitter"), Text(page, "Receiver"), Text(page, "Ionospheric")};
    EXPECT_EQ(groups[0]->GetPosition(), wxPoint(12, 12));
    for (const wxWindow* const group : groups)
        EXPECT_EQ(RightMargin(group), 12) << Name(group);
    for (const std::size_t below : {1U, 2U}) // the notes on three fields stand between
        EXPECT_EQ(GapBetween({groups[below - 1]}, {groups[below]}), NoteHeight(3) + 6);
    for (const auto& [group, antenna] :
         {std::pair(groups[0], antennas.transmitter), std::pair(groups[1], antennas.receiver)})
    {
        ExpectRow({{12, antenna.gain}, {12, Text(group, "Direction")}, {12, antenna.direction}, {6, antenna.file}});
        EXPECT_EQ(RightMargin(antenna.file), Text(group, "Gain")->GetRect().x);
    }
    const wxWindow* const box = groups[2];
    ExpectRow({{12, antennas.layerMultipliers[0]},
               {12, Text(box, "* FoF1")},
               {12, antennas.layerMultipliers[1]},
               {12, Text(box, "* FoF2")},
               {12, antennas.layerMultipliers[2]},
               {12, Text(box, "* FoEs")},
               {12, antennas.layerMultipliers[3]}});
    EXPECT_EQ(GapBetween({Text(box, "Layer")}, {antennas.layerMultipliers[0]}), 12);
    EXPECT_EQ(Text(box, "Layer")->GetRect().x, Text(box, "* FoE")->GetRect().x);
}

TEST_F(OptionsLayout, OfTheTime)
{
    const wxWindow* page = Page(7);
    const ui::TimePage& time = dialog->m_timePage;
    const wxWindow* const text = Text(page, "This time");
    EXPECT_EQ(text->GetPosition(), wxPoint(12, 12));
    EXPECT_EQ(GapBetween({text}, {time.mode}), 12);
    EXPECT_EQ(GapBetween({time.mode}, {time.hour}), 12);
    EXPECT_EQ(GapBetween({time.hour}, {time.date}), 12);
    EXPECT_EQ(GapBetween({time.date}, {time.now}), 12);
    ExpectRow({{12, Text(page, "Hour")}, {6, time.hour}, {12, Text(page, "Minute")}, {6, time.minute}});
    for (const wxWindow* const window : Windows{time.mode, time.date, time.now})
        EXPECT_EQ(window->GetRect().x, 12) << Name(window);
}

TEST_F(OptionsLayout, OfTheHome)
{
    const wxWindow* page = Page(8);
    const ui::HomePage& controls = dialog->m_homePage;
    std::vector<Windows> columns;
    for (const bool isLatitude : {true, false})
    {
        const ui::PositionRow& row = isLatitude ? controls.latitude : controls.longitude;
        const int number = isLatitude ? 0 : 1;
        const Windows headings{Text(page, isLatitude ? "Decimal (N" : "Decimal (E"), Text(page, "Deg", number),
                               Text(page, "Min", number), Text(page, "Sec", number),
                               Text(page, isLatitude ? "N/S" : "E/W")};
        const Windows cells{Text(page, isLatitude ? "Latitude" : "Longitude"),
                            row.decimal,
                            row.toDecimal,
                            row.deg,
                            row.min,
                            row.sec,
                            row.hemisphere};
        ExpectInLine(cells);
        ExpectHeadings(headings, cells, 6);
        columns.push_back({nullptr, headings[0], nullptr, headings[1], headings[2], headings[3], headings[4]});
        columns.push_back(cells);
    }
    EXPECT_EQ(GapBetween({controls.latitude.decimal, controls.latitude.toDecimal, controls.latitude.hemisphere},
                         {Text(page, "Decimal (E")}),
              6);
    columns.insert(columns.begin(), {Text(page, "Locator"), controls.locator});
    ExpectColumns(columns, 12);
    ExpectInLine(columns.front());
    EXPECT_EQ(controls.locator->GetSize().x, controls.latitude.decimal->GetSize().x);
    EXPECT_EQ(GapBetween({controls.longitude.decimal, controls.longitude.toDecimal, controls.longitude.hemisphere},
                         {controls.locator}),
              6);
    EXPECT_EQ(Text(page, "Decimal (N")->GetRect().y, 12);
    EXPECT_EQ(GapBetween({controls.locator}, {controls.latLonFromLocator}), 12);
    ExpectRow({{12, controls.latLonFromLocator}, {6, controls.locatorFromLatLon}});
    EXPECT_EQ(GapBetween({controls.latLonFromLocator}, {controls.link}), 24);
    EXPECT_EQ(controls.link->GetRect().x, 12);
}

TEST_F(OptionsLayout, OfTheButtonsBelow)
{
    const wxWindow* const ok = dialog->FindWindow(wxID_OK);
    const wxWindow* const cancel = dialog->FindWindow(wxID_CANCEL);
    const wxWindow* const group = dialog->m_book->GetParent();
    ExpectInLine({dialog->m_loadConfig, dialog->m_saveConfig, ok, cancel});
    EXPECT_EQ(GapToTheLeft(dialog->m_saveConfig), 6);
    EXPECT_EQ(GapToTheLeft(cancel), 6);
    // What room is left stays free.
    EXPECT_GT(GapToTheLeft(ok), 24);
    EXPECT_LT(ok->GetSize().x, 2 * cancel->GetSize().x);
    EXPECT_LT(cancel->GetSize().x, 2 * dialog->m_loadConfig->GetSize().x);
    EXPECT_EQ(GapBetween({dialog->m_book}, {ok}), 12);
    EXPECT_EQ(RightMargin(cancel), dialog->m_loadConfig->GetRect().x);
    EXPECT_EQ(RightMargin(dialog->m_book), dialog->m_loadConfig->GetRect().x);
    EXPECT_EQ(group->GetPosition(), wxPoint(6, 6));
    EXPECT_EQ(RightMargin(group), 6);
    EXPECT_EQ(dialog->GetClientSize().y - group->GetRect().y - group->GetRect().height, 6);
    const wxWindow* const inner = dialog->m_voacapPage.book;
    EXPECT_EQ(inner->GetPosition(), wxPoint(6, 6));
    EXPECT_EQ(RightMargin(inner), 6);
    EXPECT_EQ(inner->GetParent()->GetClientSize().y - inner->GetRect().height, 12);
}

TEST_F(OptionsLayout, GivesFieldsRoomForTheirDigits)
{
    const auto frameOf = [](const wxTextCtrl* field, std::size_t digits)
    { return field->GetMinSize().x - field->GetTextExtent(wxString('0', digits)).x; };
    const int frame = frameOf(dialog->m_homePage.locator, 10);
    EXPECT_TRUE(frame >= 0 && frame < 40) << frame;
    const auto expectRoom = [&](const wxTextCtrl* field, std::size_t digits)
    { EXPECT_EQ(frameOf(field, digits), frame) << digits; };
    expectRoom(dialog->m_settingsPage.zoom, 6);
    expectRoom(dialog->m_settingsPage.size, 5);
    expectRoom(dialog->m_settingsPage.rangeEvery, 5);
    for (const wxTextCtrl* const field : dialog->m_voacapPage.main.systemVariables)
        expectRoom(field, 8);
    expectRoom(dialog->m_voacapPage.main.userFrequency, 8);
    for (const auto& step : dialog->m_voacapPage.appearance.steps)
        expectRoom(step.value, 8);
    for (const ui::PositionRow& row : {dialog->m_homePage.latitude, dialog->m_homePage.longitude})
    {
        expectRoom(row.decimal, 14);
        for (const wxTextCtrl* const field : {row.deg, row.min, row.sec})
            expectRoom(field, 4);
    }
    EXPECT_GE(dialog->m_settingsPage.fieldNames.font->GetSize().x, 150);
}
} // namespace

#include "ui/Native.h"
#include "ui/Options.h"

// The names that screen readers say where no text of its own stands before a control.

namespace
{
using ui::native::Name;

void NameLines(const ui::LineRow& row, const wxString& layer)
{
    Name(row.show, layer + ": Plot");
    Name(row.colour, layer + ": Colour");
    Name(row.alpha, layer + ": Alpha");
    Name(row.lineWidth, layer + ": Line Width");
}

void NameText(const ui::TextStyleRow& row, const wxString& layer)
{
    Name(row.show, layer + ": Plot Text");
    Name(row.colour, layer + ": Text Colour");
    Name(row.font, layer + ": Font");
    Name(row.alpha, layer + ": Text Alpha");
}

void NameFile(wxCheckBox* show, wxFilePickerCtrl* file, const wxString& slot)
{
    Name(show, slot + ": Plot");
    Name(file, slot + ": File to plot");
}

void NameAntenna(const ui::AntennaGroup& antenna, const wxString& group)
{
    Name(antenna.gain, "Gain (dBi) or Design fq (MHz): " + group);
    Name(antenna.direction, "Direction (degs): " + group);
    Name(antenna.file, "Antenna file: " + group);
}

void NamePosition(const ui::PositionRow& row, const wxString& axis, const wxString& hemispheres)
{
    Name(row.decimal, axis + ", decimal degrees");
    Name(row.toDecimal, axis + ": decimal from degrees, minutes and seconds");
    Name(row.deg, axis + ": Deg");
    Name(row.min, axis + ": Min");
    Name(row.sec, axis + ": Sec");
    Name(row.hemisphere, axis + ": " + hemispheres);
}

void NameSettingsPage(const ui::SettingsPage& page)
{
    Name(page.zoomSlider, "Zoom in km");
    Name(page.zoom, "Zoom in km, as a number");
    NameLines(page.meridians, "Meridians");
    NameLines(page.fields, "Fields");
    NameText(page.fieldNames, "Fields");
    NameLines(page.squares, "Squares");
    NameText(page.squareNames, "Squares");
    NameLines(page.compass, "Compass");
    NameText(page.compassFigures, "Compass");
    NameLines(page.radials, "Radials");
    Name(page.radialsEvery, "Radials: Every");
    NameLines(page.rangeCircles, "Range Circles");
    Name(page.rangeEvery, "Every so many km: Range Circles");
    Name(page.rangeLegend, "Range Circles: Legend");
    Name(page.rangeDegs, "Degs: bearing of the legend");
}
} // namespace

void Options::NameControls()
{
    NameSettingsPage(m_settingsPage);
    for (std::size_t i = 0; i < m_bordersPage.rows.size(); ++i)
    {
        const wxString slot = wxString::Format("Borders %zu", i + 1);
        NameLines(m_bordersPage.rows[i].lines, slot);
        NameFile(m_bordersPage.rows[i].lines.show, m_bordersPage.rows[i].file, slot);
    }
    for (std::size_t i = 0; i < m_textPage.rows.size(); ++i)
    {
        const ui::TextPage::Row& row = m_textPage.rows[i];
        const wxString slot = wxString::Format("Text %zu", i + 1);
        NameText(row.text, slot);
        NameFile(row.text.show, row.file, slot);
        Name(row.align, slot + ": Alignment");
        Name(row.avoidCollisions, slot + ": Collision detect");
    }
    for (std::size_t i = 0; i < m_sourceMapPage.rows.size(); ++i)
        NameFile(m_sourceMapPage.rows[i].show, m_sourceMapPage.rows[i].file, wxString::Format("Mapfile %zu", i + 1));
    for (std::size_t i = 0; i < m_plotSquaresPage.slots.size(); ++i)
    {
        const ui::PlotSquaresPage::Slot& squares = m_plotSquaresPage.slots[i];
        const wxString slot = wxString::Format("Squares %zu", i + 1);
        NameFile(squares.show, squares.file, slot);
        Name(squares.stipple, slot + ": Hatching");
        Name(squares.alpha, "Alpha: " + slot);
        Name(squares.borderColour, "Border Colour: " + slot);
        Name(squares.fillColour, "Fill Colour: " + slot);
    }
    Name(m_voacapPage.main.directory, "Icepac/Voacap directory");
    Name(m_voacapPage.main.externalResult, "External vg1/ig1file");
    const auto& steps = m_voacapPage.appearance.steps;
    for (std::size_t i = 0; i < steps.size(); ++i)
    {
        const wxString step = wxString::Format("Step %zu: ", steps.size() - i);
        Name(steps[i].colour, step + "Colour");
        Name(steps[i].value, step + "from this value on");
    }
    Name(m_voacapPage.appearance.explanation, "What the parameter means");
    NameAntenna(m_voacapPage.antenna.transmitter, "Transmitter antenna");
    NameAntenna(m_voacapPage.antenna.receiver, "Receiver Antenna");
    Name(m_timePage.date, "Date");
    NamePosition(m_homePage.latitude, "Latitude", "N/S");
    NamePosition(m_homePage.longitude, "Longitude", "E/W");
}

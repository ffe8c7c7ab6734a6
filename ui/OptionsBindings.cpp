#include "ui/KavMapOptions.h"

// The tables of the options dialog: which control edits which setting.

void KavMapOptions::BindLines(const ui::LineRow& row, LineStyle& lines)
{
    m_bindings.Bind(row.show, lines.show);
    m_bindings.Bind(row.colour, lines.colour);
    m_bindings.Bind(row.alpha, lines.alpha);
    m_bindings.Bind(row.lineWidth, lines.lineWidth);
}

void KavMapOptions::BindText(const ui::TextStyleRow& row, TextStyle& text)
{
    m_bindings.Bind(row.show, text.show);
    m_bindings.Bind(row.colour, text.colour);
    m_bindings.Bind(row.font, text.font);
    m_bindings.Bind(row.alpha, text.alpha);
}

void KavMapOptions::BindAntenna(ui::ControlBindings& bindings, const ui::AntennaGroup& group, AntennaSettings& antenna)
{
    bindings.Bind(group.gain, antenna.gain);
    bindings.Bind(group.direction, antenna.directionDeg);
    bindings.Bind(group.file, antenna.file);
}

void KavMapOptions::BindSettingsPage()
{
    const ui::SettingsPage& page = m_settingsPage;
    m_bindings.Bind(page.zoom, m_settings.zoom);
    m_bindings.Bind(page.size, m_settings.size);
    m_bindings.Bind(page.compassInside, m_settings.compass.insideMap);
    BindLines(page.meridians, m_settings.meridians);
    BindLines(page.fields, m_settings.fields);
    BindText(page.fieldNames, m_settings.fields.text);
    BindLines(page.squares, m_settings.squares);
    BindText(page.squareNames, m_settings.squares.text);
    BindLines(page.compass, m_settings.compass);
    BindText(page.compassFigures, m_settings.compass.text);
    BindLines(page.radials, m_settings.radials);
    m_bindings.Bind(page.radialsEvery, m_settings.radials.every);
    BindLines(page.rangeCircles, m_settings.rangeCircles);
    m_bindings.Bind(page.rangeEvery, m_settings.rangeCircles.distanceKm);
    m_bindings.Bind(page.rangeLegend, m_settings.rangeCircles.legendShow);
    m_bindings.Bind(page.rangeDegs, m_settings.rangeCircles.legendBearingDeg);
}

void KavMapOptions::BindFilePages()
{
    for (std::size_t i = 0; i < m_settings.borders.size(); ++i)
    {
        BindLines(m_bordersPage.rows[i].lines, m_settings.borders[i]);
        m_bindings.Bind(m_bordersPage.rows[i].file, m_settings.borders[i].file);
    }
    for (std::size_t i = 0; i < m_settings.texts.size(); ++i)
    {
        const ui::TextPage::Row& row = m_textPage.rows[i];
        TextSlot& slot = m_settings.texts[i];
        BindText(row.text, slot);
        m_bindings.Bind(row.file, slot.file);
        m_bindings.Bind(row.align, slot.align);
        m_bindings.Bind(row.avoidCollisions, slot.avoidCollisions);
    }
    for (std::size_t i = 0; i < m_settings.sourceBitmaps.size(); ++i)
    {
        m_bindings.Bind(m_sourceMapPage.rows[i].show, m_settings.sourceBitmaps[i].show);
        m_bindings.Bind(m_sourceMapPage.rows[i].file, m_settings.sourceBitmaps[i].file);
    }
}

void KavMapOptions::BindPlotSquaresPage()
{
    for (std::size_t i = 0; i < m_settings.plotSquares.size(); ++i)
    {
        const ui::PlotSquaresPage::Slot& controls = m_plotSquaresPage.slots[i];
        PlotSquaresSlot& slot = m_settings.plotSquares[i];
        m_bindings.Bind(controls.show, slot.show);
        m_bindings.Bind(controls.file, slot.file);
        m_bindings.Bind(controls.stipple, slot.stipple);
        m_bindings.Bind(controls.alpha, slot.alpha);
        m_bindings.Bind(controls.borderColour, slot.borderColour);
        m_bindings.Bind(controls.fillColour, slot.fillColour);
    }
}

void KavMapOptions::BindGraylinePage()
{
    GreyzoneSettings& greyzone = m_settings.greyzone;
    m_bindings.Bind(m_graylinePage.show, greyzone.show);
    m_bindings.Bind(m_graylinePage.width, greyzone.widthDeg);
    m_bindings.Bind(m_graylinePage.gradient, greyzone.gradient);
    m_bindings.Bind(m_graylinePage.darkeningGrey, greyzone.darkeningGrey);
    m_bindings.Bind(m_graylinePage.darkeningNight, greyzone.darkeningNight);
}

void KavMapOptions::BindVoacapMainPage(ui::ControlBindings& bindings, PropagationSettings& p)
{
    const ui::VoacapMainPage& page = m_voacapPage.main;
    bindings.Bind(page.show, p.show);
    bindings.Bind(page.engine, p.engine);
    bindings.Bind(page.ssn, p.sunspotNumber);
    bindings.Bind(page.grid, p.grid);
    bindings.Bind(page.directory, p.directory);
    bindings.Bind(page.txPower, p.txPower);
    bindings.Bind(page.frequency, p.frequency);
    bindings.Bind(page.userFrequency, p.userFrequencyMHz);
    wxString* const variables[] = {&p.manMadeNoise, &p.minTakeOffAngle,         &p.requiredReliability,
                                   &p.requiredSnr,  &p.multipathPowerTolerance, &p.maxMultipathDelay};
    for (std::size_t i = 0; i < page.systemVariables.size(); ++i)
        bindings.Bind(page.systemVariables[i], *variables[i]);
    bindings.Bind(page.useExternalResult, p.useExternalResult);
    bindings.Bind(page.externalResult, p.externalResult);
}

void KavMapOptions::BindVoacapAppearancePage()
{
    const ui::VoacapAppearancePage& page = m_voacapPage.appearance;
    PropagationSettings& p = m_settings.propagation;
    m_bindings.Bind(page.parameter, p.parameter);
    m_scales.BindTo(m_bindings, p.scales);
    m_bindings.Bind(page.autoLevel, p.autoLevel);
    m_bindings.Bind(page.greyScale, p.greyScale);
    m_bindings.Bind(page.alpha, p.alpha);
    m_bindings.Bind(page.legend, p.legend);
}

void KavMapOptions::BindVoacapAntennaPage(ui::ControlBindings& bindings, PropagationSettings& p)
{
    const ui::VoacapAntennaPage& page = m_voacapPage.antenna;
    BindAntenna(bindings, page.transmitter, p.transmitter);
    BindAntenna(bindings, page.receiver, p.receiver);
    for (std::size_t i = 0; i < page.layerMultipliers.size(); ++i)
        bindings.Bind(page.layerMultipliers[i], p.layerMultipliers[i]);
}

void KavMapOptions::BindTimePage()
{
    GreyzoneSettings& greyzone = m_settings.greyzone;
    m_bindings.Bind(m_timePage.mode, greyzone.timeMode);
    m_bindings.Bind(m_timePage.hour, greyzone.once.hour);
    m_bindings.Bind(m_timePage.minute, greyzone.once.minute);
    m_bindings.Bind(m_timePage.date, greyzone.once);
}

void KavMapOptions::BindHomePage()
{
    m_bindings.Bind(m_homePage.latitude.decimal, m_settings.centreLat);
    m_bindings.Bind(m_homePage.longitude.decimal, m_settings.centreLon);
    m_bindings.Bind(m_homePage.locator, m_settings.centreLoc);
}

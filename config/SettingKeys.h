#pragma once

// The keys of the settings file with their defaults: the one place where they are listed, but for the colour scales of
// the propagation parameters. Whoever goes through all settings includes it.

#include "config/PropagationParameters.h"
#include "config/Settings.h"

namespace config
{
inline wxString Numbered(const char* key, std::size_t number)
{
    return wxString::Format("%s%zu", key, number);
}

template <class Visit>
void VisitScaleColours(const ScaleSteps& steps, ColourScale& scale, Visit& visit)
{
    for (std::size_t i = 0; i < steps.size(); ++i)
        visit(wxString::Format("Propagation/%sColour", steps[i].colourKey), scale.colours[steps.size() - 1 - i],
              steps[i].colour);
}

template <class Visit>
void VisitScaleValues(const ScaleSteps& steps, ColourScale& scale, Visit& visit)
{
    for (std::size_t i = 0; i < steps.size(); ++i)
        visit(wxString::Format("Propagation/%sValue", steps[i].thresholdKey), scale.values[steps.size() - 1 - i],
              steps[i].threshold);
}

template <class Visit>
void VisitTextStyle(const wxString& group, TextStyle& text, bool show, long colour, long alpha, Visit& visit)
{
    visit(group + "/FontShow", text.show, show);
    visit(group + "/Font", text.font, "Verdana");
    visit(group + "/FontColour", text.colour, colour);
    visit(group + "/FontAlpha", text.alpha, alpha);
}

template <class Visit>
void VisitGrid(const wxString& group, LabelledLines& grid, long colour, long lineWidth, Visit& visit)
{
    visit(group + "/Show", grid.show, false);
    visit(group + "/Colour", grid.colour, colour);
    visit(group + "/Alpha", grid.alpha, 100);
    visit(group + "/LineWidth", grid.lineWidth, lineWidth);
    VisitTextStyle(group, grid.text, false, colour, 100, visit);
}

template <class Visit>
void VisitBorderSlot(std::size_t n, BorderSlot& slot, Visit& visit)
{
    visit(Numbered("Borders/Show", n), slot.show, false);
    visit(Numbered("Borders/Colour", n), slot.colour, 0);
    visit(Numbered("Borders/Alpha", n), slot.alpha, 100);
    visit(Numbered("Borders/LineWidth", n), slot.lineWidth, 1);
    visit(Numbered("Borders/File", n), slot.file, n == 1 ? "mapper.pnt" : "");
}

template <class Visit>
void VisitTextSlot(std::size_t n, TextSlot& slot, Visit& visit)
{
    static constexpr std::array<long, 3> kColours{9868950, 0, 65280};
    visit(Numbered("Text/Show", n), slot.show, false);
    visit(Numbered("Text/Font", n), slot.font, "Verdana");
    visit(Numbered("Text/FontColour", n), slot.colour, kColours[n - 1]);
    visit(Numbered("Text/FontAlpha", n), slot.alpha, 100);
    visit(Numbered("Text/File", n), slot.file, "");
    visit(Numbered("Text/Align", n), slot.align, 0);
    visit(Numbered("Text/Coll", n), slot.avoidCollisions, false);
}

template <class Visit>
void VisitPlotSquaresSlot(std::size_t n, PlotSquaresSlot& slot, Visit& visit)
{
    const bool first = n == 1;
    visit(Numbered("PlotSquares/Show", n), slot.show, false);
    visit(Numbered("PlotSquares/File", n), slot.file, "");
    visit(Numbered("PlotSquares/Stipple", n), slot.stipple, 2);
    visit(Numbered("PlotSquares/BorderColour", n), slot.borderColour, first ? 0 : 255);
    visit(Numbered("PlotSquares/FillColour", n), slot.fillColour, first ? 255 : 16776960);
    visit(Numbered("PlotSquares/Alpha", n), slot.alpha, first ? 130 : 80);
}

template <class Visit>
void VisitGreyzone(GreyzoneSettings& greyzone, Visit& visit)
{
    const UtcTime now = UtcNow();
    visit("Greyzone/Show", greyzone.show, false);
    visit("Greyzone/Width", greyzone.widthDeg, 6);
    visit("Greyzone/Gradient", greyzone.gradient, true);
    visit("Greyzone/DarkeningGrey", greyzone.darkeningGrey, 60);
    visit("Greyzone/DarkeningNight", greyzone.darkeningNight, 30);
    visit("Greyzone/Opt", greyzone.timeMode, kRealTime);
    visit("Greyzone/CalYr", greyzone.once.year, now.year);
    visit("Greyzone/CalMo", greyzone.once.month, now.month);
    visit("Greyzone/CalDa", greyzone.once.day, now.day);
    visit("Greyzone/CalHo", greyzone.once.hour, now.hour);
    visit("Greyzone/CalMi", greyzone.once.minute, now.minute);
}

template <class Visit>
void VisitPropagation(PropagationSettings& p, Visit& visit)
{
    visit("Propagation/Show", p.show, false);
    visit("Propagation/Engine", p.engine, 1);
    visit("Propagation/SSN", p.sunspotNumber, 16);
    visit("Propagation/Grid", p.grid, 1);
    visit("Propagation/Dir", p.directory, "");
    visit("Propagation/Fq", p.frequency, 3);
    visit("Propagation/Alpha", p.alpha, 120);
    visit("Propagation/GreyScale", p.greyScale, 0);
    VisitScaleColours(kParameters[0].steps, p.scales[0], visit);

    visit("Propagation/TxPwr", p.txPower, 3);
    visit("Propagation/TxGain", p.transmitter.gain, "3.0");
    visit("Propagation/RxGain", p.receiver.gain, "3.0");
    visit("Propagation/ExtVg1", p.useExternalResult, false);
    visit("Propagation/ExtVg1File", p.externalResult, "");
    visit("Propagation/UserFq", p.userFrequencyMHz, "5.1");
    visit("Propagation/MMN", p.manMadeNoise, "155");
    visit("Propagation/MTA", p.minTakeOffAngle, "1");
    visit("Propagation/RCR", p.requiredReliability, "90");
    visit("Propagation/RSN", p.requiredSnr, "24");
    visit("Propagation/MPT", p.multipathPowerTolerance, "3");
    visit("Propagation/MTM", p.maxMultipathDelay, "0.1");
    for (std::size_t i = 0; i < p.layerMultipliers.size(); ++i)
        visit(Numbered("Propagation/Fo", i + 1), p.layerMultipliers[i], i == 3 ? "0.00" : "1.0");

    for (std::size_t i = 1; i < p.scales.size(); ++i)
        VisitScaleColours(kParameters[i].steps, p.scales[i], visit);
    for (std::size_t i = 0; i < p.scales.size(); ++i)
        VisitScaleValues(kParameters[i].steps, p.scales[i], visit);

    visit("Propagation/ParamGrey", p.paramGrey, 0);
    visit("Propagation/ParamLevel", p.autoLevel, 0);
    visit("Propagation/ParamLegend", p.legend, 0);
    visit("Propagation/ParamAlpha", p.paramAlpha, 100);
    visit("Propagation/Param", p.parameter, 0);
    visit("Propagation/Tx1Dir", p.transmitter.directionDeg, "0.0");
    visit("Propagation/Tx1File", p.transmitter.file, "");
    visit("Propagation/Rx1Dir", p.receiver.directionDeg, "0.0");
    visit("Propagation/Rx1File", p.receiver.file, "");
}
} // namespace config

template <class Visit>
void Settings::ForEachSetting(Visit visit)
{
    visit("Center pos/Lat", centreLat, 55.6875);
    visit("Center pos/Lon", centreLon, 12.625);
    visit("Center pos/Loc", centreLoc, "JO65HQ");
    visit("Zoom", zoom, 20000);
    visit("Size", size, 900);

    visit("Meridians/Show", meridians.show, true);
    visit("Meridians/Colour", meridians.colour, 0);
    visit("Meridians/Alpha", meridians.alpha, 50);
    visit("Meridians/LineWidth", meridians.lineWidth, 1);
    config::VisitGrid("Fields", fields, 38400, 2, visit);
    config::VisitGrid("Squares", squares, 6579300, 1, visit);

    visit("Compass/Show", compass.show, true);
    visit("Compass/Colour", compass.colour, 0);
    visit("Compass/Alpha", compass.alpha, 255);
    config::VisitTextStyle("Compass", compass.text, true, 0, 255, visit);
    visit("Compass/InsideMap", compass.insideMap, true);
    visit("Compass/LineWidth", compass.lineWidth, 1);

    visit("Radials/Show", radials.show, true);
    visit("Radials/Colour", radials.colour, 9868950);
    visit("Radials/Alpha", radials.alpha, 100);
    visit("Radials/LineWidth", radials.lineWidth, 1);
    visit("Radials/Every", radials.every, 3);

    for (std::size_t n = 1; n <= borders.size(); ++n)
        config::VisitBorderSlot(n, borders[n - 1], visit);
    for (std::size_t n = 1; n <= texts.size(); ++n)
        config::VisitTextSlot(n, texts[n - 1], visit);

    visit("RangeCircles/RcShow", rangeCircles.show, false);
    visit("RangeCircles/RcColour", rangeCircles.colour, 0);
    visit("RangeCircles/RcAlpha", rangeCircles.alpha, 30);
    visit("RangeCircles/RcLineWidth", rangeCircles.lineWidth, 1);
    visit("RangeCircles/RcDist", rangeCircles.distanceKm, 2500);
    visit("RangeCircles/RcLegendShow", rangeCircles.legendShow, true);
    visit("RangeCircles/RcLegendAng", rangeCircles.legendBearingDeg, 0);

    for (std::size_t n = 1; n <= sourceBitmaps.size(); ++n)
    {
        visit(config::Numbered("SourceBitmap/Show", n), sourceBitmaps[n - 1].show, false);
        visit(config::Numbered("SourceBitmap/File", n), sourceBitmaps[n - 1].file, "");
    }
    for (std::size_t n = 1; n <= plotSquares.size(); ++n)
        config::VisitPlotSquaresSlot(n, plotSquares[n - 1], visit);
    config::VisitGreyzone(greyzone, visit);
    config::VisitPropagation(propagation, visit);
    visit("DefaultIniDir/IniDir", lastIniDirectory, "");
}

#include "reports/SettingRanges.h"

#include "propagation/Engines.h"
#include "render/MapView.h"

namespace reports
{
namespace
{
constexpr char kNearest[] = "the nearest counts";
constexpr char kFirst[] = "counts as the first";
constexpr char kLowByte[] = "its low eight bits count";
constexpr char kNoDate[] = "no such time: the sun stands where the formula puts it";

/// The first that fits counts.
constexpr SettingRange kRanges[] = {
    {"Center pos/Lat", -90, 90, kNearest},
    {"Center pos/Lon", -180, 180, kNearest},
    {"Zoom", 100, 20000, "the disc has the nearest"},
    {"Size", render::kMinMapSize, render::kMaxMapSize, "no map is made"},
    {"Meridians/Alpha", 0, 255, kNearest},
    {"Fields/Alpha", 0, 255, kNearest},
    {"Squares/Alpha", 0, 255, kNearest},
    {"*Alpha*", 0, 255, kLowByte},
    {"*Colour*", 0, 0xFFFFFF, "its low 24 bits count"},
    {"*LineWidth*", 0, render::kMaxMapSize, kNearest},
    {"Radials/Every", 0, 4, kNearest},
    {"Text/Align?", 0, 9, kFirst},
    {"PlotSquares/Stipple?", 0, 6, kNearest},
    {"RangeCircles/RcDist", 100, 20000, "fewer become 100, more draw nothing"},
    {"RangeCircles/RcLegendAng", -360, 360, "whole turns do not count"},
    {"Greyzone/Width", 1, 179, "there is no such greyzone"},
    {"Greyzone/Darkening*", 0, 100, "its light is arbitrary"},
    {"Greyzone/Opt", 0, 1, "no greyline is drawn"},
    {"Greyzone/CalYr", 1901, 2099, kNoDate},
    {"Greyzone/CalMo", 0, 11, kNoDate},
    {"Greyzone/CalDa", 1, 31, kNoDate},
    {"Greyzone/CalHo", 0, 23, kNoDate},
    {"Greyzone/CalMi", 0, 59, kNoDate},
    {"Propagation/Engine", 0, std::size(propagation::kEngines) - 1, "VOACAP is used anyway"},
    {"Propagation/Grid", 0, 10, kNearest},
    {"Propagation/Fq", 0, 8, kNearest},
    {"Propagation/TxPwr", 0, 6, kNearest},
    {"Propagation/Param", 0, 3, kFirst},
    {"Propagation/GreyScale", 0, 1, "counts as 0"},
    {"Propagation/ParamGrey", 0, 1, "it is not used"},
    {"Propagation/ParamLevel", 0, 1, "counts as 0"},
    {"Propagation/ParamLegend", 0, 1, "counts as 0"},
};
} // namespace

const SettingRange* RangeOf(const wxString& key)
{
    for (const SettingRange& range : kRanges)
        if (key.Matches(range.keys))
            return &range;
    return nullptr;
}
} // namespace reports

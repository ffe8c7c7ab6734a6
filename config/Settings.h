#pragma once

#include "config/Choice.h"
#include "config/PropagationParameters.h"
#include "config/UtcTime.h"

#include <wx/string.h>

#include <array>
#include <tuple>

/// How the lines of a layer are drawn.
struct LineStyle
{
    bool show{};
    long colour{}; ///< R + 256 G + 65536 B, as every colour here
    long alpha{};  ///< opacity, 0 invisible .. 255 opaque
    long lineWidth{};
};

/// How the texts of a layer are drawn.
struct TextStyle
{
    bool show{};
    wxString font; ///< the toolkit's user-readable native font description
    long colour{};
    long alpha{};
};

/// A grid with names: its lines and its labels.
struct LabelledLines : LineStyle
{
    TextStyle text;
};

struct CompassSettings : LabelledLines
{
    bool insideMap{};
};

struct RadialsSettings : LineStyle
{
    int every{}; ///< choice
};

struct RangeCirclesSettings : LineStyle
{
    long distanceKm{};
    bool legendShow{};
    long legendBearingDeg{};
};

struct BorderSlot : LineStyle
{
    wxString file;
};

struct TextSlot : TextStyle
{
    wxString file;
    int align{}; ///< choice
    bool avoidCollisions{};
};

struct SourceBitmapSlot
{
    bool show{};
    wxString file;
};

struct PlotSquaresSlot
{
    bool show{};
    wxString file;
    int stipple{}; ///< choice
    long borderColour{};
    long fillColour{};
    long alpha{};
};

/// The greyline, and the time that it shares with the propagation overlay.
struct GreyzoneSettings
{
    bool show{};
    long widthDeg{};
    bool gradient{};
    long darkeningGrey{};  ///< percent: 100 no darkening, 0 black
    long darkeningNight{}; ///< percent
    int timeMode{};        ///< kRealTime, kOnce; any other value draws nothing
    UtcTime once{};        ///< the time of kOnce, its seconds always 0
};

inline constexpr int kRealTime = 0;
inline constexpr int kOnce = 1;
inline constexpr config::Choice<int> kTimeModes[] = {{"Real time", kRealTime}, {"Once", kOnce}};

/// Colours and thresholds of one propagation parameter; index 0 is the lowest step.
struct ColourScale
{
    static constexpr std::size_t kSteps = std::tuple_size_v<config::ScaleSteps>;
    std::array<long, kSteps> colours{};
    std::array<wxString, kSteps> values; ///< numbers as the user typed them
};

struct AntennaSettings
{
    wxString gain; ///< dBi, or the design frequency in MHz for an antenna file
    wxString directionDeg;
    wxString file;
};

/// The propagation overlay. Numbers that are kept as text stay as the user typed them.
struct PropagationSettings
{
    bool show{};
    int engine{}; ///< choice
    long sunspotNumber{};
    int grid{}; ///< choice
    wxString directory;
    int frequency{}; ///< choice
    long alpha{};
    long greyScale{};
    int txPower{}; ///< choice
    AntennaSettings transmitter;
    AntennaSettings receiver;
    bool useExternalResult{};
    wxString externalResult;
    wxString userFrequencyMHz;
    wxString manMadeNoise;
    wxString minTakeOffAngle;
    wxString requiredReliability;
    wxString requiredSnr;
    wxString multipathPowerTolerance;
    wxString maxMultipathDelay;
    std::array<wxString, 4> layerMultipliers; ///< FoE, FoF1, FoF2, FoEs
    long paramGrey{};                         ///< kept, not used
    long autoLevel{};
    long legend{};
    long paramAlpha{};                                          ///< kept, not used
    int parameter{};                                            ///< index in config::kParameters
    std::array<ColourScale, config::kParameters.size()> scales; ///< by parameter
};

/// All settings of the program: one member for each key. Values are not range-checked here.
struct Settings
{
    /**
     * Calls visit(key, member, default) for every setting, in the order in which they stand in the file.
     *
     * The type of the member (double, long, int, bool, wxString) is the type of the key. The defaults of the "Once"
     * time are the moment of the call. Defined in config/SettingKeys.h.
     */
    template <class Visit>
    void ForEachSetting(Visit visit);

    double centreLat{}; ///< degrees, north positive
    double centreLon{}; ///< degrees, east positive
    wxString centreLoc;
    long zoom{}; ///< radius of the map in kilometres
    long size{}; ///< side of the map in pixels
    LineStyle meridians;
    LabelledLines fields;
    LabelledLines squares;
    CompassSettings compass;
    RadialsSettings radials;
    std::array<BorderSlot, 6> borders;
    std::array<TextSlot, 3> texts;
    RangeCirclesSettings rangeCircles;
    std::array<SourceBitmapSlot, 2> sourceBitmaps;
    std::array<PlotSquaresSlot, 2> plotSquares;
    GreyzoneSettings greyzone;
    PropagationSettings propagation;
    wxString lastIniDirectory;
};

/// Settings with every key at its default.
Settings DefaultSettings();

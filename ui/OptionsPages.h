#pragma once

#include "ui/VoacapNotes.h"

#include <wx/bookctrl.h>
#include <wx/calctrl.h>
#include <wx/checkbox.h>
#include <wx/choice.h>
#include <wx/clrpicker.h>
#include <wx/filepicker.h>
#include <wx/fontpicker.h>
#include <wx/hyperlink.h>
#include <wx/radiobox.h>
#include <wx/slider.h>
#include <wx/spinctrl.h>
#include <wx/statbmp.h>
#include <wx/textctrl.h>

#include <array>

// The pages of the options dialog: each constructor adds one page to a notebook and leaves the controls in the members,
// in the order in which they are read and reached by Tab. The window tree owns the controls.
namespace ui
{
/// Controls for LineStyle.
struct LineRow
{
    wxCheckBox* show;
    wxColourPickerCtrl* colour;
    wxSpinCtrl* alpha;
    wxSpinCtrl* lineWidth;
};

/// Controls for TextStyle.
struct TextStyleRow
{
    wxCheckBox* show;
    wxColourPickerCtrl* colour;
    wxFontPickerCtrl* font;
    wxSpinCtrl* alpha;
};

struct SettingsPage
{
    explicit SettingsPage(wxBookCtrlBase* book);

    wxSlider* zoomSlider;
    wxTextCtrl* zoom;
    wxTextCtrl* size;
    wxCheckBox* compassInside;
    LineRow meridians;
    LineRow fields;
    TextStyleRow fieldNames;
    LineRow squares;
    TextStyleRow squareNames;
    LineRow compass;
    TextStyleRow compassFigures;
    LineRow radials;
    wxChoice* radialsEvery;
    LineRow rangeCircles;
    wxTextCtrl* rangeEvery;
    wxCheckBox* rangeLegend;
    wxSpinCtrl* rangeDegs;
};

struct BordersPage
{
    explicit BordersPage(wxBookCtrlBase* book);

    struct Row
    {
        LineRow lines;
        wxFilePickerCtrl* file;
    };
    std::array<Row, 6> rows;
};

struct TextPage
{
    explicit TextPage(wxBookCtrlBase* book);

    struct Row
    {
        TextStyleRow text;
        wxFilePickerCtrl* file;
        wxChoice* align;
        wxCheckBox* avoidCollisions;
    };
    std::array<Row, 3> rows;
};

struct SourceMapPage
{
    explicit SourceMapPage(wxBookCtrlBase* book);

    struct Row
    {
        wxCheckBox* show;
        wxFilePickerCtrl* file;
    };
    std::array<Row, 2> rows;
};

struct PlotSquaresPage
{
    explicit PlotSquaresPage(wxBookCtrlBase* book);

    struct Slot
    {
        wxCheckBox* show;
        wxFilePickerCtrl* file;
        wxChoice* stipple;
        wxSpinCtrl* alpha;
        wxColourPickerCtrl* borderColour;
        wxColourPickerCtrl* fillColour;
        wxStaticBitmap* preview;
    };
    std::array<Slot, 2> slots;
};

struct GraylinePage
{
    explicit GraylinePage(wxBookCtrlBase* book);

    wxCheckBox* show;
    wxSpinCtrl* width;
    wxCheckBox* gradient;
    wxSpinCtrl* darkeningGrey;
    wxSpinCtrl* darkeningNight;
};

struct VoacapMainPage
{
    explicit VoacapMainPage(wxBookCtrlBase* book);

    wxCheckBox* show;
    wxChoice* engine;
    wxSpinCtrl* ssn;
    wxChoice* grid;
    wxDirPickerCtrl* directory;
    wxChoice* txPower;
    wxRadioBox* frequency;
    wxTextCtrl* userFrequency;
    std::array<wxTextCtrl*, 6> systemVariables; ///< MMN, MTA, RCR, RSN, MPT, MTM
    wxHyperlinkCtrl* link;
    wxCheckBox* useExternalResult;
    wxFilePickerCtrl* externalResult;
    VoacapNotes notes;
};

struct VoacapAppearancePage
{
    explicit VoacapAppearancePage(wxBookCtrlBase* book);

    struct Step
    {
        wxColourPickerCtrl* colour;
        wxTextCtrl* value;
    };
    wxRadioBox* parameter;
    std::array<Step, 10> steps; ///< from the highest down
    wxTextCtrl* explanation;
    wxCheckBox* autoLevel;
    wxCheckBox* greyScale;
    wxSpinCtrl* alpha;
    wxCheckBox* legend;
};

/// Controls for AntennaSettings.
struct AntennaGroup
{
    wxTextCtrl* gain;
    wxTextCtrl* direction;
    wxFilePickerCtrl* file;
};

struct VoacapAntennaPage
{
    explicit VoacapAntennaPage(wxBookCtrlBase* book);

    AntennaGroup transmitter;
    AntennaGroup receiver;
    std::array<wxTextCtrl*, 4> layerMultipliers; ///< FoE, FoF1, FoF2, FoEs
    VoacapNotes notes;
};

/// The page with the inner notebook.
struct VoacapPage
{
    explicit VoacapPage(wxBookCtrlBase* book);

    wxBookCtrlBase* book;
    VoacapMainPage main;
    VoacapAppearancePage appearance;
    VoacapAntennaPage antenna;
};

struct TimePage
{
    explicit TimePage(wxBookCtrlBase* book);

    wxRadioBox* mode;
    wxChoice* hour;
    wxChoice* minute;
    wxCalendarCtrl* date;
    wxButton* now;
};

/// A latitude or a longitude, as decimal degrees and as degrees, minutes and seconds.
struct PositionRow
{
    wxTextCtrl* decimal;
    wxButton* toDecimal;
    wxTextCtrl* deg;
    wxTextCtrl* min;
    wxTextCtrl* sec;
    wxChoice* hemisphere; ///< 0 north or east, 1 south or west
};

struct HomePage
{
    explicit HomePage(wxBookCtrlBase* book);

    PositionRow latitude;
    PositionRow longitude;
    wxTextCtrl* locator;
    wxButton* latLonFromLocator;
    wxButton* locatorFromLatLon;
    wxHyperlinkCtrl* link;
};
} // namespace ui

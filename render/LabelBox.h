#pragma once

#include "config/Choice.h"
#include "geo/MapFrame.h"

#include <wx/dc.h>

namespace render
{
/// Where a label stands relative to its place.
enum class Alignment
{
    Centre,
    Left,
    Right,
    Top,
    Bottom
};

/// How the label of a place stands: beside the place, and with a dot on it or without.
struct LabelStyle
{
    Alignment alignment;
    bool withDot;
};

inline constexpr config::Choice<LabelStyle> kLabelStyles[] = {
    {"Center", {Alignment::Centre, false}},     {"Left", {Alignment::Left, false}},
    {"Right", {Alignment::Right, false}},       {"Top", {Alignment::Top, false}},
    {"Bottom", {Alignment::Bottom, false}},     {"Center with dot", {Alignment::Centre, true}},
    {"Left with dot", {Alignment::Left, true}}, {"Right with dot", {Alignment::Right, true}},
    {"Top with dot", {Alignment::Top, true}},   {"Bottom with dot", {Alignment::Bottom, true}}};

/// The style of a choice; the first one for a choice outside the table.
LabelStyle LabelStyleOf(int align);

/// The box of a text around or beside its place, in pixels; halves are rounded down.
wxRect LabelBox(geo::Pixel place, wxSize extent, Alignment alignment);

/// Writes a text into its box with the font and colour of the drawing context. One that lies outside the picture is
/// left out.
void DrawLabel(wxDC& dc, const wxString& text, const wxRect& box);
} // namespace render

#pragma once

#include "render/MapView.h"

#include <wx/dc.h>

#include <optional>

namespace render
{
/// The text of a label file. One that cannot be read gives a message box and none.
std::optional<wxString> ReadLabelFile(const wxString& file);

/**
 * Writes the labels of a file at their places.
 *
 * @param[in] text  of the file: lines of fields between semicolons, empty ones dropped. Second field the label, third
 *                  the type ("Country" is left out), fifth and sixth latitude and longitude in degrees. What is missing
 *                  or no number counts as 0.
 * @param[in] style font, colour, alignment and whether labels keep clear of each other.
 */
void DrawTextLabels(wxDC& dc, const MapView& view, const wxString& text, const TextSlot& style);
} // namespace render

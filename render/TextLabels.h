#pragma once

#include "geo/LatLon.h"
#include "render/GoOn.h"
#include "render/MapView.h"

#include <wx/dc.h>

#include <optional>
#include <string>
#include <string_view>

namespace render
{
/// One line of a label file.
struct TextLabel
{
    wxString text;
    geo::LatLon place;
};

/**
 * Takes a line of a label file apart: fields between semicolons, empty ones dropped. The second is the text, the third
 * the type, the fifth and sixth latitude and longitude in degrees.
 *
 * Fields that are missing or no numbers count as empty and as 0. Texts are cut after 1000 characters.
 *
 * @return none for a line of type "Country".
 */
std::optional<TextLabel> ParseTextLabel(std::wstring_view line);

/// The text of a label file, see ReadTextFile(); none, without a word, for one that cannot be read.
std::optional<std::wstring> ReadLabelFile(const wxString& file);

/**
 * Writes the labels of a file at their places.
 *
 * @param[in] text  of the file.
 * @param[in] style font, colour, alignment (outside 0..9: centred) and whether labels keep clear of each other.
 */
void DrawTextLabels(wxDC& dc, const MapView& view, std::wstring_view text, const TextSlot& style,
                    const GoOn& goOn = Always);
} // namespace render

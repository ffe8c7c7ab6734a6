#pragma once

#include "ui/MapSpot.h"

#include <wx/window.h>

#include <functional>
#include <optional>
#include <vector>

namespace ui
{
class Antenna;

/// A row of the context menu of the map: a heading does nothing, a separator has no label either.
struct MapMenuRow
{
    wxString label;
    std::function<void()> act;
};

/**
 * What can be done with a spot of the map, if there is one, and with the antenna, if there is one.
 *
 * Off the disc a spot has no place, only a bearing; the station itself has no bearing.
 *
 * @param[in] centre takes the locator of the place for the next map.
 */
std::vector<MapMenuRow> MapMenuRows(const std::optional<MapSpot>& spot, Antenna* antenna,
                                    const std::function<void(const wxString& locator)>& centre);

/// Shows the rows as a menu at a place in a window, and does what is chosen. No rows, no menu.
void ShowMenu(wxWindow& window, const std::vector<MapMenuRow>& rows, const wxPoint& place);
} // namespace ui

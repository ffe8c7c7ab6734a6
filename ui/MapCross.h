#pragma once

#include <wx/dc.h>
#include <wx/event.h>

#include <optional>

/**
 * A cross on the map that the keyboard moves, for a read-out without a pointer.
 *
 * Shift with an arrow key moves it by ten pixels, with Ctrl as well by one; Shift with Home takes it to the station. It
 * begins at the station. It belongs to the view and not to the picture.
 */
class MapCross
{
public:
    /// Moves the cross if a key is meant for it. @return whether it is.
    bool Move(const wxKeyEvent& key, int mapSize);

    void Hide() { m_place.reset(); }

    /// Its pixel on the map.
    const std::optional<wxPoint>& Place() const { return m_place; }

    void Draw(wxDC& dc) const;

private:
    std::optional<wxPoint> m_place;
};

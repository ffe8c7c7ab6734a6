#pragma once

#include "render/MapView.h"
#include "rotator/Rotator.h"
#include "ui/AntennaLine.h"
#include "ui/MapCanvas.h"

#include <wx/timer.h>

#include <array>
#include <functional>
#include <optional>

namespace ui
{
/// The antenna in the window: turns and stops it, says what has become of that, and shows on the map where it points
/// and where it is turning to.
class Antenna
{
public:
    using GetView = std::function<const MapView*()>; ///< none as long as there is no map
    using Say = std::function<void(const wxString& text)>;

    /// What it is made with must live as long as it does.
    Antenna(const rotator::Address& address, MapCanvas& canvas, GetView view, Say say);

    void Turn(double bearingDeg); ///< 0 <= bearing < 360 degrees
    void Stop();

private:
    using Lines = std::array<std::optional<AntennaLine>, 2>; ///< where it turns to, where it points

    void OnTimer();
    Lines LinesNow() const;
    void Repaint(const Lines& lines);
    void Draw(wxDC& dc) const;

    MapCanvas& m_canvas;
    GetView m_view;
    Say m_say;
    rotator::Rotator m_rotator;
    Lines m_lines; ///< on the screen
    wxTimer m_timer;
};
} // namespace ui

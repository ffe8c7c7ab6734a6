#include "ui/MapCross.h"

#include <algorithm>

namespace
{
constexpr int kStep = 10;
constexpr int kArm = 9;
constexpr int kOpenMiddle = 2; ///< what stands under the cross stays visible

std::optional<wxPoint> DirectionOf(int key)
{
    switch (key)
    {
    case WXK_LEFT:
    case WXK_NUMPAD_LEFT:
        return wxPoint(-1, 0);
    case WXK_RIGHT:
    case WXK_NUMPAD_RIGHT:
        return wxPoint(1, 0);
    case WXK_UP:
    case WXK_NUMPAD_UP:
        return wxPoint(0, -1);
    case WXK_DOWN:
    case WXK_NUMPAD_DOWN:
        return wxPoint(0, 1);
    default:
        return std::nullopt;
    }
}
} // namespace

bool MapCross::Move(const wxKeyEvent& key, int mapSize)
{
    const int modifiers = key.GetModifiers();
    const wxPoint station(mapSize / 2, mapSize / 2);
    if (modifiers == wxMOD_SHIFT && (key.GetKeyCode() == WXK_HOME || key.GetKeyCode() == WXK_NUMPAD_HOME))
    {
        m_place = station;
        return true;
    }
    const auto direction = DirectionOf(key.GetKeyCode());
    if (!direction || (modifiers != wxMOD_SHIFT && modifiers != (wxMOD_SHIFT | wxMOD_CONTROL)))
        return false;
    const wxPoint moved = m_place.value_or(station) + *direction * (modifiers == wxMOD_SHIFT ? kStep : 1);
    m_place = wxPoint(std::clamp(moved.x, 0, mapSize - 1), std::clamp(moved.y, 0, mapSize - 1));
    return true;
}

void MapCross::Draw(wxDC& dc) const
{
    if (!m_place)
        return;
    // Dark within light: seen on any ground.
    for (const wxPen& pen : {wxPen(*wxWHITE, 3), wxPen(*wxBLACK, 1)})
    {
        dc.SetPen(pen);
        for (const wxPoint& arm : {wxPoint(1, 0), wxPoint(-1, 0), wxPoint(0, 1), wxPoint(0, -1)})
            dc.DrawLine(*m_place + arm * kOpenMiddle, *m_place + arm * kArm);
    }
}

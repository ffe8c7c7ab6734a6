#include "ui/AntennaLine.h"

#include "geo/Angles.h"

#include <algorithm>
#include <cmath>

namespace ui
{
namespace
{
constexpr int kHeadLength = 12;
constexpr int kHeadHalfWidth = 4;

/// How far ink reaches beyond a shape: its outline and its smoothed edge.
constexpr int kOutline = 4;

/// How far ink reaches from the middle of the line.
constexpr int kReach = kHeadHalfWidth + kOutline;

constexpr int kStep = 16; ///< pixels from one rectangle to the next

wxPoint Rounded(double x, double y)
{
    return {static_cast<int>(std::lround(x)), static_cast<int>(std::lround(y))};
}
} // namespace

AntennaLine::AntennaLine(const MapFrame& frame, double bearingDeg) : station(frame.half, frame.half)
{
    const double radius = static_cast<double>(frame.mapRadius) / frame.metresPerPixel;
    const double angle = bearingDeg * geo::kRadPerDeg;
    tip = station + Rounded(radius * std::sin(angle), -radius * std::cos(angle));
}

void AntennaLine::Draw(wxDC& dc, const wxPen& pen) const
{
    const wxRealPoint way(tip - station);
    const double length = std::max(std::hypot(way.x, way.y), 1.0);
    const wxRealPoint ahead(way.x / length, way.y / length);
    const wxPoint head[] = {tip,
                            tip + Rounded(-kHeadLength * ahead.x - kHeadHalfWidth * ahead.y,
                                          -kHeadLength * ahead.y + kHeadHalfWidth * ahead.x),
                            tip + Rounded(-kHeadLength * ahead.x + kHeadHalfWidth * ahead.y,
                                          -kHeadLength * ahead.y - kHeadHalfWidth * ahead.x)};
    // Within white: seen on any ground.
    dc.SetPen(wxPen(*wxWHITE, 3));
    dc.SetBrush(*wxWHITE_BRUSH);
    dc.DrawLine(station, tip);
    dc.DrawPolygon(3, head);
    dc.SetPen(pen);
    dc.DrawLine(station, tip);
    dc.SetPen(wxPen(pen.GetColour()));
    dc.SetBrush(wxBrush(pen.GetColour()));
    dc.DrawPolygon(3, head);
}

std::vector<wxRect> AntennaLine::Places() const
{
    const wxPoint way = tip - station;
    const int count = std::max(std::abs(way.x), std::abs(way.y)) / kStep + 1;
    std::vector<wxRect> places{wxRect(tip, tip).Inflate(kHeadLength + kOutline)}; // a short line is all head
    for (int i = 0; i < count; ++i)
    {
        const auto at = [&](int n) { return station + wxPoint(way.x * n / count, way.y * n / count); };
        places.push_back(wxRect(at(i), at(i + 1)).Inflate(kReach));
    }
    return places;
}
} // namespace ui

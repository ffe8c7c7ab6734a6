#pragma once

#include "tests/support/LayerFixture.h"

#include <cmath>
#include <numbers>

/**
 * A shape computed on its own, with which the ink of a layer is compared: nothing may lie off it, none of it may be
 * missing.
 *
 * Coordinates are pixels, whole numbers being the middle of a pixel.
 */
class Stencil
{
public:
    /// @param[in] tolerance how far ink may lie off the middle of a line, and how far away the nearest ink may be.
    explicit Stencil(int side, double tolerance = 1.0)
        : m_side(side),
          m_tolerance(tolerance),
          m_allowed(static_cast<std::size_t>(side) * static_cast<std::size_t>(side))
    {
    }

    void Line(double x0, double y0, double x1, double y1)
    {
        const int steps = static_cast<int>(std::hypot(x1 - x0, y1 - y0) * 4) + 1;
        for (int i = 0; i <= steps; ++i)
            Point(x0 + (x1 - x0) * i / steps, y0 + (y1 - y0) * i / steps);
    }

    void Circle(double centre, double radius)
    {
        const int steps = static_cast<int>(radius * 25) + 8;
        for (int i = 0; i < steps; ++i)
        {
            const double angle = 2 * std::numbers::pi * i / steps;
            Point(centre + radius * std::sin(angle), centre + radius * std::cos(angle));
        }
    }

    void Point(double x, double y)
    {
        m_points.emplace_back(x, y);
        Allow(x, y);
    }

    /// A point where ink may be or not.
    void Allow(double x, double y)
    {
        ForEachNear(x, y,
                    [&](int column, int row)
                    {
                        m_allowed[static_cast<std::size_t>(row * m_side + column)] = true;
                        return false;
                    });
    }

    testing::AssertionResult Fits(const Ink& ink) const
    {
        testing::AssertionResult result = testing::AssertionSuccess();
        std::size_t off = 0;
        ink.ForEach(
            [&](int x, int y)
            {
                if (!m_allowed[static_cast<std::size_t>(y * m_side + x)] && off++ == 0)
                    result = testing::AssertionFailure() << "ink off the shape at " << x << ", " << y;
            });
        std::size_t missing = 0;
        for (const auto& [x, y] : m_points)
        {
            const bool inside = x > 2 && y > 2 && x < m_side - 3 && y < m_side - 3;
            const auto isInk = [&](int column, int row) { return ink.At(column, row); };
            if (inside && !ForEachNear(x, y, isInk) && missing++ == 0)
                result = testing::AssertionFailure() << "no ink near " << x << ", " << y;
        }
        if (!result)
            result << "; " << off << " pixels off, " << missing << " points missing";
        return result;
    }

private:
    /// Visits the pixels within the tolerance of a point until one visit returns true; returns whether one did.
    template <class Visit>
    bool ForEachNear(double x, double y, Visit visit) const
    {
        const int reach = static_cast<int>(m_tolerance) + 1;
        const int column = static_cast<int>(std::lround(x));
        const int row = static_cast<int>(std::lround(y));
        for (int r = std::max(row - reach, 0); r <= std::min(row + reach, m_side - 1); ++r)
            for (int c = std::max(column - reach, 0); c <= std::min(column + reach, m_side - 1); ++c)
                if (std::hypot(c - x, r - y) <= m_tolerance && visit(c, r))
                    return true;
        return false;
    }

    int m_side;
    double m_tolerance;
    std::vector<bool> m_allowed;
    std::vector<std::pair<double, double>> m_points;
};

/// Where a place lies on a map, by rotating unit vectors: another way than the program's.
struct OtherWay
{
    OtherWay(const MapView& view, double latDeg, double lonDeg)
    {
        const double rad = std::numbers::pi / 180;
        const double lat0 = view.projection.centreLatDeg * rad;
        const double dlon = (lonDeg - view.projection.centreLonDeg) * rad;
        const double up = std::sin(latDeg * rad);
        const double out = std::cos(latDeg * rad) * std::cos(dlon);
        const double e = std::cos(latDeg * rad) * std::sin(dlon);
        const double n = up * std::cos(lat0) - out * std::sin(lat0);
        distance = 6370997.0 * std::atan2(std::hypot(e, n), up * std::sin(lat0) + out * std::cos(lat0));
        const double scale = distance / std::hypot(e, n) / view.frame.metresPerPixel;
        // Truncation puts a point half a pixel up and to the left of where it is.
        x = view.frame.half + e * scale - 0.5;
        y = view.frame.half - n * scale - 0.5;
    }

    double distance; ///< metres
    double x;        ///< pixels
    double y;
};

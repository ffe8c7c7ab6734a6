#include "geo/GreylineRows.h"

#include "geo/Angles.h"
#include "geo/MirroredRow.h"
#include "geo/Truncate.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace
{
constexpr double kLevelsPerPercent = 2.55;

std::uint8_t LevelOf(double value)
{
    return static_cast<std::uint8_t>(geo::TruncateToInt64(value));
}

// Nearly a pole: longitudes are those of a pole, latitudes are not, so places do not turn as a globe does.
bool IsCrooked(const AzimuthalProjection& projection)
{
    constexpr double kExactly = 1e-12;
    return projection.IsPolar() && !(std::fabs(projection.cosLat0) < kExactly);
}
} // namespace

namespace geo
{
double GreylineShade::Slope() const
{
    return std::fabs((greyPercent - nightPercent) * kLevelsPerPercent / widthDeg);
}

double GreylineShade::SunDistanceDeg(LatLonRad place) const
{
    const double cosDistance = std::cos(sun.lon - place.lon) * std::cos(sun.lat) * std::cos(place.lat) +
                               std::sin(sun.lat) * std::sin(place.lat);
    return std::acos(std::clamp(cosDistance, -1.0, 1.0)) * kDegPerRad;
}

Daylight GreylineShade::DaylightAt(double sunDistanceDeg) const
{
    const double half = 0.5 * widthDeg;
    if (sunDistanceDeg < 90.0 - half)
        return Daylight::Day;
    return sunDistanceDeg <= 90.0 + half ? Daylight::Grey : Daylight::Night;
}

std::uint8_t GreylineShade::At(LatLonRad place) const
{
    const double distance = SunDistanceDeg(place);
    const Daylight daylight = DaylightAt(distance);
    if (daylight == Daylight::Day)
        return kDay;
    if (daylight == Daylight::Night)
        return LevelOf(nightPercent * kLevelsPerPercent);
    if (!gradient)
        return LevelOf(greyPercent * kLevelsPerPercent);
    return LevelOf(Slope() * (widthDeg - (distance - (90.0 - 0.5 * widthDeg))) + nightPercent * kLevelsPerPercent);
}

GreyBands GreylineShade::Bands() const
{
    GreyBands bands{};
    bands.sinHalfWidth = std::sin(0.5 * widthDeg / kDegPerRad);
    bands.day = kDay;
    bands.night = LevelOf(nightPercent * kLevelsPerPercent);
    bands.gradient = gradient && Slope() > 0.0;
    bands.flat = LevelOf(greyPercent * kLevelsPerPercent);
    bands.levelAtHorizon = Slope() * 0.5 * widthDeg + nightPercent * kLevelsPerPercent;
    bands.levelPerRadian = Slope() * kDegPerRad;
    bands.radiansPerLevel = 1.0 / bands.levelPerRadian;
    return bands;
}

bool GreylineShade::IsUsual() const
{
    const auto isPercent = [](double value) { return value >= 0.0 && value <= 100.0; };
    // A slope so small that the rounding of the level would count more than the guard.
    constexpr double kSmallestSlope = 1e-3;
    return widthDeg > 0.0 && widthDeg < 180.0 && isPercent(greyPercent) && isPercent(nightPercent) &&
           (Slope() == 0.0 || Slope() >= kSmallestSlope) && std::fabs(sun.lat) <= kPi && std::fabs(sun.lon) <= 4 * kPi;
}

GreylineRows::GreylineRows(const MapDisc& disc, const GreylineShade& shade, InstructionSet set)
    : m_disc(disc), m_shade(shade), m_bands{}, m_kernels(nullptr)
{
    if (!disc.HasPlainScale() || IsCrooked(disc.projection) || !shade.IsUsual())
        return;
    m_bands = shade.Bands();
    m_kernels = KernelsFor(set);
}

std::uint8_t GreylineRows::Pixel(int column, int row) const
{
    const auto place = m_disc.At(column, row);
    return place ? m_shade.At(*place) : GreylineShade::kDay;
}

void GreylineRows::Row(int row, std::span<std::uint8_t> out) const
{
    if (!m_kernels)
    {
        for (int column = 0; column < m_disc.frame.mapSize; ++column)
            out[static_cast<std::size_t>(column)] = Pixel(column, row);
        return;
    }
    const SunPlane plane(m_disc, m_shade.sun, row);
    PaintMirroredRow(
        m_disc, row, out, GreylineShade::kDay,
        [&](const Columns& columns) { m_kernels->greys(plane, m_bands, columns); },
        [&](int column, std::int32_t level)
        { return level >= 0 ? static_cast<std::uint8_t>(level) : Pixel(column, row); });
}
} // namespace geo

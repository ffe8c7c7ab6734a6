#pragma once

#include "geo/InstructionSet.h"
#include "geo/MapDisc.h"
#include "geo/RowKernel.h"

#include <cstdint>
#include <span>

namespace geo
{
/// What the sun leaves of the day at a place.
enum class Daylight
{
    Day,
    Grey, ///< the greyzone, both edges included
    Night
};

/// How dark the earth is under a position of the sun.
struct GreylineShade
{
    /// The level of full daylight, and of pixels that show no place.
    static constexpr std::uint8_t kDay = 255;

    LatLonRad sun;       ///< the sub-solar point
    double widthDeg;     ///< of the greyzone, one half on either side of the terminator
    bool gradient;       ///< whether the level of the greyzone falls from the grey to the night value
    double greyPercent;  ///< 100 is no darkening, 0 is black
    double nightPercent; ///< the same for the night

    /// Degrees of a great circle between a place and the sub-solar point, 0..180.
    double SunDistanceDeg(LatLonRad place) const;

    /// The band in which a place so far from the sub-solar point lies.
    Daylight DaylightAt(double sunDistanceDeg) const;

    /// The grey level of a place, 0..255; levels outside that range count modulo 256.
    std::uint8_t At(LatLonRad place) const;

    /// The bands as the row kernels compare them.
    GreyBands Bands() const;

    /// Whether the bands are such that the kernels know them: a greyzone that is there and leaves day and night, and
    /// both values in 0..100.
    bool IsUsual() const;

private:
    double Slope() const;
};

/// The shade of a map's pixels.
class GreylineRows
{
public:
    /// @param[in] set if this processor lacks it, the best it has is taken.
    GreylineRows(const MapDisc& disc, const GreylineShade& shade, InstructionSet set = BestInstructionSet());

    /// One pixel by the plain arithmetic: what Row() has to give. Pixels outside the disc are as light as day.
    std::uint8_t Pixel(int column, int row) const;

    /// A whole row; out has room for the map's size.
    void Row(int row, std::span<std::uint8_t> out) const;

    /// Whether every pixel is computed by the plain arithmetic, which takes many times as long.
    bool GoesThePlainWay() const { return !m_kernels; }

private:
    MapDisc m_disc;
    GreylineShade m_shade;
    GreyBands m_bands;
    const RowKernels* m_kernels; ///< none: the plain arithmetic
};
} // namespace geo

#include "geo/AzimuthalProjection.h"

#include "geo/Angles.h"
#include "geo/Truncate.h"

#include <algorithm>
#include <cmath>

namespace
{
constexpr double kTwoPi = 2.0 * geo::kPi;
constexpr double kMaxInt = 2147483647.0;
constexpr double kTwoPiMaxInt = 13493037698.238832;
constexpr double kTwoPiMaxIntSquared = 28976077779357650944.0;
constexpr double kNearZero = 1e-6;
constexpr double kRadPerArcSecond = 4.848136811095359e-6;

double RadiansFromDegrees(double degrees)
{
    return degrees * 3600 * kRadPerArcSecond;
}
} // namespace

double AdjustLon(double angle)
{
    for (int round = 0; round < 5 && !(std::fabs(angle) <= geo::kPi); ++round)
    {
        if (std::trunc(std::fabs(angle / geo::kPi)) < 2)
            angle -= std::copysign(kTwoPi, angle);
        else if (std::trunc(std::fabs(angle / kTwoPi)) < kMaxInt)
            angle -= std::trunc(angle / kTwoPi) * kTwoPi;
        else if (std::trunc(std::fabs(angle / (kTwoPi * kMaxInt))) < kMaxInt)
            angle -= std::trunc(angle / kTwoPiMaxInt) * kTwoPiMaxInt;
        else if (std::trunc(std::fabs(angle / kTwoPiMaxIntSquared)) > kMaxInt - 1)
            return angle; // a turn is less than its rounding
        else
            angle -= std::trunc(angle / kTwoPiMaxIntSquared) * kTwoPiMaxIntSquared;
    }
    return angle;
}

void AzimuthalProjection::Init(int falseEastingMetres, int falseNorthingMetres, double lat0Deg, double lon0Deg)
{
    falseEasting = falseEastingMetres;
    falseNorthing = falseNorthingMetres;
    centreLatDeg = lat0Deg;
    centreLonDeg = lon0Deg;
    centreLat = RadiansFromDegrees(lat0Deg);
    centreLon = RadiansFromDegrees(lon0Deg);
    sinLat0 = std::sin(centreLat);
    cosLat0 = std::cos(centreLat);
}

std::int64_t AzimuthalProjection::Forward(double& x, double& y, double lonRad, double latRad) const
{
    return Forward(x, y, EastOfCentre(lonRad), SineCosine(latRad));
}

SineCosine AzimuthalProjection::EastOfCentre(double lonRad) const
{
    return SineCosine(AdjustLon(lonRad - centreLon));
}

std::int64_t AzimuthalProjection::Forward(double& x, double& y, const SineCosine& east, const SineCosine& lat) const
{
    const double g = sinLat0 * lat.sin + cosLat0 * lat.cos * east.cos;
    const double z = std::acos(g);
    const double k = z / std::sin(z) * kEarthRadius;
    x = lat.cos * k * east.sin + falseEasting;
    y = (cosLat0 * lat.sin - sinLat0 * lat.cos * east.cos) * k + falseNorthing;
    return geo::TruncateToInt64(std::sqrt(x * x + y * y));
}

std::int64_t AzimuthalProjection::Inverse(double& lonRad, double& latRad, double x, double y) const
{
    x -= falseEasting;
    y -= falseNorthing;
    const double rh = std::sqrt(x * x + y * y);
    if (rh > kAntipodeDistance)
        return -1;

    const std::int64_t distance = geo::TruncateToInt64(rh);
    const double z = rh / kEarthRadius;
    const double sinz = std::sin(z);
    const double cosz = std::cos(z);
    lonRad = centreLon;
    if (rh <= kNearZero)
    {
        latRad = centreLat;
        return distance;
    }

    latRad = std::asin(std::clamp(cosz * sinLat0 + y * sinz * cosLat0 / rh, -1.0, 1.0));
    if (IsPolar())
    {
        const double turned = centreLat >= 0.0 ? centreLon + std::atan2(x, -y) : centreLon - std::atan2(-x, y);
        lonRad = AdjustLon(turned);
        return distance;
    }

    const double con = cosz - sinLat0 * std::sin(latRad);
    if (std::fabs(con) >= kNearZero || std::fabs(x) >= kNearZero)
        lonRad = AdjustLon(centreLon + std::atan2(x * sinz * cosLat0, con * rh));
    return distance;
}

bool AzimuthalProjection::IsPolar() const
{
    return std::fabs(std::fabs(centreLat) - geo::kPi / 2) <= kNearZero;
}

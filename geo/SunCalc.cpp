#include "geo/SunCalc.h"

#include "geo/Angles.h"

#include <algorithm>
#include <cmath>

namespace
{
double SinDeg(double degrees)
{
    return std::sin(SunCalc::DegToRad(degrees));
}

double CosDeg(double degrees)
{
    return std::cos(SunCalc::DegToRad(degrees));
}

double Atan2Deg(double y, double x)
{
    return SunCalc::RadToDeg(std::atan2(y, x));
}

/// Steps from the day number to the place among the stars; needs no observer.
SunCalc::Result Ephemeris(double d)
{
    const double w = 282.9404 + 4.70935e-5 * d;
    const double e = 0.016709 - 1.151e-9 * d;
    const double M = SunCalc::Reduce(356.047 + 0.9856002585 * d);
    const double oblecl = 23.4393 - 3.563e-7 * d;
    const double L = SunCalc::Reduce(w + M);

    const double E = SunCalc::Reduce(M + 57.29577951308232 * e * SinDeg(M) * (1 + e * CosDeg(M)));
    const double x = CosDeg(E) - e;
    const double y = SinDeg(E) * std::sqrt(1 - e * e);
    const double r = std::sqrt(x * x + y * y);
    const double v = Atan2Deg(y, x);
    const double lon = SunCalc::Reduce(v + w);

    const double xe = r * CosDeg(lon);
    const double ye = r * SinDeg(lon) * CosDeg(oblecl);
    const double ze = r * SinDeg(lon) * SinDeg(oblecl);

    SunCalc::Result result{};
    result.declination = Atan2Deg(ze, std::sqrt(xe * xe + ye * ye));
    result.eclipticLongitude = lon;
    result.rightAscension = SunCalc::Reduce(Atan2Deg(ye, xe));
    result.gmst0 = SunCalc::Reduce(180 + L);
    result.meanAnomaly = M;
    result.perihelion = SunCalc::Reduce(w);
    result.eccentricity = SunCalc::Reduce(e);
    result.obliquity = SunCalc::Reduce(oblecl);
    result.meanLongitude = L;
    return result;
}
} // namespace

double SunCalc::DayNumber(int day, int month, int year, int hour, int minute, int second)
{
    const std::int64_t wideYear = year;
    const std::int64_t wideMonth = month;
    const double midnight = 367.0 * year - IntegerQuotient(7 * (wideYear + (wideMonth + 9) / 12), 4) +
                            IntegerQuotient(275 * wideMonth, 9) + day - 730530;
    return midnight + hour / 24.0 + minute / 1440.0 + second / 86400.0;
}

SunCalc::Result SunCalc::Position(double d, double observerLonDeg, double observerLatDeg)
{
    Result result = Ephemeris(d);
    const double HA = (d - std::trunc(d)) * 360 + (180 + result.meanLongitude) + observerLonDeg - result.rightAscension;
    result.greenwichHourAngle = std::fmod(HA - observerLonDeg, 360);

    const double x = CosDeg(HA) * CosDeg(result.declination);
    const double y = SinDeg(HA) * CosDeg(result.declination);
    const double z = SinDeg(result.declination);
    const double xh = x * SinDeg(observerLatDeg) - z * CosDeg(observerLatDeg);
    const double zh = x * CosDeg(observerLatDeg) + z * SinDeg(observerLatDeg);
    result.azimuth = Atan2Deg(y, xh) + 180;
    // Rounding may carry zh just past 1 when the sun is in the zenith.
    result.trueElevation = RadToDeg(std::asin(std::clamp(zh, -1.0, 1.0)));
    result.elevation = Refraction(result.trueElevation);
    return result;
}

double SunCalc::Refraction(double trueElevation)
{
    const double h = trueElevation;
    if (h > 10.2)
        return h + 0.01617 * CosDeg(std::fabs(h)) / SinDeg(std::fabs(h));
    const double u = std::fabs(0.589 + h);
    return h + std::fabs(0.58804392 - 0.17941557 * u + 0.029906946 * (u * u) - 0.00251874 * (u * u * u) +
                         8.2622101e-5 * (u * u * u * u));
}

double SunCalc::Reduce(double degrees)
{
    return degrees - 360 * std::trunc(degrees / 360);
}

double SunCalc::DegToRad(double degrees)
{
    return degrees * geo::kPi / 180;
}

double SunCalc::RadToDeg(double radians)
{
    return radians * 180 / geo::kPi;
}

double SunCalc::IntegerQuotient(std::int64_t dividend, std::int64_t divisor)
{
    return static_cast<double>((dividend - dividend % divisor) / divisor);
}

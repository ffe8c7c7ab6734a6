#include "app/Aim.h"

#include "app/FileNames.h"
#include "app/NamedPlace.h"
#include "app/StandardStreams.h"
#include "geo/Angles.h"
#include "geo/MapFrame.h"
#include "render/MapView.h"
#include "rotator/Azimuth.h"
#include "rotator/Rotator.h"

#include <cmath>
#include <cstdio>
#include <thread>

namespace app
{
namespace
{
/// Nearer to the antipode the projection promises nothing.
constexpr double kFarthestKm = 20015.0;

int Fail(const wxString& text)
{
    std::fprintf(stderr, "kavmap: %s\n", Bytes(text).c_str());
    return 1;
}

/// None for the station itself and for its antipode.
std::optional<double> BearingOf(const AzimuthalProjection& station, geo::LatLon place)
{
    geo::MapPoint point{};
    if (station.Forward(point.x, point.y, place.lon * geo::kRadPerDeg, place.lat * geo::kRadPerDeg) < 1)
        return std::nullopt;
    const auto [distanceKm, bearingDeg] = geo::RangeAndBearingOf(point);
    return distanceKm < kFarthestKm ? std::optional(rotator::RoundedBearing(bearingDeg)) : std::nullopt;
}

int Turn(const rotator::Address& address, double bearing)
{
    using rotator::Rotator;
    std::optional<Rotator::News> outcome;
    Rotator antenna(address);
    antenna.onNews = [&](const Rotator::News& news) { outcome = news; };
    antenna.Turn(bearing, Rotator::Clock::now());
    while (!outcome)
    {
        antenna.Step(Rotator::Clock::now());
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    return outcome->hasFailed ? Fail(wxString::FromUTF8(outcome->text)) : 0;
}
} // namespace

int Aim(const Settings& settings, const CommandLine& line)
{
    const wxString name = FileName(*line.aim);
    const std::vector<geo::LatLon> places = PlacesNamed(name);
    if (places.empty())
        return Fail("not a locator, a position or the name of a place: " + name);
    const auto bearing = BearingOf(render::StationProjection(settings), places.front());
    if (!bearing)
        return Fail("no bearing leads to " + name + ": it is the station, or just opposite");
    if (places.size() > 1)
        Fail(wxString::Format("warning: %zu places have the name %s; this is the one at %.4f,%.4f", places.size(), name,
                              places.front().lat, places.front().lon));
    const double wanted = line.longPath ? rotator::LongPath(*bearing) : *bearing;
    std::printf("%.1f\n", wanted);
    const bool isTold = HasAnswerArrived();
    const int status = line.rotator ? Turn(*line.rotator, wanted) : 0;
    return isTold ? status : 1;
}
} // namespace app

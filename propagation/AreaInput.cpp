#include "propagation/AreaInput.h"

#include "propagation/NumberOf.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace propagation
{
namespace
{
/// Settings may hold any number.
constexpr int kLargestMonth = std::numeric_limits<int>::max() - 1;

wxString TransmitLine(double lat, double lon)
{
    return wxString::Format("Transmit : %3.2f%c    %3.2f%c   HOME                 Short\n", std::abs(lat),
                            lat >= 0 ? 'N' : 'S', std::abs(lon), lon >= 0 ? 'E' : 'W');
}

wxString SystemLine(const PropagationSettings& p)
{
    return wxString::Format("System   :  %3.0f     %2.3f   %2.0f   %2.0f     %2.3f     %2.3f\n",
                            NumberOf(p.manMadeNoise), NumberOf(p.minTakeOffAngle), NumberOf(p.requiredReliability),
                            NumberOf(p.requiredSnr), NumberOf(p.multipathPowerTolerance),
                            NumberOf(p.maxMultipathDelay));
}

wxString LayerLine(const std::array<wxString, 4>& multipliers)
{
    return wxString::Format("Fprob    : %1.2f %1.2f %1.2f %1.2f\n", NumberOf(multipliers[0]), NumberOf(multipliers[1]),
                            NumberOf(multipliers[2]), NumberOf(multipliers[3]));
}

wxString AntennaLines(const PropagationSettings& p, const AntennaNames& antennas)
{
    return wxString::Format("Rec Ants :[%s]  gain=   %2.1f   %3.1f\n", antennas.receiver, NumberOf(p.receiver.gain),
                            NumberOf(p.receiver.directionDeg)) +
           wxString::Format("Tx Ants  :[%s]  %2.3f %3.1f  %1.3f\n", antennas.transmitter, NumberOf(p.transmitter.gain),
                            NumberOf(p.transmitter.directionDeg), TxPowerKw(p.txPower));
}
} // namespace

AreaTime AreaTimeOf(const GreyzoneSettings& settings, const UtcTime& now)
{
    if (settings.timeMode != kRealTime)
        return {std::min(settings.once.month, kLargestMonth) + 1, settings.once.hour};
    return {now.month + 1, now.minute > 30 ? (now.hour + 1) % 24 : now.hour};
}

int GridPoints(int choice)
{
    return config::Chosen(kGrids, choice).value;
}

bool UsesOwnFrequency(const PropagationSettings& settings)
{
    return !config::Chosen(kFrequencies, settings.frequency).value;
}

double FrequencyMHz(const PropagationSettings& settings)
{
    return config::Chosen(kFrequencies, settings.frequency).value.value_or(NumberOf(settings.userFrequencyMHz));
}

double TxPowerKw(int choice)
{
    return config::Chosen(kTxPowers, choice).value;
}

wxString AreaInputText(const Settings& settings, geo::LatLon transmitter, const AreaTime& time,
                       const AntennaNames& antennas)
{
    const PropagationSettings& p = settings.propagation;
    wxString text = "Model    :VOACAP\n"
                    "Colors   :Black    :Blue     :Ignore   :Ignore   :Red      :Black with shading\n"
                    "Cities   :Receive.cty\n"
                    "Nparms   :    1\n"
                    "Parameter:SDBW     0\n"
                    "Method   :   30\n"
                    "Coeffs   :CCIR\n";
    text += TransmitLine(transmitter.lat, transmitter.lon);
    text += "Area     :    -180.0     180.0     -90.0      90.0\n";
    text += wxString::Format("Gridsize : %d    1\n", GridPoints(p.grid));
    text += wxString::Format("Months   :  %2.2f   0.00   0.00   0.00   0.00   0.00   0.00   0.00   0.00\n",
                             static_cast<double>(time.month));
    text += wxString::Format("Ssns     :     %2ld      0      0      0      0      0      0      0      0\n",
                             p.sunspotNumber);
    text +=
        wxString::Format("Hours    :     %02d      0      0      0      0      0      0      0      0\n", time.hour);
    text +=
        wxString::Format("Freqs    : %2.3f  0.000  0.000  0.000  0.000  0.000  0.000  0.000  0.000\n", FrequencyMHz(p));
    return text + SystemLine(p) + LayerLine(p.layerMultipliers) + AntennaLines(p, antennas);
}
} // namespace propagation

#include "propagation/InputRules.h"

#include "propagation/AntennaName.h"
#include "propagation/AreaInput.h"
#include "propagation/NumberOf.h"

#include <wx/filename.h>

#include <algorithm>
#include <iterator>

namespace propagation
{
namespace
{
using Keys = std::vector<const char*>;
using Inputs = PropagationSettings;

constexpr std::size_t kLongestDirectory = 113;

/// A setting that is typed as a number.
struct NumberText
{
    const char* key;
    const wxString& text;
};

/// The user's own frequency counts only where it is chosen.
std::vector<NumberText> NumbersOf(const Inputs& p)
{
    std::vector<NumberText> numbers{{"MMN", p.manMadeNoise},
                                    {"MTA", p.minTakeOffAngle},
                                    {"RCR", p.requiredReliability},
                                    {"RSN", p.requiredSnr},
                                    {"MPT", p.multipathPowerTolerance},
                                    {"MTM", p.maxMultipathDelay},
                                    {"TxGain", p.transmitter.gain},
                                    {"Tx1Dir", p.transmitter.directionDeg},
                                    {"RxGain", p.receiver.gain},
                                    {"Rx1Dir", p.receiver.directionDeg},
                                    {"Fo1", p.layerMultipliers[0]},
                                    {"Fo2", p.layerMultipliers[1]},
                                    {"Fo3", p.layerMultipliers[2]},
                                    {"Fo4", p.layerMultipliers[3]}};
    if (UsesOwnFrequency(p))
        numbers.push_back({"UserFq", p.userFrequencyMHz});
    return numbers;
}

template <class IsWrong>
Keys NumbersThat(const Inputs& p, IsWrong isWrong)
{
    Keys keys;
    for (const NumberText& number : NumbersOf(p))
        if (isWrong(number.text))
            keys.push_back(number.key);
    return keys;
}

bool BeginsWithNumber(const wxString& text)
{
    const double unlikely = -1.25e300;
    double number = unlikely;
    text.ToDouble(&number);
    return number != unlikely;
}

/// Whether a number, written with so many decimals, has more characters than there is room for.
bool IsWider(const wxString& text, int decimals, std::size_t room)
{
    return wxString::Format("%.*f", decimals, NumberOf(text)).length() > room;
}

Keys KeyIf(bool misfits, const char* key)
{
    return misfits ? Keys{key} : Keys{};
}

/// The two antennas: those whose file is wrong.
template <class IsWrong>
Keys AntennasThat(const Inputs& p, IsWrong isWrong)
{
    Keys keys;
    if (!p.transmitter.file.empty() && isWrong(p.transmitter.file))
        keys.push_back("Tx1File");
    if (!p.receiver.file.empty() && isWrong(p.receiver.file))
        keys.push_back("Rx1File");
    return keys;
}

bool IsRefused(const wxString& antenna)
{
    return !AntennaNameOf(antenna).problem.empty();
}

/// The file that is named, below the directory of antennas; empty when the name has none.
wxString NamedFile(const wxString& antenna)
{
    const wxString columns = AntennaNameOf(antenna).columns;
    const wxString file = columns.AfterFirst('\\').Trim();
    return file.empty() ? wxString() : columns.BeforeFirst('\\').Trim() + "/" + file;
}

bool CountsAsNone(const wxString& antenna)
{
    return !IsRefused(antenna) && NamedFile(antenna).empty();
}

constexpr char kDisturbs[] = "disturbs the fields after it";

const InputRule kRules[] = {
    {"every number", "a decimal point", "a comma ends it: 14,2 counts as 14",
     [](const Inputs& p) { return NumbersThat(p, [](const wxString& text) { return text.Contains(","); }); }},
    {"every number", "what begins with a number", "counts as 0",
     [](const Inputs& p) { return NumbersThat(p, [](const wxString& text) { return !BeginsWithNumber(text); }); }},
    {"SSN", "0 to 99", "the last digit is lost: 120 counts as 12",
     [](const Inputs& p) { return KeyIf(p.sunspotNumber < 0 || p.sunspotNumber > 99, "SSN"); }},
    {"Icepac/Voacap directory", "up to 113 characters", "leaves no result",
     [](const Inputs& p) { return KeyIf(std::string_view(p.directory.fn_str()).size() > kLongestDirectory, "Dir"); }},
    {"User Fq MHz", "above 0", "gives a result without the power",
     [](const Inputs& p) { return KeyIf(UsesOwnFrequency(p) && FrequencyMHz(p) <= 0, "UserFq"); }},
    {"User Fq MHz", "below 100", "the last digits are lost",
     [](const Inputs& p) { return KeyIf(UsesOwnFrequency(p) && IsWider(p.userFrequencyMHz, 3, 6), "UserFq"); }},
    {"Man Made Noise", "0 to 999, without a minus sign", kDisturbs,
     [](const Inputs& p) { return KeyIf(NumberOf(p.manMadeNoise) < 0 || IsWider(p.manMadeNoise, 0, 3), "MMN"); }},
    {"Minimum Takeoff Angle", "0 to 9.999", kDisturbs,
     [](const Inputs& p) { return KeyIf(IsWider(p.minTakeOffAngle, 3, 5), "MTA"); }},
    {"Required Circuit Reliability", "0 to 99", kDisturbs,
     [](const Inputs& p) { return KeyIf(IsWider(p.requiredReliability, 0, 2), "RCR"); }},
    {"Required S/N Ratio", "-9 to 99", kDisturbs,
     [](const Inputs& p) { return KeyIf(IsWider(p.requiredSnr, 0, 2), "RSN"); }},
    {"Multipath Pwr Tolerance", "0 to 9.999", kDisturbs,
     [](const Inputs& p) { return KeyIf(IsWider(p.multipathPowerTolerance, 3, 5), "MPT"); }},
    {"Max Tolerable Multipath Delay", "0 to 9.999", "the last digits are lost",
     [](const Inputs& p) { return KeyIf(IsWider(p.maxMultipathDelay, 3, 5), "MTM"); }},
    {"transmitter's gain", "0 to 9.999", "disturbs the direction",
     [](const Inputs& p) { return KeyIf(IsWider(p.transmitter.gain, 3, 5), "TxGain"); }},
    {"transmitter's direction", "-99.9 to 999.9", "disturbs the power",
     [](const Inputs& p) { return KeyIf(IsWider(p.transmitter.directionDeg, 1, 5), "Tx1Dir"); }},
    {"receiver's gain", "0 to 9.9", "disturbs the direction",
     [](const Inputs& p) { return KeyIf(IsWider(p.receiver.gain, 1, 3), "RxGain"); }},
    {"receiver's direction", "-9.9 to 99.9", "read as a tenth: 270 counts as 27",
     [](const Inputs& p) { return KeyIf(IsWider(p.receiver.directionDeg, 1, 4), "Rx1Dir"); }},
    {"antenna file", "a path of seven or eight parts", "counts as none, isotropic",
     [](const Inputs& p) { return AntennasThat(p, CountsAsNone); }},
    {"antenna file", "names of 8 and 12 characters", "refused",
     [](const Inputs& p) { return AntennasThat(p, IsRefused); }},
    {"antenna file", "one below antennas in the directory", "leaves no result",
     [](const Inputs& p)
     {
         return AntennasThat(p,
                             [&p](const wxString& antenna)
                             {
                                 const wxString file = NamedFile(antenna);
                                 return !file.empty() && !wxFileName::FileExists(p.directory + "/antennas/" + file);
                             });
     }},
    {"layer multipliers", "0 to 9.99", "disturbs those after it",
     [](const Inputs& p)
     {
         static constexpr const char* kNames[] = {"Fo1", "Fo2", "Fo3", "Fo4"};
         Keys keys;
         for (std::size_t i = 0; i < std::size(kNames); ++i)
             if (IsWider(p.layerMultipliers[i], 2, 4))
                 keys.push_back(kNames[i]);
         return keys;
     }},
};
} // namespace

wxString InputFinding::Text(const char* between) const
{
    return wxString(rule->otherwise) + between + "(fits: " + rule->fits + ")";
}

std::span<const InputRule> InputRules()
{
    return kRules;
}

std::vector<InputFinding> CheckInput(const PropagationSettings& settings)
{
    std::vector<InputFinding> findings;
    for (const InputRule& rule : kRules)
        for (const char* const key : rule.misfits(settings))
            findings.push_back({key, &rule});
    return findings;
}
} // namespace propagation

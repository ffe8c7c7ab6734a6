#include "reports/LayerCheck.h"

#include "config/SettingKeys.h"
#include "reports/FileCheck.h"
#include "reports/FontCheck.h"

#include <wx/crt.h>

#include <map>

namespace reports
{
namespace
{
constexpr long kWhite = 0xFFFFFF;

/// The switches of all layers: their keys end in "Show" or "Show" and a number.
class Switches
{
public:
    explicit Switches(Settings& settings)
    {
        settings.ForEachSetting(
            [this]<class Value>(const wxString& key, const Value& member, const auto&)
            {
                if constexpr (std::is_same_v<Value, bool>)
                    m_isOn[key] = member;
            });
    }

    /// Whether what a key describes is drawn: its layer and, for the look of texts, these.
    bool IsShown(const wxString& key) const
    {
        // The distances on the range circles are written in it, too.
        if (key == "Compass/Font" && IsOn("RangeCircles/RcShow") && IsOn("RangeCircles/RcLegendShow"))
            return true;
        const wxString group = key.BeforeFirst('/');
        const wxString name = key.AfterFirst('/');
        const wxString number = wxIsdigit(key.Last()) ? wxString(key.Last()) : wxString();
        return IsOn(group + "/Show" + number) && IsOn(group + "/RcShow") &&
               (!name.StartsWith("Font") || IsOn(group + "/FontShow"));
    }

private:
    /// A switch that is not there is on.
    bool IsOn(const wxString& key) const
    {
        const auto found = m_isOn.find(key);
        return found == m_isOn.end() || found->second;
    }

    std::map<wxString, bool> m_isOn;
};

/// The colours of the propagation overlay are not blended as layers are: white is a colour there.
wxString ColourTrouble(const wxString& key, long colour)
{
    const bool isInvisible = (colour & kWhite) == kWhite && key.Matches("*Colour*") && !key.StartsWith("Propagation/");
    return isInvisible ? "pure white counts as nothing drawn: take 16711679, which is (255, 255, 254)" : "";
}

/// How the texts of some keys are judged.
struct TextRule
{
    const char* keys;
    wxString (*trouble)(const wxString& text);
};

constexpr TextRule kTextRules[] = {
    {"*/Font", FontTrouble},
    {"*/Font?", FontTrouble},
    {"SourceBitmap/File?", SourcePictureTrouble},
    {"Borders/File?", BorderFileTrouble},
    {"Text/File?", LabelFileTrouble},
    {"PlotSquares/File?", LogTrouble},
};

wxString TextTrouble(const wxString& key, const wxString& text)
{
    for (const TextRule& rule : kTextRules)
        if (key.Matches(rule.keys))
            return rule.trouble(text);
    return "";
}

template <class Value>
wxString Trouble(const wxString& key, const Value& member)
{
    if constexpr (std::is_same_v<Value, long>)
        return ColourTrouble(key, member);
    else if constexpr (std::is_same_v<Value, wxString>)
        return TextTrouble(key, member);
    else
        return "";
}
} // namespace

Findings CheckLayers(Settings& settings)
{
    Findings findings;
    const Switches switches(settings);
    settings.ForEachSetting(
        [&](const wxString& key, const auto& member, const auto&)
        {
            const wxString trouble = switches.IsShown(key) ? Trouble(key, member) : wxString();
            if (!trouble.empty())
                findings.push_back({key, trouble});
        });
    return findings;
}
} // namespace reports

#include "reports/PrintCheck.h"

#include "config/QuietToolkit.h"
#include "config/SettingsFile.h"
#include "reports/BoundedFile.h"
#include "reports/KeyCheck.h"
#include "reports/LayerCheck.h"
#include "reports/VoacapCheck.h"

#include <wx/fileconf.h>

#include <memory>

namespace reports
{
namespace
{
constexpr char kAppName[] = "Kavdex";

/// What is checked: a file that is named, or what the program starts with.
struct Checked
{
    explicit Checked(const std::optional<wxString>& asked)
        : isNamed(asked.has_value()), name(asked.value_or(wxFileConfig::GetLocalFileName(kAppName)))
    {
    }

    /// A working file that is not there yet is as good as the empty device.
    bool IsNothing() const
    {
        return name == "/dev/null" || (!isNamed && ObstacleTo(name) != "" && !wxFileExists(name));
    }

    std::unique_ptr<wxFileConfig> Open() const
    {
        if (isNamed)
            return OpenSettingsFile(name);
        const QuietToolkit quiet;
        return std::make_unique<wxFileConfig>(kAppName);
    }

    bool isNamed;
    wxString name;
};

void Append(Findings& findings, Findings more)
{
    findings.insert(findings.end(), more.begin(), more.end());
}

Findings FindingsOf(wxFileConfig& file, std::string_view bytes)
{
    const QuietToolkit quiet;
    Settings settings;
    Findings findings = CheckLines(bytes);
    Append(findings, CheckKeys(file));
    Append(findings, CheckValues(file, settings));
    Append(findings, CheckLayers(settings));
    Append(findings, CheckPropagation(settings));
    return findings;
}

/// A text that keeps to its line.
wxString OneLine(wxString text)
{
    for (const auto& c : {'\n', '\r', '\t'})
        text.Replace(wxString(c), " ");
    return text;
}

int Print(const wxString& name, const Findings& findings, std::FILE* out)
{
    for (const Finding& finding : findings)
        std::fprintf(out, "%s\n", OneLine(name + ":" + finding.key + ": " + finding.text).utf8_str().data());
    if (std::fflush(out) == 0)
        return findings.empty() ? 0 : 2;
    std::fprintf(stderr, "kavmap: can't write the findings\n");
    return 1;
}
} // namespace

int PrintCheck(const std::optional<wxString>& name, std::FILE* out)
{
    const Checked checked(name);
    const BoundedFile text = checked.IsNothing() ? BoundedFile{} : ReadBoundedText(checked.name);
    if (!text.obstacle.empty())
    {
        std::fprintf(stderr, "kavmap: can't check %s: %s\n", checked.name.utf8_str().data(),
                     text.obstacle.utf8_str().data());
        return 1;
    }
    const auto file = checked.Open();
    return Print(checked.name, FindingsOf(*file, text.bytes), out);
}
} // namespace reports

#include "reports/VoacapCheck.h"

#include "config/SettingKeys.h"
#include "propagation/InputRules.h"
#include "propagation/VoacapRun.h"
#include "reports/FileCheck.h"

#include <wx/filename.h>
#include <wx/tokenzr.h>
#include <wx/utils.h>

#include <array>
#include <unistd.h>

namespace reports
{
namespace
{
constexpr char kComplete[] = "makeitshfbc, which comes with voacapl, makes a complete one";

/// The parts of a data directory that voacapl reads.
constexpr std::array kReadParts{"antennas", "coeffs", "database"};

bool MayDo(const wxString& path, int mode)
{
    return access(path.fn_str(), mode) == 0;
}

/// What a shell would find under a name; of files that can't be run the first.
struct Program
{
    wxString path;
    bool isRunnable = false;
};

Program Find(const wxString& name)
{
    Program found;
    wxString searched;
    wxGetEnv("PATH", &searched);
    for (const wxString& directory : wxStringTokenize(searched, ":", wxTOKEN_RET_EMPTY_ALL))
    {
        const wxString path = (directory.empty() ? "." : directory) + "/" + name;
        if (!wxFileName::FileExists(path))
            continue;
        if (MayDo(path, X_OK))
            return {path, true};
        if (found.path.empty())
            found.path = path;
    }
    return found;
}

wxString ProgramTrouble()
{
    const Program program = Find("voacapl");
    if (program.isRunnable)
        return "";
    if (program.path.empty())
        return "voacapl is not found on the search path: install it, or do not show the propagation";
    return "voacapl can't be run: " + program.path + " is not executable";
}

wxString DirectoryTrouble(const wxString& directory)
{
    if (directory.empty())
        return wxString("no data directory is named: ") + kComplete;
    if (!wxFileName::DirExists(directory))
        return wxString::Format("%s: there is no such directory: %s", directory, kComplete);
    return "";
}

/// Where Kavmap and voacapl write.
wxString WriteTrouble(const wxString& directory)
{
    const wxString area = directory + "/areadata/default";
    if (!wxFileName::DirExists(area))
        return wxString::Format("%s: it lacks areadata/default: %s", directory, kComplete);
    const propagation::AreaFiles files(directory);
    const bool isReplaceable = !wxFileName::Exists(files.input) || MayDo(files.input, W_OK);
    return MayDo(area, W_OK | X_OK) && isReplaceable ? "" : area + ": it is not yours to write to";
}

Findings CheckDirectory(const wxString& directory)
{
    static constexpr char kKey[] = "Propagation/Dir";
    if (const wxString trouble = DirectoryTrouble(directory); !trouble.empty())
        return {{kKey, trouble}};
    Findings findings;
    for (const char* const part : kReadParts)
        if (!wxFileName::DirExists(directory + "/" + part))
            findings.push_back({kKey, wxString::Format("%s: it lacks %s: %s", directory, part, kComplete)});
    if (const wxString trouble = WriteTrouble(directory); !trouble.empty())
        findings.push_back({kKey, trouble});
    return findings;
}

void CheckRun(const PropagationSettings& settings, Findings& findings)
{
    if (const wxString trouble = ProgramTrouble(); !trouble.empty())
        findings.push_back({"Propagation/Show", trouble});
    for (Finding& finding : CheckDirectory(settings.directory))
        findings.push_back(std::move(finding));
    for (const propagation::InputFinding& finding : propagation::CheckInput(settings))
        findings.push_back({wxString("Propagation/") + finding.key, finding.Text()});
}

void CheckThresholds(PropagationSettings settings, Findings& findings)
{
    const auto check = [&findings](const wxString& key, const wxString& text, const char*)
    {
        double number = 0.0;
        if (!text.ToCDouble(&number))
            findings.push_back({key, "'" + text + "' is no number"});
    };
    for (std::size_t i = 0; i < settings.scales.size(); ++i)
        config::VisitScaleValues(config::kParameters[i].steps, settings.scales[i], check);
}
} // namespace

Findings CheckPropagation(const Settings& settings)
{
    const PropagationSettings& propagation = settings.propagation;
    Findings findings;
    if (!propagation.show)
        return findings;
    if (!propagation.useExternalResult)
        CheckRun(propagation, findings);
    else if (const wxString trouble = ResultTrouble(propagation.externalResult, propagation.parameter);
             !trouble.empty())
        findings.push_back({"Propagation/ExtVg1File", trouble});
    CheckThresholds(propagation, findings);
    return findings;
}
} // namespace reports

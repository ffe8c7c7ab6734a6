#include "app/BatchRender.h"

#include "app/ErrorLines.h"
#include "app/FileNames.h"
#include "maker/MapMaker.h"
#include "propagation/InputRules.h"
#include "render/MapRows.h"
#include "render/PictureFile.h"
#include "reports/Georeference.h"

#include <wx/log.h>

#include <cstdio>
#include <unistd.h>

namespace app
{
namespace
{
void Warn(const wxString& text)
{
    std::fprintf(stderr, "kavmap: warning: %s\n", Bytes(text).c_str());
}

/// Warns of what voacapl will not read as it stands in the settings.
void WarnOfInput(const PropagationSettings& settings)
{
    if (!settings.show || settings.useExternalResult)
        return;
    for (const propagation::InputFinding& finding : propagation::CheckInput(settings))
        Warn(wxString("Propagation/") + finding.key + ": " + finding.Text());
}

class Printer : public MapListener
{
public:
    explicit Printer(std::chrono::seconds voacaplLimit) : m_voacaplLimit(voacaplLimit) {}

private:
    void OnError(const wxString& text) override { Report(text); }
    void OnWarning(const wxString& text) override { Warn(text); }
    void OnStep(const wxString& text) override
    {
        if (!text.empty() && isatty(STDERR_FILENO))
            std::fprintf(stderr, "%s\n", text.utf8_str().data());
    }
    bool OnWaiting(std::chrono::milliseconds waited) override
    {
        if (waited < m_voacaplLimit)
            return true;
        Report(wxString::Format("voacapl was ended after %lld s. The map has no propagation overlay.",
                                static_cast<long long>(m_voacaplLimit.count())));
        return false;
    }

    const std::chrono::seconds m_voacaplLimit;
};
} // namespace

int RenderToFile(Settings& settings, const wxString& path, std::chrono::seconds voacaplLimit, bool withWorldFile)
{
    const int before = ReportCount();
    WarnOfInput(settings.propagation);
    Printer printer(voacaplLimit);
    MapRows picture;
    MapMaker maker(settings, picture, printer);
    const bool written = maker.MakeMap() == MapMaker::Creation::Finished && render::SavePicture(picture, path);
    if (written && withWorldFile)
        reports::WriteGeoreference(*maker.View(), path);
    wxLog::FlushActive();
    return !written ? 1 : ReportCount() > before ? 2 : 0;
}
} // namespace app

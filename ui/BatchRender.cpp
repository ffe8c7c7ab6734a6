#include "ui/BatchRender.h"

#include "propagation/InputRules.h"
#include "render/PictureFile.h"
#include "ui/WxKavFrame.h"

#include <wx/log.h>
#include <wx/modalhook.h>
#include <wx/msgdlg.h>

#include <cstdio>
#include <unistd.h>

namespace ui
{
namespace
{
int messageCount = 0;

void Report(const wxString& message)
{
    ++messageCount;
    std::fprintf(stderr, "kavmap: %s\n", message.utf8_str().data());
}

/// Takes the place of every message box: nobody is there to press OK.
class MessageBoxes : public wxModalDialogHook
{
public:
    MessageBoxes() { Register(); }
    ~MessageBoxes() override { Unregister(); }

protected:
    int Enter(wxDialog* dialog) override
    {
        if (const auto* box = dynamic_cast<const wxMessageDialogBase*>(dialog))
            Report(box->GetMessage());
        return wxID_OK;
    }
};

class LogToStandardError : public wxLog
{
protected:
    void DoLogTextAtLevel(wxLogLevel level, const wxString& text) override
    {
        if (level <= wxLOG_Message)
            Report(text);
    }
    void DoLogRecord(wxLogLevel level, const wxString& text, const wxLogRecordInfo&) override
    {
        DoLogTextAtLevel(level, text);
    }
};

void Warn(const wxString& text)
{
    std::fprintf(stderr, "kavmap: warning: %s\n", text.utf8_str().data());
}

/// Warns of what voacapl will not read as it stands in the settings.
void WarnOfInput(const PropagationSettings& settings)
{
    if (!settings.show || settings.useExternalResult)
        return;
    for (const propagation::InputFinding& finding : propagation::CheckInput(settings))
        Warn(wxString("Propagation/") + finding.key + ": " + finding.Text());
}

void PrintStep(const wxString& step)
{
    if (isatty(STDERR_FILENO))
        std::fprintf(stderr, "%s\n", step.utf8_str().data());
}
} // namespace

int RenderToFile(std::unique_ptr<Configuration> settings, const wxString& path, std::chrono::seconds voacaplLimit)
{
    const MessageBoxes boxes;
    delete wxLog::SetActiveTarget(new LogToStandardError);
    WarnOfInput(settings->propagation);
    auto* const frame = new WxKavFrame(nullptr, std::move(settings));
    frame->onStep = PrintStep;
    frame->onWarning = Warn;
    frame->keepWaiting = [voacaplLimit](std::chrono::milliseconds waited)
    {
        if (waited < voacaplLimit)
            return true;
        Report(wxString::Format("voacapl was ended after %lld s. The map has no propagation overlay.",
                                static_cast<long long>(voacaplLimit.count())));
        return false;
    };
    const bool written = frame->CreateMap() && render::SavePicture(frame->TakePicture(), path);
    wxLog::FlushActive();
    const int status = !written ? 1 : messageCount > 0 ? 2 : 0;
    frame->Destroy();
    return status;
}
} // namespace ui

#include "ui/BatchRender.h"

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

void PrintStep(const wxString& step)
{
    if (isatty(STDERR_FILENO))
        std::fprintf(stderr, "%s\n", step.utf8_str().data());
}
} // namespace

int RenderToFile(std::unique_ptr<Configuration> settings, const wxString& path)
{
    const MessageBoxes boxes;
    delete wxLog::SetActiveTarget(new LogToStandardError);
    auto* const frame = new WxKavFrame(nullptr, std::move(settings));
    frame->onStep = PrintStep;
    const bool written = frame->CreateMap() && render::SavePicture(frame->TakePicture(), path);
    wxLog::FlushActive();
    const int status = !written ? 1 : messageCount > 0 ? 2 : 0;
    frame->Destroy();
    return status;
}
} // namespace ui

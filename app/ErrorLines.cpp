#include "app/ErrorLines.h"

#include "app/FileNames.h"

#include <wx/log.h>

#include <cstdio>

namespace app
{
namespace
{
int theCount = 0;

class ErrorLines : public wxLog
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
} // namespace

void Report(const wxString& error)
{
    ++theCount;
    std::fprintf(stderr, "kavmap: %s\n", Bytes(error).c_str());
}

void LogToStandardError()
{
    delete wxLog::SetActiveTarget(new ErrorLines);
}

int ReportCount()
{
    return theCount;
}
} // namespace app

#pragma once

#include <wx/log.h>
#include <wx/string.h>

/// Records what the toolkit logs in this thread, for as long as it lives. (The toolkit's own buffer shows and forgets
/// its messages when another target takes its place.)
class RecordedLog : public wxLog
{
public:
    RecordedLog() : m_before(wxLog::SetActiveTarget(this)) {}
    ~RecordedLog() override { wxLog::SetActiveTarget(m_before); }

    /// The messages so far, a line for each.
    const wxString& Text() const { return m_text; }

protected:
    void DoLogTextAtLevel(wxLogLevel, const wxString& message) override { m_text << message << '\n'; }

private:
    wxLog* m_before;
    wxString m_text;
};

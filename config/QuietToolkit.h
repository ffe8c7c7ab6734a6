#pragma once

#include <wx/debug.h>
#include <wx/log.h>

/// While one of these lives, the toolkit neither logs nor asserts in this thread: whatever a settings file holds, it is
/// loaded in silence. (A line that begins with "=" makes the toolkit assert, a damaged one makes it log.)
class QuietToolkit
{
public:
    QuietToolkit() : m_assertHandler(wxSetAssertHandler(static_cast<wxAssertHandler_t>(nullptr))) {}
    ~QuietToolkit() { wxSetAssertHandler(m_assertHandler); }
    QuietToolkit(const QuietToolkit&) = delete;
    QuietToolkit& operator=(const QuietToolkit&) = delete;

private:
    wxLogNull m_noLog;
    wxAssertHandler_t m_assertHandler;
};

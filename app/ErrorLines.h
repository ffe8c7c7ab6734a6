#pragma once

#include <wx/string.h>

namespace app
{
/// Writes an error as a line on standard error.
void Report(const wxString& error);

/// Has the toolkit's log report its errors and messages so.
void LogToStandardError();

/// How many there were so far.
int ReportCount();
} // namespace app

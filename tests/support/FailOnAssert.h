#pragma once

#include <gtest/gtest.h>

#include <wx/debug.h>
#include <wx/string.h>

/// Turns an assertion of the toolkit into a failure of the test in which it fires.
inline void FailOnAssert()
{
    wxSetAssertHandler(
        [](const wxString& file, int line, const wxString& function, const wxString& condition, const wxString& message)
        { ADD_FAILURE() << file << ":" << line << ": " << function << ": " << condition << " " << message; });
}

#pragma once

#include <wx/string.h>

#include <chrono>

namespace propagation
{
/// Whom a computation tells what it does.
class Progress
{
public:
    virtual ~Progress() = default;

    /// What is being done now.
    virtual void OnStep(const wxString& text) = 0;

    /// Called again and again while an outside program runs; false ends it, and whoever answers so tells the user.
    virtual bool OnWaiting(std::chrono::milliseconds /*waited*/) { return true; }
};
} // namespace propagation

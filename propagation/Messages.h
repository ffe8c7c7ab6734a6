#pragma once

#include <wx/string.h>

#include <functional>

namespace propagation
{
/// Whom a computation tells what it does and what went wrong.
struct Reports
{
    std::function<void(const wxString&)> step;
    std::function<void(const wxString&)> error;
};

inline constexpr char kFileOpenError[] = "File open error in Prop";
} // namespace propagation

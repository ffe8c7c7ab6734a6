#pragma once

#include "config/Settings.h"
#include "reports/Finding.h"

#include <wx/confbase.h>

#include <string_view>

namespace reports
{
/**
 * Reads all settings from a file and tells which of its values can't be read or are out of range.
 *
 * @param[out] settings as the program takes them: defaults in place of what is missing or unreadable.
 */
Findings CheckValues(wxConfigBase& file, Settings& settings);

/// The keys of a file that the program does not know, each with the nearest that it knows, if one is near.
Findings CheckKeys(wxConfigBase& file);

/// The lines of a settings file that are neither a group nor a key, a comment or blank.
Findings CheckLines(std::string_view bytes);
} // namespace reports

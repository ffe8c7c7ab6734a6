#pragma once

#include <wx/string.h>

#include <cstdio>
#include <optional>

namespace reports
{
/**
 * Prints what in a settings file will not work, a line each: the file, the key and a text with ": " between them.
 *
 * Settings that can't be checked are told on standard error as "kavmap: " and a text.
 *
 * @param[in] name a settings file; the user's working file, which need not be there, if there is none. Neither is
 *                 written.
 * @return exit status: 0 nothing found, 2 something found, 1 not checked.
 */
int PrintCheck(const std::optional<wxString>& name, std::FILE* out);
} // namespace reports

#pragma once

#include "config/Settings.h"
#include "config/UtcTime.h"

#include <cstdio>
#include <optional>

namespace reports
{
/**
 * Prints the bearings of the places of a label file or a log as CSV.
 *
 * What is wrong goes to standard error as "kavmap: " and a text.
 *
 * @param[in] name see FindDataFile().
 * @param[in] time for the sun; now if there is none.
 * @return exit status: 0 all printed, 1 nothing printed, 2 some lines of a label file name no place.
 */
int PrintBearings(const Settings& settings, const wxString& name, const std::optional<UtcTime>& time, std::FILE* out);

/**
 * Answers each line that comes in with a line of CSV, at once; the first answer follows the names of the columns. A
 * line that names no place is answered with a line whose columns are empty but for the first, and is named on standard
 * error.
 *
 * @param[in] time for the sun; the moment of each answer if there is none.
 * @return exit status: 0 all answered, 1 no line named a place, 2 some did not.
 */
int AnswerBearings(const Settings& settings, const std::optional<UtcTime>& time, std::FILE* in, std::FILE* out);
} // namespace reports

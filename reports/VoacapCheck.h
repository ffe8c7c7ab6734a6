#pragma once

#include "config/Settings.h"
#include "reports/Finding.h"

namespace reports
{
/**
 * What keeps the propagation overlay from coming out right: voacapl and its data directory, the values that it reads
 * otherwise than they were typed, thresholds that are no numbers; or the result that was brought along. Nothing where
 * the overlay is not shown.
 */
Findings CheckPropagation(const Settings& settings);
} // namespace reports

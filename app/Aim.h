#pragma once

#include "app/CommandLine.h"
#include "config/Settings.h"

namespace app
{
/**
 * Prints the bearing of a place from the station, and with a rotator turns the antenna there; waits until the rotator
 * has answered, some seconds at most.
 *
 * The bearing goes to standard output, degrees with one decimal; messages go to standard error as "kavmap: " and their
 * text.
 *
 * @param[in] line names the place, the path and the rotator.
 * @return exit status: 0, or 1 where the place is not known or has no bearing, the rotator refuses or does not answer,
 *         or nobody gets the bearing.
 */
int Aim(const Settings& settings, const CommandLine& line);
} // namespace app

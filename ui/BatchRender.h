#pragma once

#include "config/Configuration.h"

#include <memory>

namespace ui
{
/**
 * Creates a map without showing a window and writes it to a picture file.
 *
 * Every message goes to standard error as "kavmap: " and its text, and so does the toolkit's log; the steps go there
 * when it is a terminal.
 *
 * @param[in] path ends in one of the six endings that name a format.
 * @return exit status: 0 written, 1 nothing written, 2 written although something failed.
 */
int RenderToFile(std::unique_ptr<Configuration> settings, const wxString& path);
} // namespace ui

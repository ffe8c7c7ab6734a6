#pragma once

#include "config/Settings.h"

#include <chrono>

namespace app
{
/**
 * Makes a map and writes it to a picture file.
 *
 * Every message goes to standard error as "kavmap: " and its text, and so does the toolkit's log; the steps go there
 * when it is a terminal.
 *
 * Settings that voacapl will read otherwise than they stand there, and a result that is not whole, are warned of; a
 * warning does not change the exit status.
 *
 * @param[in] path         ends in one of the six endings that name a format.
 * @param[in] voacaplLimit after which voacapl is ended; the picture is then written without its overlay.
 * @param[in] withWorldFile a world file and the projection are written beside the picture, once that is there.
 * @return exit status: 0 written, 1 nothing written, 2 written although something failed.
 */
int RenderToFile(Settings& settings, const wxString& path, std::chrono::seconds voacaplLimit, bool withWorldFile);
} // namespace app

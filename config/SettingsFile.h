#pragma once

#include <wx/fileconf.h>

#include <memory>

/**
 * Opens a named settings file (".ini") for one load or one save.
 *
 * A file that does not exist or cannot be parsed in places is opened all the same and lacks those keys; nothing is
 * reported. What is written reaches the disk when the object is destroyed: the whole file is replaced at once, and
 * entries that the program does not know are kept.
 *
 * @param[in] path taken relative to the working directory. The empty device is a file without settings.
 * @return none, which the toolkit's log reports, for a pipe or another device: one might wait for them for ever.
 */
std::unique_ptr<wxFileConfig> OpenSettingsFile(const wxString& path);

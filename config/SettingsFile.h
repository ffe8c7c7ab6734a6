#pragma once

#include <wx/fileconf.h>

#include <memory>

/**
 * Why settings can't be read from what stands at a path, as the end of a message; none if they can, or if nothing
 * stands there.
 *
 * One might wait for pipes and devices for ever. No file of settings comes near a megabyte: for many keys the toolkit
 * takes a time that grows with the square of their number, which remains below some seconds there.
 */
const char* ObstacleToSettings(const char* path);

/**
 * Opens a named settings file (".ini") for one load or one save.
 *
 * A file that does not exist or cannot be parsed in places is opened all the same and lacks those keys; nothing is
 * reported. What is written reaches the disk when the object is destroyed: the whole file is replaced at once, and
 * entries that the program does not know are kept.
 *
 * @param[in] path taken relative to the working directory. The empty device is a file without settings.
 * @return none, which the toolkit's log reports, where ObstacleToSettings() tells of one.
 */
std::unique_ptr<wxFileConfig> OpenSettingsFile(const wxString& path);

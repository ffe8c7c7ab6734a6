#pragma once

#include <wx/file.h>
#include <wx/string.h>

/**
 * Where a file named in the settings is found.
 *
 * A name is taken as it stands first. A relative name that is not found there is looked up in the program's data
 * directory ("../share/kavmap" beside the program). A name that is found nowhere is returned as it stands, so that the
 * error of whoever opens it names what the user typed.
 */
wxString FindDataFile(const wxString& name);

/**
 * Opens a file named in the settings for reading, where FindDataFile() finds it.
 *
 * @return whether it is open; the toolkit's log says why not. See SpecialFileAt() for what is refused.
 */
bool OpenDataFile(wxFile& file, const wxString& name);

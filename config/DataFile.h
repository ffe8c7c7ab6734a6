#pragma once

#include <wx/string.h>

/**
 * Where a file named in the settings is found.
 *
 * A name is taken as it stands first. A relative name that is not found there is looked up in the program's data
 * directory ("../share/kavmap" beside the program). A name that is found nowhere is returned as it stands, so that the
 * error of whoever opens it names what the user typed.
 */
wxString FindDataFile(const wxString& name);

#pragma once

#include <wx/string.h>

// What is wrong with a file that a layer needs, as the rest of a line; empty if nothing is. Names are looked up as the
// layers look them up.
namespace reports
{
wxString SourcePictureTrouble(const wxString& name);         ///< an equirectangular picture, twice as wide as high
wxString BorderFileTrouble(const wxString& name);            ///< whole records, the first of which begins a line
wxString LabelFileTrouble(const wxString& name);             ///< seven fields in every line
wxString LogTrouble(const wxString& name);                   ///< a square somewhere
wxString ResultTrouble(const wxString& name, int parameter); ///< an area result in which every point has a value
} // namespace reports

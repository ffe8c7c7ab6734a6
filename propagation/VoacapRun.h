#pragma once

#include <wx/string.h>

namespace propagation
{
/// Where an area run of voacapl keeps its files, below its data directory.
struct AreaFiles
{
    explicit AreaFiles(const wxString& directory);

    wxString directory;
    wxString input;
    wxString result;
};
} // namespace propagation

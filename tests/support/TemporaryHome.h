#pragma once

#include <wx/string.h>

#include <string>

/// An empty home directory that is also the working directory, for as long as it lives. Settings files and pictures of
/// a test go there.
class TemporaryHome
{
public:
    TemporaryHome();
    ~TemporaryHome();
    TemporaryHome(const TemporaryHome&) = delete;
    TemporaryHome& operator=(const TemporaryHome&) = delete;

    /// The path of a file in it.
    wxString Path(const wxString& name) const;

    /// The path of the program's working settings file.
    wxString WorkingFile() const { return Path(".Kavdex"); }

    /// Writes bytes as they are to a file in it and returns its path.
    wxString Write(const wxString& name, const std::string& bytes) const;

    /// The bytes of a file in it, empty if there is none.
    std::string Read(const wxString& name) const;

private:
    wxString m_directory;
    wxString m_homeBefore;
    wxString m_workingDirectoryBefore;
};

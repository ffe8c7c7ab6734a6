#include "tests/support/TemporaryHome.h"

#include <wx/filefn.h>
#include <wx/utils.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>

TemporaryHome::TemporaryHome() : m_workingDirectoryBefore(wxGetCwd())
{
    wxGetEnv("HOME", &m_homeBefore);
    std::string pattern = (std::filesystem::temp_directory_path() / "kavmap-test-XXXXXX").string();
    m_directory = wxString::FromUTF8(mkdtemp(pattern.data()));
    wxSetEnv("HOME", m_directory);
    wxSetWorkingDirectory(m_directory);
}

TemporaryHome::~TemporaryHome()
{
    wxSetEnv("HOME", m_homeBefore);
    wxSetWorkingDirectory(m_workingDirectoryBefore);
    std::error_code ignored;
    std::filesystem::remove_all(m_directory.utf8_string(), ignored);
}

wxString TemporaryHome::Path(const wxString& name) const
{
    return m_directory + "/" + name;
}

wxString TemporaryHome::Write(const wxString& name, const std::string& bytes) const
{
    const wxString path = Path(name);
    const std::filesystem::path file(path.utf8_string());
    std::filesystem::create_directories(file.parent_path());
    std::ofstream(file, std::ios::binary) << bytes;
    return path;
}

std::string TemporaryHome::Read(const wxString& name) const
{
    std::ifstream file(Path(name).utf8_string(), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

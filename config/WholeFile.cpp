#include "config/WholeFile.h"

#include "config/Endings.h"
#include "config/FileStream.h"
#include "config/SpecialFile.h"

#include <wx/log.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <random>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

namespace
{
namespace fs = std::filesystem;

const char* volatile theUnfinished = nullptr; ///< the path of what is to be removed

void RemoveUnfinished()
{
    if (const char* const path = theUnfinished)
        unlink(path);
}

/// A name beside another that is never there when the program ends, unless it is made to end at once.
class UnfinishedName
{
public:
    explicit UnfinishedName(const fs::path& finished)
        : path((finished.parent_path() / (kUnfinished + std::to_string(std::random_device()()))).string())
    {
        // Known before there is such a file: a signal may come at any time.
        theUnfinished = path.c_str();
    }
    ~UnfinishedName()
    {
        unlink(path.c_str());
        theUnfinished = nullptr;
    }
    UnfinishedName(const UnfinishedName&) = delete;
    UnfinishedName& operator=(const UnfinishedName&) = delete;

    const std::string path;

private:
    const Endings m_endings{RemoveUnfinished};
};

wxString TextOf(ErrorNumber error)
{
    return error == 0 ? wxString("the toolkit can't encode it")
                      : wxString(wxSysErrorMsgStr(static_cast<unsigned long>(error)));
}

/// Gives a complete file the place and the permissions of another that may be there.
bool TakePlaceOf(const fs::path& target, const std::string& complete)
{
    const mode_t mask = umask(0);
    umask(mask);
    struct stat older
    {
    };
    const bool exists = stat(target.c_str(), &older) == 0;
    return chmod(complete.c_str(), exists ? older.st_mode & 0777 : 0666 & ~mask) == 0 &&
           std::rename(complete.c_str(), target.c_str()) == 0;
}

wxString WriteInPlaceOf(const fs::path& target, const WriteFile& write)
{
    if (const char* const obstacle = SpecialFileAt(target.c_str()))
        return obstacle;
    const UnfinishedName unfinished(target);
    FileStream stream(unfinished.path);
    if (stream.FirstError() != 0 || !write(stream) || !stream.Finish())
        return TextOf(stream.FirstError());
    return TakePlaceOf(target, unfinished.path) ? wxString() : TextOf(errno);
}
} // namespace

wxString WriteWholeFile(const wxString& path, const WriteFile& write)
{
    constexpr int kMostLinks = 40; // as the system follows
    fs::path target(static_cast<const char*>(path.fn_str()));
    std::error_code noLink;
    for (int links = 0; is_symlink(symlink_status(target, noLink)); ++links)
    {
        if (links == kMostLinks)
            return TextOf(ELOOP);
        target = target.parent_path() / read_symlink(target, noLink);
    }
    return WriteInPlaceOf(target, write);
}

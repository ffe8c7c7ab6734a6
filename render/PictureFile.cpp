#include "render/PictureFile.h"

#include <wx/filefn.h>
#include <wx/filename.h>
#include <wx/log.h>
#include <wx/wfstream.h>

#include <array>
#include <cstdio>
#include <filesystem>
#include <sys/stat.h>
#include <utility>

namespace render
{
namespace
{
bool WritePicture(const wxImage& picture, const wxString& path, wxBitmapType type)
{
    wxFileOutputStream file(path);
    // Some writers close the stream, so its last error is asked for, not whether it is open.
    return picture.SaveFile(file, type) && file.GetLastError() == wxSTREAM_NO_ERROR;
}

/// Gives a complete file the place and the permissions of another that may be there.
bool TakePlaceOf(const wxString& path, const wxString& complete)
{
    const mode_t mask = umask(0);
    umask(mask);
    struct stat older
    {
    };
    const bool exists = stat(path.fn_str(), &older) == 0;
    return chmod(complete.fn_str(), exists ? older.st_mode & 0777 : 0666 & ~mask) == 0 &&
           std::rename(complete.fn_str(), path.fn_str()) == 0;
}

/// A new empty file in the directory of another; empty if there can't be one.
wxString NewFileBeside(const wxString& path)
{
    const wxLogNull silent;
    return wxFileName::CreateTempFileName(path);
}

/// Where a name leads to: a link stays a link.
wxString Resolved(const wxString& path)
{
    std::error_code failed;
    const auto place = std::filesystem::weakly_canonical(static_cast<const char*>(path.fn_str()), failed);
    return failed ? path : wxString(place.c_str(), *wxConvFileName);
}
} // namespace

std::optional<wxBitmapType> PictureTypeOf(const wxString& path)
{
    static constexpr std::array<std::pair<const char*, wxBitmapType>, 6> kTypes{{{".png", wxBITMAP_TYPE_PNG},
                                                                                 {".jpg", wxBITMAP_TYPE_JPEG},
                                                                                 {".bmp", wxBITMAP_TYPE_BMP},
                                                                                 {".pcx", wxBITMAP_TYPE_PCX},
                                                                                 {".pnm", wxBITMAP_TYPE_PNM},
                                                                                 {".tif", wxBITMAP_TYPE_TIFF}}};
    const wxString ending = path.Right(4).Lower();
    for (const auto& [name, type] : kTypes)
        if (ending == name)
            return type;
    return std::nullopt;
}

bool SavePicture(wxImage picture, const wxString& path)
{
    if (!picture.IsOk())
    {
        wxLogError("Not enough memory to write the picture %s", path);
        return false;
    }
    picture.SetOption(wxIMAGE_OPTION_QUALITY, 90);
    // Written beside the target and renamed, so that a failure leaves an older picture alone.
    const wxString target = Resolved(path);
    const wxString beside = NewFileBeside(target);
    if (!beside.empty())
    {
        if (WritePicture(picture, beside, *PictureTypeOf(path)) && TakePlaceOf(target, beside))
            return true;
        wxRemoveFile(beside);
    }
    wxLogError("Couldn't write the picture %s", path);
    return false;
}
} // namespace render

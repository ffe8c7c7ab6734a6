#include "render/PictureFile.h"

#include <wx/log.h>
#include <wx/wfstream.h>

#include <array>
#include <utility>

namespace render
{
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
    picture.SetOption(wxIMAGE_OPTION_QUALITY, 90);
    // Written beside the target and renamed, so that a failure leaves an older picture alone.
    wxTempFileOutputStream file(path);
    if (!file.IsOk())
        return false;
    if (!picture.SaveFile(file, *PictureTypeOf(path)) || !file.IsOk())
    {
        file.Discard();
        wxLogError("Couldn't write the picture %s", path);
        return false;
    }
    return file.Commit();
}
} // namespace render

#include "render/PictureFile.h"

#include "config/WholeFile.h"
#include "render/Images.h"
#include "render/PictureFormats.h"
#include "render/RowFile.h"

#include <wx/log.h>

namespace render
{
namespace
{
bool Save(const wxString& path, const WriteFile& write)
{
    const wxString reason = WriteWholeFile(path,
                                           [&write](wxOutputStream& stream)
                                           {
                                               const wxLogNull oneMessageIsEnough;
                                               return write(stream);
                                           });
    if (!reason.empty())
        wxLogError("Couldn't write the picture %s: %s", path, reason);
    return reason.empty();
}
} // namespace

std::optional<wxBitmapType> PictureTypeOf(const wxString& path)
{
    const wxString ending = path.Right(4).Lower();
    for (const auto& [name, type] : kPictureFormats)
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
    return Save(path, [&](wxOutputStream& stream) { return picture.SaveFile(stream, *PictureTypeOf(path)); });
}

bool SavePicture(const PictureRows& picture, const wxString& path)
{
    const wxBitmapType type = *PictureTypeOf(path);
    if (!HasRowFormat(type))
        return SavePicture(ImageOf(picture), path);
    return Save(path, [&](wxOutputStream& stream) { return WriteRows(stream, picture, type); });
}
} // namespace render

#pragma once

#include <wx/gdicmn.h>

#include <array>

namespace render
{
/// A format that pictures are written in, named by the last four characters of a path.
struct PictureFormat
{
    const char* ending;
    wxBitmapType type;
};

inline constexpr std::array kPictureFormats{
    PictureFormat{".png", wxBITMAP_TYPE_PNG}, PictureFormat{".jpg", wxBITMAP_TYPE_JPEG},
    PictureFormat{".bmp", wxBITMAP_TYPE_BMP}, PictureFormat{".pcx", wxBITMAP_TYPE_PCX},
    PictureFormat{".pnm", wxBITMAP_TYPE_PNM}, PictureFormat{".tif", wxBITMAP_TYPE_TIFF},
};
} // namespace render

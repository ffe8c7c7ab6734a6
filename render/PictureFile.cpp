#include "render/PictureFile.h"

#include "config/SpecialFile.h"
#include "render/Images.h"
#include "render/RowFile.h"

#include <wx/filefn.h>
#include <wx/log.h>
#include <wx/stream.h>

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <string>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace render
{
namespace
{
/// What went wrong, as the system numbers it; 0 where the system has nothing to say.
using ErrorNumber = int;

/// Writes everything to a file or keeps the first error; the toolkit's own stream forgets what did not fit any more.
class PictureStream : public wxOutputStream
{
public:
    /// @param[in] file descriptor of an open file, which is closed with the stream.
    explicit PictureStream(int file) : m_file(file) {}
    ~PictureStream() override { Close(); }
    PictureStream(const PictureStream&) = delete;
    PictureStream& operator=(const PictureStream&) = delete;

    bool Close() override
    {
        if (m_file >= 0 && close(std::exchange(m_file, -1)) != 0)
            Fail();
        return IsOk();
    }
    bool IsSeekable() const override { return true; }
    ErrorNumber FirstError() const { return m_error; }

protected:
    std::size_t OnSysWrite(const void* bytes, std::size_t count) override
    {
        std::size_t written = 0;
        while (m_error == 0 && written < count)
        {
            const ssize_t part = write(m_file, static_cast<const char*>(bytes) + written, count - written);
            if (part >= 0)
                written += static_cast<std::size_t>(part);
            else if (errno != EINTR)
                Fail();
        }
        m_lasterror = m_error == 0 ? wxSTREAM_NO_ERROR : wxSTREAM_WRITE_ERROR;
        return written;
    }
    wxFileOffset OnSysSeek(wxFileOffset offset, wxSeekMode mode) override
    {
        static constexpr std::array kOrigins{SEEK_SET, SEEK_CUR, SEEK_END}; // in the order of wxSeekMode
        return lseek(m_file, offset, kOrigins[static_cast<std::size_t>(mode)]);
    }
    wxFileOffset OnSysTell() const override { return lseek(m_file, 0, SEEK_CUR); }

private:
    void Fail()
    {
        if (m_error == 0)
            m_error = errno;
        m_lasterror = wxSTREAM_WRITE_ERROR;
    }

    int m_file;
    ErrorNumber m_error = 0;
};

/// Gives a complete file the place and the permissions of another that may be there.
bool TakePlaceOf(const wxString& path, const std::string& complete)
{
    const mode_t mask = umask(0);
    umask(mask);
    struct stat older
    {
    };
    const bool exists = stat(path.fn_str(), &older) == 0;
    return chmod(complete.c_str(), exists ? older.st_mode & 0777 : 0666 & ~mask) == 0 &&
           std::rename(complete.c_str(), path.fn_str()) == 0;
}

wxString TextOf(ErrorNumber error)
{
    return error == 0 ? wxString("the toolkit can't encode it") : wxString(wxSysErrorMsgStr(error));
}

using WritePicture = std::function<bool(wxOutputStream& stream)>;

/**
 * Writes a picture beside its place and renames it, so that a failure leaves an older one alone.
 *
 * @param[in] writePicture returns whether it could.
 * @return why that failed; empty if it did not.
 */
wxString WriteInPlaceOf(const wxString& target, const WritePicture& writePicture)
{
    if (const char* const obstacle = SpecialFileAt(target.fn_str()))
        return obstacle;
    std::string beside = std::string(target.fn_str()) + "XXXXXX";
    const int file = mkstemp(beside.data());
    if (file < 0)
        return TextOf(errno);
    PictureStream stream(file);
    const wxLogNull oneMessageIsEnough;
    const bool isWritten = writePicture(stream) && stream.FirstError() == 0 && stream.Close();
    if (isWritten && TakePlaceOf(target, beside))
        return "";
    const wxString reason = TextOf(isWritten ? errno : stream.FirstError());
    unlink(beside.c_str());
    return reason;
}

/// Where a name leads to: a link stays a link.
wxString Resolved(const wxString& path)
{
    std::error_code failed;
    const auto place = std::filesystem::weakly_canonical(static_cast<const char*>(path.fn_str()), failed);
    return failed ? path : wxString(place.c_str(), *wxConvFileName);
}

bool Save(const wxString& path, const WritePicture& writePicture)
{
    const wxString reason = WriteInPlaceOf(Resolved(path), writePicture);
    if (!reason.empty())
        wxLogError("Couldn't write the picture %s: %s", path, reason);
    return reason.empty();
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

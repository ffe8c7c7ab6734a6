#pragma once

#include <wx/stream.h>

#include <string>

/// What went wrong, as the system numbers it; 0 where the system has nothing to say.
using ErrorNumber = int;

/// Writes everything to a new file or keeps the first error; the toolkit's own stream forgets what did not fit any
/// more.
class FileStream : public wxOutputStream
{
public:
    /// Creates a file that only this user may read; it is an error if there is one.
    explicit FileStream(const std::string& path);
    ~FileStream() override { CloseFile(); }
    FileStream(const FileStream&) = delete;
    FileStream& operator=(const FileStream&) = delete;

    /// Flushes the file to the disk and closes it. (Close() does not: some of the toolkit's writers call it, some
    /// don't.)
    /// @return whether every byte is there.
    bool Finish();

    bool IsSeekable() const override { return true; }
    ErrorNumber FirstError() const { return m_error; }

protected:
    std::size_t OnSysWrite(const void* bytes, std::size_t count) override;
    wxFileOffset OnSysSeek(wxFileOffset offset, wxSeekMode mode) override;
    wxFileOffset OnSysTell() const override;

private:
    void Fail(ErrorNumber error);
    bool IsOnDisk() const;
    void CloseFile();

    int m_file;
    wxFileOffset m_end = 0; ///< behind the last byte that was written
    ErrorNumber m_error = 0;
};

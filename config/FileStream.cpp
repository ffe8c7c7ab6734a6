#include "config/FileStream.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

FileStream::FileStream(const std::string& path)
    : m_file(open(path.c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, 0600))
{
    if (m_file < 0)
        Fail(errno);
}

bool FileStream::Finish()
{
    if (m_error == 0 && !IsOnDisk())
        Fail(errno);
    CloseFile();
    return m_error == 0;
}

bool FileStream::IsOnDisk() const
{
    struct stat status
    {
    };
    // Where a file system has no such thing as flushing, there is nothing to wait for.
    if ((fsync(m_file) != 0 && errno != EINVAL) || fstat(m_file, &status) != 0)
        return false;
    errno = ENOSPC; // where some of it is missing, and nobody said so
    return status.st_size == m_end;
}

void FileStream::CloseFile()
{
    if (m_file >= 0 && close(std::exchange(m_file, -1)) != 0)
        Fail(errno);
}

std::size_t FileStream::OnSysWrite(const void* bytes, std::size_t count)
{
    std::size_t written = 0;
    while (m_error == 0 && written < count)
    {
        const ssize_t part = write(m_file, static_cast<const char*>(bytes) + written, count - written);
        if (part >= 0)
            written += static_cast<std::size_t>(part);
        else if (errno != EINTR)
            Fail(errno);
    }
    m_end = std::max(m_end, OnSysTell());
    m_lasterror = m_error == 0 ? wxSTREAM_NO_ERROR : wxSTREAM_WRITE_ERROR;
    return written;
}

wxFileOffset FileStream::OnSysSeek(wxFileOffset offset, wxSeekMode mode)
{
    static constexpr std::array kOrigins{SEEK_SET, SEEK_CUR, SEEK_END}; // in the order of wxSeekMode
    return lseek(m_file, offset, kOrigins[static_cast<std::size_t>(mode)]);
}

wxFileOffset FileStream::OnSysTell() const
{
    return lseek(m_file, 0, SEEK_CUR);
}

void FileStream::Fail(ErrorNumber error)
{
    if (m_error == 0)
        m_error = error;
    m_lasterror = wxSTREAM_WRITE_ERROR;
}

#include "render/DecodeApart.h"

#include "config/DataFile.h"
#include "config/QuietToolkit.h"

#include <wx/wfstream.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <fstream>

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace render
{
namespace
{
/// In front of the pixels, three bytes each, in the memory that child and parent share.
struct Size
{
    int width = 0;
    int height = 0;

    std::size_t Pixels() const { return static_cast<std::size_t>(width) * static_cast<std::size_t>(height); }
    std::size_t Bytes() const { return sizeof(Size) + 3 * Pixels(); }
};

/// Memory that is a file without a name.
class SharedMemory
{
public:
    SharedMemory() : m_file(memfd_create("picture", MFD_CLOEXEC)) {}
    ~SharedMemory()
    {
        if (m_file >= 0)
            close(m_file);
    }
    SharedMemory(const SharedMemory&) = delete;
    SharedMemory& operator=(const SharedMemory&) = delete;

    bool IsOk() const { return m_file >= 0; }

    bool Write(const void* bytes, std::size_t count) const
    {
        for (std::size_t done = 0; done < count;)
        {
            const ssize_t part = write(m_file, static_cast<const char*>(bytes) + done, count - done);
            if (part <= 0)
                return false;
            done += static_cast<std::size_t>(part);
        }
        return true;
    }
    bool Read(void* bytes, std::size_t count, std::size_t from) const
    {
        for (std::size_t done = 0; done < count;)
        {
            const ssize_t part =
                pread(m_file, static_cast<char*>(bytes) + done, count - done, static_cast<off_t>(from + done));
            if (part <= 0)
                return false;
            done += static_cast<std::size_t>(part);
        }
        return true;
    }

private:
    int m_file;
};

void Limit(decltype(RLIMIT_AS) resource, rlim_t most)
{
    rlimit limit{};
    getrlimit(resource, &limit);
    limit.rlim_cur = std::min(limit.rlim_cur, most);
    setrlimit(resource, &limit);
}

rlim_t UsedBytes()
{
    rlim_t pages = 0;
    std::ifstream("/proc/self/statm") >> pages;
    return pages * static_cast<rlim_t>(sysconf(_SC_PAGESIZE));
}

bool Decode(const std::function<wxImage()>& decode, const SharedMemory& memory)
{
    const QuietToolkit quiet;
    const wxImage image = decode();
    if (!image.IsOk())
        return false;
    const Size size{image.GetWidth(), image.GetHeight()};
    return size.Pixels() <= kMostPixels && memory.Write(&size, sizeof size) &&
           memory.Write(image.GetData(), size.Bytes() - sizeof size);
}

/// What the child does; it ends without a trace, however it ends. Nothing may be thrown into what was the parent's.
[[noreturn]] void Become(const std::function<wxImage()>& decode, DecodeLimits limits,
                         const SharedMemory& memory) noexcept
{
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    dup2(open("/dev/null", O_WRONLY), STDERR_FILENO);
    Limit(RLIMIT_CORE, 0);
    Limit(RLIMIT_CPU, limits.seconds);
    Limit(RLIMIT_AS, UsedBytes() + limits.bytes);
    _exit(Decode(decode, memory) ? 0 : 1);
}

bool EndsWell(pid_t process)
{
    int status = 0;
    while (waitpid(process, &status, 0) < 0)
        if (errno != EINTR)
            return false;
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

wxImage ImageIn(const SharedMemory& memory)
{
    Size size;
    if (!memory.Read(&size, sizeof size, 0))
        return {};
    wxImage image(size.width, size.height, false);
    const bool isWhole = image.IsOk() && memory.Read(image.GetData(), size.Bytes() - sizeof size, sizeof size);
    return isWhole ? image : wxImage();
}

DecodeLimits LimitsFor(wxFileOffset fileBytes)
{
    DecodeLimits limits;
    const std::size_t most = (std::size_t{256} << 20) + 4096 * static_cast<std::size_t>(fileBytes);
    limits.bytes = std::min(limits.bytes, most);
    return limits;
}
} // namespace

wxImage DecodeApart(const std::function<wxImage()>& decode, DecodeLimits limits)
{
    const SharedMemory memory;
    const pid_t process = memory.IsOk() ? fork() : -1;
    if (process == 0)
        Become(decode, limits, memory);
    return process > 0 && EndsWell(process) ? ImageIn(memory) : wxImage();
}

wxImage LoadImageApart(const wxString& name)
{
    const wxLogNull silent;
    wxFile file;
    if (!OpenDataFile(file, name))
        return {};
    return DecodeApart(
        [&file]
        {
            wxFileInputStream bytes(file);
            wxBufferedInputStream buffered(bytes);
            return wxImage(buffered);
        },
        LimitsFor(file.Length()));
}
} // namespace render

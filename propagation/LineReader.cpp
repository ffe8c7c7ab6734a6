#include "propagation/LineReader.h"

#include <algorithm>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace propagation
{
namespace
{
std::FILE* OpenOrdinaryFile(const wxString& path)
{
    // Opening a pipe waits for its other end unless told not to.
    const int file = open(path.fn_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (file < 0)
        return nullptr;
    struct stat state;
    if (fstat(file, &state) == 0 && S_ISREG(state.st_mode))
        return fdopen(file, "r");
    close(file);
    return nullptr;
}
} // namespace

LineReader::LineReader(const wxString& path) : m_file(OpenOrdinaryFile(path), &std::fclose) {}

bool LineReader::Fill()
{
    m_unread = {m_block.data(), std::fread(m_block.data(), 1, m_block.size(), m_file.get())};
    return !m_unread.empty();
}

std::optional<LineReader::Line> LineReader::Next()
{
    if (m_unread.empty() && !Fill())
        return std::nullopt;
    std::size_t kept = 0;
    for (;;)
    {
        const std::size_t end = m_unread.find('\n');
        const std::string_view part = m_unread.substr(0, end);
        kept += part.copy(m_line.data() + kept, kKept - kept);
        const bool ended = end != std::string_view::npos;
        m_unread.remove_prefix(ended ? end + 1 : m_unread.size());
        if (ended || !Fill())
            return Line{{m_line.data(), kept}, ended};
    }
}
} // namespace propagation

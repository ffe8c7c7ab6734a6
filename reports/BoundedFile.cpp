#include "reports/BoundedFile.h"

#include "config/SpecialFile.h"

#include <wx/log.h>

#include <array>
#include <cerrno>
#include <cstdio>
#include <memory>
#include <string_view>
#include <unistd.h>

namespace reports
{
namespace
{
using File = std::unique_ptr<std::FILE, decltype(&std::fclose)>;

BoundedFile Refused(const wxString& why)
{
    return {"", why};
}

wxString SystemError()
{
    return wxSysErrorMsgStr(static_cast<unsigned long>(errno));
}

/// Texts of two or four bytes a character begin with one; only they may hold zeros.
bool HasByteOrderMark(std::string_view bytes)
{
    using namespace std::string_view_literals;
    return bytes.starts_with("\xFF\xFE"sv) || bytes.starts_with("\xFE\xFF"sv) || bytes.starts_with("\0\0\xFE\xFF"sv);
}
} // namespace

wxString ObstacleTo(const wxString& path)
{
    if (const char* const obstacle = SpecialFileAt(path.fn_str()))
        return obstacle;
    return access(path.fn_str(), R_OK) == 0 ? wxString() : SystemError();
}

BoundedFile ReadBounded(const wxString& path, std::size_t mostBytes)
{
    if (const wxString obstacle = ObstacleTo(path); !obstacle.empty())
        return Refused(obstacle);
    const File file(std::fopen(path.fn_str(), "rb"), &std::fclose);
    if (!file)
        return Refused(SystemError());
    BoundedFile read;
    std::array<char, 1 << 16> block;
    for (std::size_t count = 0; (count = std::fread(block.data(), 1, block.size(), file.get())) > 0;)
    {
        read.bytes.append(block.data(), count);
        if (read.bytes.size() > mostBytes)
            return Refused(wxString::Format("it is longer than %zu MB", mostBytes >> 20));
    }
    return std::ferror(file.get()) ? Refused(SystemError()) : read;
}

BoundedFile ReadBoundedText(const wxString& path)
{
    BoundedFile file = ReadBounded(path);
    if (!file.obstacle.empty())
        return file;
    if (file.bytes.empty())
        return Refused("it is empty");
    if (file.bytes.find('\0') != std::string::npos && !HasByteOrderMark(file.bytes))
        return Refused("it is no text");
    return file;
}
} // namespace reports

#pragma once

#include <wx/string.h>

#include <array>
#include <cstdio>
#include <memory>
#include <optional>
#include <string_view>

namespace propagation
{
/// The lines of a file, one after the other, in memory that does not grow with them: of each line only the beginning is
/// kept.
class LineReader
{
public:
    static constexpr std::size_t kKept = 128;

    struct Line
    {
        std::string_view text; ///< at most kKept bytes, without the line feed; valid until the next call
        bool ended;            ///< false for a last line that has no line feed
    };

    /// Opens a file. Only ordinary files are read: a pipe could keep the program waiting for ever.
    explicit LineReader(const wxString& path);

    bool IsOk() const { return m_file != nullptr; }

    /// The next line; none at the end of the file or where it can't be read. @pre IsOk()
    std::optional<Line> Next();

private:
    bool Fill();

    std::unique_ptr<std::FILE, int (*)(std::FILE*)> m_file;
    std::array<char, 65536> m_block;
    std::string_view m_unread; ///< part of the block
    std::array<char, kKept> m_line;
};
} // namespace propagation

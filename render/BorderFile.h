#pragma once

#include <wx/file.h>

#include <array>
#include <cstddef>
#include <cstdint>

namespace render
{
/// One point of a point file.
struct BorderRecord
{
    std::int16_t code; ///< 1000 or more starts a new line here, anything less draws a line to here
    std::int16_t lat;  ///< arc-minutes, north positive
    std::int16_t lon;  ///< arc-minutes, east positive

    bool operator==(const BorderRecord&) const = default;
};

/**
 * The points of a point file one after the other: records of three little-endian 16-bit integers, without a header.
 *
 * A short last record is read over the values of the one before (zeros if there is none). Reads large blocks; neither
 * opening nor reading fails other than by ending early, which the toolkit's log reports.
 */
class BorderFile
{
public:
    /// @param[in] name see OpenDataFile().
    explicit BorderFile(const wxString& name);

    /// Reads the next point. @return false at the end of the file; then the record keeps its values.
    bool Next(BorderRecord& record);

    /// How much of the file has been read, from 0 to 1.
    double Done() const { return m_length > 0 ? static_cast<double>(m_done) / static_cast<double>(m_length) : 1.0; }

private:
    static constexpr std::size_t kRecordSize = 6;
    using Bytes = std::array<unsigned char, kRecordSize>;

    void ReadBlock();

    wxFile m_file;
    wxFileOffset m_length = 0;
    std::size_t m_done = 0;
    Bytes m_record{};
    std::array<unsigned char, kRecordSize * 10000> m_block;
    std::size_t m_next = 0;   ///< in the block
    std::size_t m_filled = 0; ///< bytes of the block; less than its size at the end of the file
};
} // namespace render

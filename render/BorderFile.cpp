#include "render/BorderFile.h"

#include "config/DataFile.h"

#include <algorithm>

namespace render
{
namespace
{
std::int16_t LittleEndian(unsigned char low, unsigned char high)
{
    return static_cast<std::int16_t>(low | high << 8);
}
} // namespace

BorderFile::BorderFile(const wxString& name)
{
    if (!OpenDataFile(m_file, name))
        return;
    m_length = m_file.Length();
    ReadBlock();
}

bool BorderFile::Next(BorderRecord& record)
{
    if (m_next == m_block.size())
        ReadBlock();
    if (m_next == m_filled)
        return false;
    const std::size_t count = std::min(kRecordSize, m_filled - m_next);
    std::copy_n(&m_block[m_next], count, m_record.begin());
    m_next += count;
    m_done += count;
    record = {LittleEndian(m_record[0], m_record[1]), LittleEndian(m_record[2], m_record[3]),
              LittleEndian(m_record[4], m_record[5])};
    return true;
}

void BorderFile::ReadBlock()
{
    m_next = 0;
    m_filled = 0;
    while (m_filled < m_block.size())
    {
        const ssize_t count = m_file.Read(&m_block[m_filled], m_block.size() - m_filled);
        if (count <= 0) // the end, or an error
            return;
        m_filled += static_cast<std::size_t>(count);
    }
}
} // namespace render

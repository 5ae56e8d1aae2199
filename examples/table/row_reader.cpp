#include "row_reader.h"

#include <algorithm>

namespace table
{

namespace
{

constexpr std::size_t s_FirstChunk = std::size_t{8} << 10;
constexpr std::size_t s_LargestChunk = std::size_t{256} << 10;

}  // namespace

bool CRowReader::Read(std::uint64_t row, std::vector<std::string>& fields)
{
    fields.clear();
    if (!Seek(row))
        return false;
    std::uint64_t const begin = m_Offset + m_At;
    bool more = true;
    while (more && fields.size() < s_MostFields && m_Offset + m_At - begin < s_LongestRow)
        more = TakeField(fields.emplace_back());
    // The end of a row that is too long isn't looked for: the index knows where the next one begins.
    m_Known = !more;
    ++m_Row;
    return true;
}

bool CRowReader::ReadField(std::uint64_t row, std::size_t column, std::string& text)
{
    text.clear();
    if (!Seek(row))
        return false;
    bool more = true;
    for (std::size_t i = 0; more && i < column; ++i)
        more = SkipField();
    if (more)
        more = TakeField(text);
    while (more)
        more = SkipField();
    ++m_Row;
    return true;
}

/// Goes to the beginning of a row; false: the file has no such row.
bool CRowReader::Seek(std::uint64_t row)
{
    if (!m_Known || row != m_Row)
    {
        CTableFile::SEntry const entry = m_File.FindEntry(row);
        if (!m_Known || row < m_Row || entry.row > m_Row)
        {
            m_Row = entry.row;
            m_Offset = entry.offset;
            m_Buffer.clear();
            m_At = 0;
            m_Chunk = s_FirstChunk;
            m_Last = false;
        }
        m_Known = true;
    }
    for (;;)
    {
        if (m_At == m_Buffer.size())
            More();
        if (m_At == m_Buffer.size())
            return m_Known = false;
        if (m_Row == row)
            return true;
        while (SkipField())
            continue;
        ++m_Row;
    }
}

/// Appends the next field to the text; true: another one follows in the row.
bool CRowReader::TakeField(std::string& text)
{
    for (;;)
    {
        std::string_view const rest = std::string_view(m_Buffer).substr(m_At);
        SField const field = NextField(rest, m_Last, m_File.GetDelimiter());
        bool const whole = field.kind != SField::Incomplete;
        if (whole || (field.length > 0 && rest.size() > s_LongestField))
        {
            AppendField(rest.substr(0, std::min(field.content, s_LongestField)), field.quoted, text);
            m_At += field.length;
            return whole ? field.kind == SField::Inner : SkipField(true);
        }
        More();
    }
}

/// The same without its text. `inside`: the field has begun before.
bool CRowReader::SkipField(bool inside)
{
    for (;;)
    {
        SField const field = NextField(std::string_view(m_Buffer).substr(m_At), m_Last, m_File.GetDelimiter(), inside);
        m_At += field.length;
        if (field.kind != SField::Incomplete)
            return field.kind == SField::Inner;
        inside = inside || field.length > 0;
        More();
    }
}

/// Reads on, behind what is left of the buffer. Reading rows one after the other reads ever larger chunks, and so does a
/// field that doesn't end.
void CRowReader::More()
{
    if (m_Last)
        return;
    m_Buffer.erase(0, m_At);
    m_Offset += m_At;
    m_At = 0;
    std::size_t const left = m_Buffer.size();
    std::size_t const wanted = std::max(m_Chunk, left);
    m_Buffer.resize(left + wanted);
    std::size_t const got = m_File.ReadAt(m_Offset + left, m_Buffer.data() + left, wanted);
    m_Buffer.resize(left + got);
    m_Last = got < wanted || m_Offset + m_Buffer.size() >= m_File.GetSize();
    m_Chunk = std::min(m_Chunk * 2, s_LargestChunk);
}

}  // namespace table

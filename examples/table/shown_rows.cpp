#include "shown_rows.h"

namespace table
{

namespace
{

constexpr std::size_t s_MostKept = std::size_t{8} << 20;  // bytes
constexpr std::size_t s_LongestDrawn = 1000;              // bytes

void AppendCopied(std::string const& field, std::string& text)
{
    if (field.find_first_of("\t\n\r\"") == std::string::npos)
    {
        text += field;
        return;
    }
    text += '"';
    for (char const c : field)
    {
        if (c == '"')
            text += '"';
        text += c;
    }
    text += '"';
}

}  // namespace

std::uint64_t CShownRows::GetNumber(std::size_t row) const
{
    if (row >= m_Order.size())
        return row + 1;
    return m_Order[m_Descending ? m_Order.size() - 1 - row : row];
}

std::vector<std::string> const& CShownRows::GetFields(std::size_t row)
{
    std::uint64_t const number = GetNumber(row);
    if (auto const kept = m_Kept.find(number); kept != m_Kept.end())
        return kept->second;
    if (m_KeptBytes > s_MostKept)
    {
        m_Kept.clear();
        m_KeptBytes = 0;
    }
    std::vector<std::string>& fields = m_Kept[number];
    m_Reader.Read(number, fields);
    m_KeptBytes += 200;  // of the containers, about
    for (std::string const& field : fields)
        m_KeptBytes += sizeof field + field.capacity();
    return fields;
}

void CShownRows::AppendAsText(std::size_t row, std::vector<int> const& columns, std::string& text)
{
    std::vector<std::string> const& fields = GetFields(row);
    for (std::size_t i = 0; i < columns.size(); ++i)
    {
        if (i > 0)
            text += '\t';
        if (auto const column = static_cast<std::size_t>(columns[i]); column < fields.size())
            AppendCopied(fields[column], text);
    }
    text += '\n';
}

std::string MakeDrawable(std::string const& field)
{
    std::string drawn;
    for (std::size_t i = 0; i < field.size(); ++i)
    {
        auto const byte = static_cast<unsigned char>(field[i]);
        if (drawn.size() >= s_LongestDrawn && (byte & 0xC0u) != 0x80u)  // where a character begins
            break;
        if (byte == '\r' && i + 1 < field.size() && field[i + 1] == '\n')
            continue;
        if (byte == '\n')
            drawn += "\u21B5";  // an arrow down and to the left
        else if (byte == '\t')
            drawn += ' ';
        else if (byte < 0x20)
            drawn += "\u00B7";  // a dot
        else
            drawn += field[i];
    }
    return drawn;
}

}  // namespace table

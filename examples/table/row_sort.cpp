#include "row_sort.h"

#include <algorithm>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstring>
#include <limits>

namespace table
{

namespace
{

constexpr std::uint64_t s_RowsPerStep = 20000;
constexpr std::size_t s_BytesPerRow = 20;  // a key, and a place in the order
constexpr std::size_t s_RankBytes = 8;

struct SStopped
{};

/// The doubles in their order as integers in theirs.
std::uint64_t RankOf(double number)
{
    std::uint64_t const bits = std::bit_cast<std::uint64_t>(number == 0 ? 0.0 : number);
    std::uint64_t const sign = std::uint64_t{1} << 63;
    return bits & sign ? ~bits : bits | sign;
}

std::uint64_t RankOf(std::string const& text)
{
    std::uint64_t rank = 0;
    for (std::size_t i = 0; i < s_RankBytes; ++i)
        rank = rank << 8 | (i < text.size() ? static_cast<unsigned char>(text[i]) : 0);
    return rank;
}

}  // namespace

bool ReadNumber(std::string_view text, double& number)
{
    while (!text.empty() && text.front() == ' ')
        text.remove_prefix(1);
    while (!text.empty() && text.back() == ' ')
        text.remove_suffix(1);
    if (text.starts_with('+') && !text.starts_with("+-"))
        text.remove_prefix(1);
    std::string_view const digits = text.substr(text.starts_with('-') ? 1 : 0);
    if (digits.empty() || (digits[0] != '.' && (digits[0] < '0' || digits[0] > '9')))  // no "inf" and "nan"
        return false;
    auto const [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    return error == std::errc() && end == text.data() + text.size();
}

CRowSort::CRowSort(CTableFile const& file, std::size_t column, std::uint64_t rows, std::size_t memory)
    : m_Reader(file), m_Column(column),
      m_Rows(std::min<std::uint64_t>(rows, std::numeric_limits<std::uint32_t>::max() - 1)),
      m_Memory(std::min<std::size_t>(memory, std::numeric_limits<std::uint32_t>::max()))
{
    // Room for the most that there can be, so that nothing is ever moved; it becomes memory only as it is used.
    m_Keys.reserve(static_cast<std::size_t>(std::min<std::uint64_t>(m_Rows, m_Memory / s_BytesPerRow)));
    m_Texts.reserve(m_Memory);
    m_Texts.push_back('\0');
}

bool CRowSort::Step()
{
    for (std::uint64_t i = 0; i < s_RowsPerStep; ++i)
    {
        if (m_Stopped)
            return false;
        if (m_Next > m_Rows)
        {
            Finish();
            return false;
        }
        m_Reader.ReadField(m_Next, m_Column, m_Field);  // one that is gone counts as empty
        if (!AddKey(m_Field))
        {
            m_Limited = true;
            Finish();
            return false;
        }
        ++m_Next;
    }
    m_Progress = 0.8 * static_cast<double>(m_Next) / static_cast<double>(m_Rows + 1);
    return true;
}

/// False: there is no memory left for it.
bool CRowSort::AddKey(std::string const& text)
{
    SKey key{0, 0, static_cast<std::uint32_t>(m_Next)};
    std::size_t const needed = (m_Keys.size() + 1) * s_BytesPerRow + m_Texts.size();
    double number = 0;
    if (ReadNumber(text, number))
    {
        if (needed > m_Memory)
            return false;
        key.rank = RankOf(number);
    }
    else
    {
        if (needed + text.size() + 1 > m_Memory)
            return false;
        key.rank = RankOf(text);
        key.text = static_cast<std::uint32_t>(m_Texts.size());
        m_Texts.insert(m_Texts.end(), text.c_str(), text.c_str() + text.size() + 1);
    }
    m_Keys.push_back(key);
    return true;
}

bool CRowSort::IsBefore(SKey const& a, SKey const& b) const
{
    if ((a.text == 0) != (b.text == 0))
        return a.text == 0;
    if (a.rank != b.rank)
        return a.rank < b.rank;
    if (a.text != 0)
    {
        // They begin alike. Texts hold no NULs, so they end at the first one, which may be within the rank's bytes.
        int const order = std::strcmp(&m_Texts[a.text], &m_Texts[b.text]);
        if (order != 0)
            return order < 0;
    }
    return a.row < b.row;
}

void CRowSort::Finish()
{
    try
    {
        std::sort(m_Keys.begin(), m_Keys.end(), [this](SKey const& a, SKey const& b) {
            if (m_Stopped)
                throw SStopped();  // the only way out of a sort
            return IsBefore(a, b);
        });
    }
    catch (SStopped const&)
    {
        return;
    }
    m_Order.reserve(m_Keys.size());
    for (SKey const& key : m_Keys)
        m_Order.push_back(key.row);
    std::vector<SKey>().swap(m_Keys);
    std::vector<char>().swap(m_Texts);
    m_Progress = 1.0;
    m_Done = true;
}

}  // namespace table

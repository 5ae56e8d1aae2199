#pragma once

#include "row_reader.h"
#include "table_file.h"

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace table
{

/// Whether the text, blanks around it left out, is a number, written with a point: 12, -0.5, 1e3. Very large ones are not.
bool ReadNumber(std::string_view text, double& number);

/// Puts rows in the order of one of their fields: numbers by value, behind them all else by its bytes; equal ones stay in
/// the order of the file. The numbers are doubles, so those of more than 15 digits may count as equal.
///
/// Works in limited memory. If that is too little for all rows, only the first that fit are put in order.
class CRowSort
{
public:
    /// Sorts the rows 1 to `rows`; the header, row 0, stays out. `memory`: bytes. `file`: must outlive this object.
    CRowSort(CTableFile const& file, std::size_t column, std::uint64_t rows, std::size_t memory);

    /// Does the next piece of the work, some milliseconds but for the last one; false when all is done, or after Stop.
    bool Step();
    void Stop() { m_Stopped = true; }  ///< From any thread; Step returns soon.

    double GetProgress() const { return m_Progress; }  ///< From any thread: 0 to 1.
    bool IsDone() const { return m_Done; }             ///< From any thread: the order is there.
    std::size_t GetColumn() const { return m_Column; }
    bool IsLimited() const { return m_Limited; }  ///< Once done: memory was too little for all rows.
    /// Once done: the numbers of the rows in their order. To be taken once.
    std::vector<std::uint32_t> TakeOrder() { return std::move(m_Order); }

private:
    struct SKey
    {
        std::uint64_t rank;  // of a number its place among the doubles, of a text its first eight bytes
        std::uint32_t text;  // where the text stands among m_Texts; 0: a number
        std::uint32_t row;
    };

    bool AddKey(std::string const& text);
    bool IsBefore(SKey const& a, SKey const& b) const;
    void Finish();

    CRowReader m_Reader;
    std::size_t const m_Column;
    std::uint64_t const m_Rows;
    std::size_t const m_Memory;
    std::uint64_t m_Next = 1;
    std::vector<SKey> m_Keys;
    std::vector<char> m_Texts;  // one behind the other, each ended by a NUL
    std::vector<std::uint32_t> m_Order;
    std::string m_Field;
    bool m_Limited = false;
    std::atomic<bool> m_Stopped{false};
    std::atomic<bool> m_Done{false};
    std::atomic<double> m_Progress{0};
};

}  // namespace table

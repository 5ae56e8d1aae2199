#pragma once

#include "row_reader.h"
#include "table_file.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <unordered_map>
#include <vector>

namespace table
{

/// The rows of a file in the order in which they are shown, from 0, without the header. Rows are read when they are asked
/// for, and the last ones are kept.
class CShownRows
{
public:
    /// `file`: must outlive this object.
    explicit CShownRows(CTableFile const& file) : m_Reader(file) {}

    /// The order of the first rows, by their number in the file; those behind follow as they stand there. Empty: all do.
    void SetOrder(std::vector<std::uint32_t> order) { m_Order = std::move(order); }
    void SetDescending(bool descending) { m_Descending = descending; }  ///< The order counts from its end.
    std::size_t GetOrderedCount() const { return m_Order.size(); }

    /// The number of a row in the file, where the header is 0.
    std::uint64_t GetNumber(std::size_t row) const;
    /// The fields of a row; none if the file doesn't have it any more. Good until the next call.
    std::vector<std::string> const& GetFields(std::size_t row);

    /// Appends these columns of a row, in this order, with tabs between them and a line end behind. A field with a tab, a
    /// line end or a quote is quoted.
    void AppendAsText(std::size_t row, std::vector<int> const& columns, std::string& text);

private:
    CRowReader m_Reader;
    std::vector<std::uint32_t> m_Order;
    bool m_Descending = false;
    std::unordered_map<std::uint64_t, std::vector<std::string>> m_Kept;  // by number in the file
    std::size_t m_KeptBytes = 0;
};

/// A field as it can be drawn in one line: line ends and other control characters become symbols, and what is too long for
/// any screen is cut.
std::string MakeDrawable(std::string const& field);

}  // namespace table

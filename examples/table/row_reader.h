#pragma once

#include "csv.h"
#include "table_file.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace table
{

/// Reads rows of a file by their number. The next row after the one read last costs least; any other one is looked for
/// from the index's entry before it. For one thread; each thread has its own reader.
///
/// Of a field the first s_LongestField bytes are read, of a row the fields that begin in its first s_LongestRow bytes, and
/// no more than s_MostFields of them, so that any file can be read in little memory.
class CRowReader
{
public:
    static constexpr std::size_t s_LongestField = s_QuotedLimit + 2;  // any quoted field, with its quotes
    static constexpr std::size_t s_LongestRow = std::size_t{4} << 20;
    static constexpr std::size_t s_MostFields = 10000;

    /// `file`: must outlive the reader.
    explicit CRowReader(CTableFile const& file) : m_File(file) {}

    /// The fields of a row, the header being row 0; false, and no fields, if the file has no such row (any more).
    bool Read(std::uint64_t row, std::vector<std::string>& fields);
    /// The text of one field; empty if the row has fewer fields. False if there is no such row.
    bool ReadField(std::uint64_t row, std::size_t column, std::string& text);

private:
    bool Seek(std::uint64_t row);
    bool TakeField(std::string& text);
    bool SkipField(bool inside = false);
    void More();

    CTableFile const& m_File;
    std::string m_Buffer;
    std::uint64_t m_Offset = 0;  // of the buffer, in the file
    std::size_t m_At = 0;        // where the reader stands in the buffer
    std::size_t m_Chunk = 0;     // bytes that are read next
    bool m_Last = false;         // the file ends with the buffer
    bool m_Known = false;        // the reader stands at the beginning of m_Row
    std::uint64_t m_Row = 0;
};

}  // namespace table

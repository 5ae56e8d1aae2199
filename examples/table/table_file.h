#pragma once

// A file of rows that may be larger than memory: it is read where it is needed, and an index tells where rows begin.
//
// The file is read with pread and not mapped. Reading a mapping of a file that somebody else cuts short, or whose disk
// fails, ends a program with SIGBUS; pread answers with fewer bytes or an error, which can be shown. It also leaves the
// file's pages to the kernel, so that they never count as this program's memory.

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <mutex>
#include <string>
#include <string_view>
#include <vector>

namespace table
{

/// 1234567 as "1,234,567".
std::string Grouped(std::uint64_t number);

/// What is wrong with a file. Row numbers count the rows below the header from 1; the header is row 0.
struct SProblems
{
    std::string open;  ///< Why there is nothing to be shown; empty: there is.
    std::uint64_t uneven = 0;
    std::uint64_t firstUneven = 0;  ///< The first of the rows that have another number of fields than the header.
    std::uint64_t unclosed = 0;
    std::uint64_t firstUnclosed = 0;  ///< The row of the first opening quote that was taken as a character.
    std::uint64_t tails = 0;
    std::uint64_t firstTail = 0;     ///< The row of the first field that goes on behind its closing quote.
    std::uint64_t invalidBytes = 0;  ///< Those that are no UTF-8.
    std::uint64_t nuls = 0;
    bool truncated = false;  ///< The file became shorter while it was open.
    std::string read;        ///< Why reading failed; empty: it didn't.

    std::vector<std::string> Describe() const;  ///< A sentence each.
};

/// A table file that is open. It stays the file it was opened as: what is appended later isn't looked at.
class CTableFile
{
public:
    /// The index holds the beginning of every `step`th row, and that of a row that is far behind the one before. When it
    /// has `maxEntries`, every second entry is dropped and the distances double, so it never grows beyond.
    struct SOptions
    {
        std::uint64_t step = 64;
        std::size_t maxEntries = std::size_t{1} << 20;
        std::size_t firstBlock = std::size_t{64} << 10;  ///< Bytes of the first stretch; later ones are longer.
    };
    /// Where a row begins. Here and below the header is row 0.
    struct SEntry
    {
        std::uint64_t row = 0;
        std::uint64_t offset = 0;
    };
    struct SState
    {
        std::uint64_t rows = 0;     ///< Known so far, the header included.
        std::uint64_t indexed = 0;  ///< Bytes.
        std::uint64_t size = 0;     ///< Bytes.
        std::size_t columns = 0;    ///< Of the row with the most fields so far.
        bool done = false;          ///< There is nothing left to be indexed.
        SProblems problems;
    };

    explicit CTableFile(std::string const& path) : CTableFile(path, SOptions()) {}
    CTableFile(std::string const& path, SOptions const& options);
    ~CTableFile();
    CTableFile(CTableFile const&) = delete;
    CTableFile& operator=(CTableFile const&) = delete;

    /// Indexes the next stretch, some milliseconds of work; false when all is done. For one thread, any one.
    bool IndexMore();

    // From any thread ------------------------------------------------------------------------------------------------
    char GetDelimiter() const { return m_Delimiter; }
    SState GetState() const;  ///< Looks, too, whether the file has become shorter.
    /// Reads bytes from the offset on. Fewer than asked for: the file ends there, if need be from now on.
    std::size_t ReadAt(std::uint64_t offset, char* bytes, std::size_t count) const;
    /// The end of the file, as far as it is known.
    std::uint64_t GetSize() const { return m_Size; }
    /// The last entry that isn't behind the row.
    SEntry FindEntry(std::uint64_t row) const;
    std::size_t GetEntryCount() const;

private:
    void EndAt(std::uint64_t offset) const;
    void Open(std::string const& path);
    void Fail(std::string const& why);
    void IndexBlock(std::string_view block, std::uint64_t offset, bool last);
    void EndRow();
    void AddEntry(std::uint64_t offset);
    void Publish(bool done);

    int m_File = -1;
    char m_Delimiter = ',';
    SOptions const m_Options;
    mutable std::atomic<std::uint64_t> m_Size{0};
    mutable std::atomic<bool> m_Truncated{false};
    mutable std::atomic<int> m_Error{0};  // errno of a read that failed

    // The indexing thread's own
    std::vector<char> m_Block;
    std::size_t m_BlockSize;
    std::uint64_t m_Position = 0;  // all before is indexed
    std::uint64_t m_Checked = 0;   // all before was looked at for bytes that are no text
    bool m_AtRow = true;           // a row begins at m_Position
    bool m_Inside = false;         // of a field
    std::size_t m_Fields = 0;      // of the present row
    std::size_t m_HeaderFields = 0;
    SState m_Progress;

    // What the others see
    mutable std::mutex m_Mutex;
    SState m_State;
    std::vector<SEntry> m_Entries;
    std::uint64_t m_RowStep;
    std::uint64_t m_ByteStep = std::uint64_t{64} << 10;
};

}  // namespace table

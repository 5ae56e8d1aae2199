#include "table_file.h"

#include "csv.h"

#include <algorithm>
#include <cerrno>
#include <cstring>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace table
{

namespace
{

constexpr std::size_t s_LargestBlock = std::size_t{4} << 20;
static_assert(s_LargestBlock >= s_QuotedLimit + 64, "a block must decide on every quote");

std::string Plural(std::uint64_t count, char const* one, char const* many)
{
    return Grouped(count) + " " + (count == 1 ? one : many);
}

std::string RowName(std::uint64_t row)
{
    return row == 0 ? "the header" : "row " + Grouped(row);
}

/// Counts what happened in a row, and keeps the row where it happened first.
void Count(std::uint64_t& count, std::uint64_t& first, std::uint64_t row)
{
    if (count++ == 0)
        first = row;
}

}  // namespace

std::string Grouped(std::uint64_t number)
{
    std::string text = std::to_string(number);
    for (std::size_t i = text.size(); i > 3; i -= 3)
        text.insert(i - 3, ",");
    return text;
}

std::vector<std::string> SProblems::Describe() const
{
    std::vector<std::string> all;
    if (!open.empty())
        all.push_back(open);
    if (truncated)
        all.push_back("The file became shorter while it was open; what lay behind its new end is lost.");
    if (!read.empty())
        all.push_back("The file can't be read to its end: " + read + ".");
    if (unclosed)
        all.push_back(Plural(unclosed, "quote is", "quotes are") +
                      " never closed, or only after more than 1 MiB, and taken as written, first in " +
                      RowName(firstUnclosed) + ".");
    if (tails)
        all.push_back(Plural(tails, "field goes", "fields go") +
                      " on behind the closing quote, as after a forgotten one, first in " + RowName(firstTail) + ".");
    if (uneven)
        all.push_back(Plural(uneven, "row has", "rows have") + " another number of fields than the header, first " +
                      RowName(firstUneven) + ".");
    if (invalidBytes)
        all.push_back(Plural(invalidBytes, "byte is", "bytes are") + " no UTF-8.");
    if (nuls)
        all.push_back(Plural(nuls, "byte is", "bytes are") + " NUL.");
    return all;
}

// Opening and reading ------------------------------------------------------------------------------------------------

CTableFile::CTableFile(std::string const& path, SOptions const& options)
    : m_Options(options), m_BlockSize(options.firstBlock), m_RowStep(options.step)
{
    Open(path);
    Publish(m_File < 0);
}

CTableFile::~CTableFile()
{
    if (m_File >= 0)
        close(m_File);
}

void CTableFile::Open(std::string const& path)
{
    // Not blocking: opening a pipe would wait for somebody who writes to it.
    m_File = open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    struct stat info = {};
    if (m_File < 0 || fstat(m_File, &info) != 0)
        return Fail(path + " can't be opened: " + std::strerror(errno) + ".");
    if (S_ISDIR(info.st_mode))
        return Fail(path + " is a directory.");
    if (!S_ISREG(info.st_mode))
        return Fail(path + " is no regular file.");
    m_Size = static_cast<std::uint64_t>(info.st_size);

    std::string begin(m_Options.firstBlock, '\0');
    begin.resize(ReadAt(0, begin.data(), begin.size()));
    std::size_t const mark = begin.starts_with("\xEF\xBB\xBF") ? 3 : 0;
    if (begin.size() == mark && m_Error == 0)
        return Fail(path + " is empty.");
    m_Delimiter = GuessDelimiter(path, std::string_view(begin).substr(mark));
    m_Position = m_Checked = mark;
    m_Entries.reserve(m_Options.maxEntries);  // memory only as it is used
}

void CTableFile::Fail(std::string const& why)
{
    m_Progress.problems.open = why;
    if (m_File >= 0)
        close(m_File);
    m_File = -1;
    m_Size = 0;
}

std::size_t CTableFile::ReadAt(std::uint64_t offset, char* bytes, std::size_t count) const
{
    std::uint64_t const size = m_Size;
    if (offset >= size)
        return 0;
    std::size_t const wanted = static_cast<std::size_t>(std::min<std::uint64_t>(count, size - offset));
    std::size_t done = 0;
    while (done < wanted)
    {
        ssize_t const got = pread(m_File, bytes + done, wanted - done, static_cast<off_t>(offset + done));
        if (got < 0 && errno == EINTR)
            continue;
        if (got <= 0)
        {
            if (got < 0)
                m_Error = errno;
            else
                m_Truncated = true;
            EndAt(offset + done);
            break;
        }
        done += static_cast<std::size_t>(got);
    }
    return done;
}

/// The file ends here now, unless another thread has found an earlier end.
void CTableFile::EndAt(std::uint64_t offset) const
{
    std::uint64_t known = m_Size;
    while (offset < known && !m_Size.compare_exchange_weak(known, offset))
        continue;
}

// Indexing -----------------------------------------------------------------------------------------------------------

bool CTableFile::IndexMore()
{
    if (GetState().done)
        return false;
    // The check for text may lag a little behind.
    std::uint64_t const offset = std::min(m_Position, m_Checked);
    m_Block.resize(m_BlockSize);
    std::size_t const count = ReadAt(offset, m_Block.data(), m_Block.size());
    bool const last = offset + count >= GetSize();
    m_BlockSize = std::min(m_BlockSize * 2, s_LargestBlock);

    std::string_view const block(m_Block.data(), count);
    SByteFaults faults;
    std::size_t const known = static_cast<std::size_t>(m_Checked - offset);
    if (known < count)
        m_Checked += CheckBytes(block.substr(known), last, faults);
    m_Progress.problems.invalidBytes += faults.invalid;
    m_Progress.problems.nuls += faults.nuls;

    // A file that was cut may end before what is indexed already.
    std::size_t const skip = std::min(static_cast<std::size_t>(m_Position - offset), count);
    IndexBlock(block.substr(skip), offset + skip, last);
    if (last)
        std::vector<char>().swap(m_Block);
    Publish(last);
    return !last;
}

void CTableFile::IndexBlock(std::string_view block, std::uint64_t offset, bool last)
{
    SProblems& problems = m_Progress.problems;
    std::size_t at = 0;
    for (;;)
    {
        if (m_AtRow)
        {
            if (at == block.size())
                break;
            AddEntry(offset + at);
            m_AtRow = false;
            m_Fields = 0;
        }
        SField const field = NextField(block.substr(at), last, m_Delimiter, m_Inside);
        at += field.length;
        if (field.unclosed && field.length > 0)
            Count(problems.unclosed, problems.firstUnclosed, m_Progress.rows);
        if (field.tail)
            Count(problems.tails, problems.firstTail, m_Progress.rows);
        if (field.kind == SField::Incomplete)
        {
            m_Inside = m_Inside || field.length > 0;
            break;
        }
        m_Inside = false;
        ++m_Fields;
        if (field.kind == SField::Last)
            EndRow();
    }
    m_Position = offset + at;
}

void CTableFile::EndRow()
{
    SProblems& problems = m_Progress.problems;
    if (m_Progress.rows == 0)
        m_HeaderFields = m_Fields;
    else if (m_Fields != m_HeaderFields)
        Count(problems.uneven, problems.firstUneven, m_Progress.rows);
    m_Progress.columns = std::max(m_Progress.columns, m_Fields);
    ++m_Progress.rows;
    m_AtRow = true;
}

// The row m_Progress.rows begins at the offset.
void CTableFile::AddEntry(std::uint64_t offset)
{
    SEntry const entry{m_Progress.rows, offset};
    auto const isFar = [this](SEntry const& before, SEntry const& now) {
        return now.row - before.row >= m_RowStep || now.offset - before.offset >= m_ByteStep;
    };
    // Only this thread changes the entries, so it may look at them without the lock.
    if (!m_Entries.empty() && !isFar(m_Entries.back(), entry))
        return;
    std::scoped_lock const lock(m_Mutex);
    m_Entries.push_back(entry);
    while (m_Entries.size() >= m_Options.maxEntries)
    {
        m_RowStep *= 2;
        m_ByteStep *= 2;
        std::size_t kept = 1;
        for (std::size_t i = 1; i < m_Entries.size(); ++i)
            if (isFar(m_Entries[kept - 1], m_Entries[i]))
                m_Entries[kept++] = m_Entries[i];
        m_Entries.resize(kept);
    }
}

void CTableFile::Publish(bool done)
{
    m_Progress.indexed = m_Position;
    m_Progress.done = done;
    std::scoped_lock const lock(m_Mutex);
    m_State = m_Progress;
}

// For all threads ----------------------------------------------------------------------------------------------------

CTableFile::SState CTableFile::GetState() const
{
    SState state;
    {
        std::scoped_lock const lock(m_Mutex);
        state = m_State;
    }
    struct stat info = {};
    if (m_File >= 0 && fstat(m_File, &info) == 0 && static_cast<std::uint64_t>(info.st_size) < m_Size)
    {
        m_Truncated = true;
        EndAt(static_cast<std::uint64_t>(info.st_size));
    }
    state.size = m_Size;
    state.problems.truncated = m_Truncated;
    if (int const error = m_Error)
        state.problems.read = std::strerror(error);
    return state;
}

CTableFile::SEntry CTableFile::FindEntry(std::uint64_t row) const
{
    std::scoped_lock const lock(m_Mutex);
    auto const next = std::upper_bound(m_Entries.begin(), m_Entries.end(), row,
                                       [](std::uint64_t number, SEntry const& entry) { return number < entry.row; });
    return next == m_Entries.begin() ? SEntry() : *(next - 1);
}

std::size_t CTableFile::GetEntryCount() const
{
    std::scoped_lock const lock(m_Mutex);
    return m_Entries.size();
}

}  // namespace table

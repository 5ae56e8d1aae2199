#pragma once

#include "examples/table/row_reader.h"
#include "examples/table/table_file.h"

#include <atomic>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>
#include <vector>

#include <unistd.h>

namespace table_test
{

/// A file of the test's own, gone with this object.
class CTestFile
{
public:
    explicit CTestFile(std::string const& content, std::string const& suffix = ".csv")
    {
        static std::atomic<int> number = 0;
        std::string const name = "vexel-table-" + std::to_string(getpid()) + "-" + std::to_string(++number) + suffix;
        m_Path = std::filesystem::temp_directory_path() / name;
        if (!(std::ofstream(m_Path, std::ios::binary) << content))
            throw std::runtime_error("no file can be made: " + m_Path);
    }
    ~CTestFile() { std::remove(m_Path.c_str()); }
    CTestFile(CTestFile const&) = delete;
    CTestFile& operator=(CTestFile const&) = delete;

    std::string const& GetPath() const { return m_Path; }
    void Cut(long size)
    {
        if (truncate(m_Path.c_str(), size) != 0)
            throw std::runtime_error("the file can't be cut");
    }

private:
    std::string m_Path;
};

inline void IndexAll(table::CTableFile& file)
{
    while (file.IndexMore())
        continue;
}

/// All rows of a file that is indexed, the header first. Brackets around fields, so that every byte counts: "[a][b] [c][]".
inline std::string AllRows(table::CTableFile const& file)
{
    table::CRowReader reader(file);
    std::string all;
    std::vector<std::string> fields;
    for (std::uint64_t row = 0; row < file.GetState().rows; ++row)
    {
        if (row > 0)
            all += ' ';
        if (!reader.Read(row, fields))
            all += "(gone)";
        for (std::string const& field : fields)
            all += "[" + field + "]";
    }
    return all;
}

/// What is wrong with a file, a sentence after the other.
inline std::string Problems(table::CTableFile const& file)
{
    std::string all;
    for (std::string const& problem : file.GetState().problems.Describe())
        all += (all.empty() ? "" : " ") + problem;
    return all;
}

/// A heading and so many rows: "number", "1", "2" ...
inline std::string NumberedRows(int count)
{
    std::string content = "number\n";
    for (int i = 1; i <= count; ++i)
        content += std::to_string(i) + "\n";
    return content;
}

}  // namespace table_test
